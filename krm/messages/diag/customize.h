// Customisation of vehicle functions and of the destination. Records come first, then the messages by command ID.
#ifndef KRM_MESSAGES_DIAG_CUSTOMIZE_H_
#define KRM_MESSAGES_DIAG_CUSTOMIZE_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// A customisation, which has items to set. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandCustomizeName {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeName(); }

    unsigned short m_ushCustomizeId = 0;  ///< ID of the customisation, as requests carry it
    krm_ulong m_ulCustomizeNameId = 0;    ///< words ID of the customisation's name
    CKRMString m_strCustomizeName;        ///< text of the customisation's name
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCustomizeName> = true;
extern template class CKRMList<CKRMCCommandCustomizeName>;

/// One value that a customisable item can take. A value travels twice, here and in all customisation records: as a
/// number, and as a string of bytes for what 16 bits can't hold.
class KRM_API CKRMCCommandCustomizeItemValue {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeItemValue(); }

    CKRMString m_strDispName;                         ///< text shown for the value
    krm_ulong m_ulDispNameId = 0;                     ///< words ID of that text
    unsigned short m_ushCustomizeValue = 0;           ///< the value as a number, if 16 bits hold it
    CKRMList<unsigned char> m_uchCustomizeValueList;  ///< the value as bytes; logged as one text of hexadecimal digits
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCustomizeItemValue> = true;
extern template class CKRMList<CKRMCCommandCustomizeItemValue>;

/// A customisable item: its current value and the values that it can take. Has no dump: the message that holds it
/// writes its fields.
class KRM_API CKRMCCommandCustomizeItemData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeItemData(); }

    unsigned short m_ushCustomizeItemId = 0;  ///< ID of the item
    krm_ulong m_ulCustomizeItemNameId = 0;    ///< words ID of the item's name
    CKRMString m_strCustomizeItemName;        ///< text of the item's name
    bool m_bCurrentValue = false;             ///< the current value is there
    unsigned short m_ushCurrentValue = 0;     ///< current value as a number, if 16 bits hold it
    CKRMList<unsigned char>
        m_uchCurrentValueList;        ///< current value as bytes; logged as one text of hexadecimal digits
    krm_ulong m_ulInfoId = 0;         ///< ID of the information text
    krm_ulong m_ulPersonalizeId = 0;  ///< whose setting it is; the IDs are the engine's; logged in hexadecimal
    CKRMList<CKRMCCommandCustomizeItemValue> m_cCustomizeValueList;  ///< values that the item can take
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCustomizeItemData> = true;
extern template class CKRMList<CKRMCCommandCustomizeItemData>;

/// An item to set, and its new value. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandCustomizeItemSetData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeItemSetData(); }

    unsigned short m_ushCustomizeId = 0;              ///< ID of the customisation
    unsigned short m_ushCustomizeItemId = 0;          ///< ID of the item to set
    unsigned short m_ushCustomizeValue = 0;           ///< new value as a number, if 16 bits hold it
    CKRMList<unsigned char> m_uchCustomizeValueList;  ///< new value as bytes; logged as one text of hexadecimal digits
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCustomizeItemSetData> = true;
extern template class CKRMList<CKRMCCommandCustomizeItemSetData>;

/// Whether an item was set. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandCustomizeItemResult {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeItemResult(); }

    unsigned short m_ushCustomizeId = 0;      ///< ID of the customisation
    unsigned short m_ushCustomizeItemId = 0;  ///< ID of the item
    bool m_bSuccess = false;                  ///< the item was set
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandCustomizeItemResult> = true;
extern template class CKRMList<CKRMCCommandCustomizeItemResult>;

/// GetCustomizeSupportList asks for what can be customised.
class KRM_API CKRMCGetCustomizeSupportListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCustomizeSupportListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCustomizeSupportList"> {};

/// Answers GetCustomizeSupportList with the customisations.
class KRM_API CKRMCGetCustomizeSupportListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCustomizeSupportListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCustomizeSupportList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomizeName> Data;  ///< customisations, without their items
};

/// GetCustomizeItemList asks for the items of a customisation.
class KRM_API CKRMCGetCustomizeItemListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCustomizeItemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCustomizeItemList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushCustomizeId = 0;  ///< customisation whose items are asked for
    bool m_bGetCurrentValue = false;      ///< current values are asked for too
    CKRMList<krm_ulong>
        m_cSpecialFunctionKeyList;    ///< special function keys; logged under the name Data, in hexadecimal
    krm_ulong m_ulPersonalizeId = 0;  ///< whose settings are meant; the IDs are the engine's; logged in hexadecimal
};

/// Answers GetCustomizeItemList with the items.
class KRM_API CKRMCGetCustomizeItemListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCustomizeItemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCustomizeItemList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomizeItemData> Data;  ///< items with the values that they can take
};

/// SetCustomizeItem asks to give items new values.
class KRM_API CKRMCSetCustomizeItemCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSetCustomizeItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "SetCustomizeItem"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomizeItemSetData> Data;  ///< items and their new values
};

/// Answers SetCustomizeItem with a result per item.
class KRM_API CKRMCSetCustomizeItemCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSetCustomizeItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "SetCustomizeItem"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomizeItemResult> Data;  ///< which items were set
};

/// GetCustomizeDestination asks for the destination that the vehicle is set to.
class KRM_API CKRMCGetCustomizeDestinationCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCustomizeDestination"> {};

/// Answers GetCustomizeDestination with the destination.
class KRM_API CKRMCGetCustomizeDestinationCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCustomizeDestination"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bEnable = false;               ///< the destination can be set
    krm_ulong m_ulDestinationDispId = 0;  ///< words ID of the destination's text
    CKRMString m_strDestinationDisp;      ///< text of the destination
};

/// SetCustomizeDestination asks to set the destination.
class KRM_API CKRMCSetCustomizeDestinationCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "SetCustomizeDestination"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMString m_strDestinationCode;  ///< code of the destination to set
};

/// Answers SetCustomizeDestination with the outcome.
class KRM_API CKRMCSetCustomizeDestinationCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "SetCustomizeDestination"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bInvalidCode = false;  ///< the code is not a valid one
};

#endif  // KRM_MESSAGES_DIAG_CUSTOMIZE_H_
