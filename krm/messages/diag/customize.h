// Customisation of vehicle functions and of the destination.
#ifndef KRM_MESSAGES_DIAG_CUSTOMIZE_H_
#define KRM_MESSAGES_DIAG_CUSTOMIZE_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

/// A group of functions that can be customised.
class KRM_API CKRMCCommandCustomizeName {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeName(); }

    unsigned short m_ushCustomizeId = 0;  ///< customisation ID
    krm_ulong m_ulCustomizeNameId = 0;    ///< words ID of the name
    CKRMString m_strCustomizeName;        ///< name
};
extern template class CKRMList<CKRMCCommandCustomizeName>;

/// One value that a customisable item can take. A value travels twice, here and in all customisation records: as a
/// number, and as a string of bytes for what 16 bits can't hold.
class KRM_API CKRMCCommandCustomizeItemValue {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeItemValue(); }

    CKRMString m_strDispName;                         ///< text shown for the value
    krm_ulong m_ulDispNameId = 0;                     ///< words ID of that text
    unsigned short m_ushCustomizeValue = 0;           ///< value as a number
    CKRMList<unsigned char> m_uchCustomizeValueList;  ///< value as bytes
};
extern template class CKRMList<CKRMCCommandCustomizeItemValue>;

/// One customisable item: its current value and the values that it can take.
class KRM_API CKRMCCommandCustomizeItemData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeItemData(); }

    unsigned short m_ushCustomizeItemId = 0;                         ///< item ID
    krm_ulong m_ulCustomizeItemNameId = 0;                           ///< words ID of the name
    CKRMString m_strCustomizeItemName;                               ///< name
    bool m_bCurrentValue = false;                                    ///< the current value is there
    unsigned short m_ushCurrentValue = 0;                            ///< current value as a number
    CKRMList<unsigned char> m_uchCurrentValueList;                   ///< current value as bytes
    krm_ulong m_ulInfoId = 0;                                        ///< words ID of the information text
    krm_ulong m_ulPersonalizeId = 0;                                 ///< whose setting it is; the IDs are the engine's
    CKRMList<CKRMCCommandCustomizeItemValue> m_cCustomizeValueList;  ///< possible values
};
extern template class CKRMList<CKRMCCommandCustomizeItemData>;

/// One item to set, and its new value.
class KRM_API CKRMCCommandCustomizeItemSetData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeItemSetData(); }

    unsigned short m_ushCustomizeId = 0;              ///< customisation ID
    unsigned short m_ushCustomizeItemId = 0;          ///< item ID
    unsigned short m_ushCustomizeValue = 0;           ///< value as a number
    CKRMList<unsigned char> m_uchCustomizeValueList;  ///< value as bytes
};
extern template class CKRMList<CKRMCCommandCustomizeItemSetData>;

/// Whether an item could be set.
class KRM_API CKRMCCommandCustomizeItemResult {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomizeItemResult(); }

    unsigned short m_ushCustomizeId = 0;      ///< customisation ID
    unsigned short m_ushCustomizeItemId = 0;  ///< item ID
    bool m_bSuccess = false;                  ///< the item was set
};
extern template class CKRMList<CKRMCCommandCustomizeItemResult>;

/// GetCustomizeSupportList asks what can be customised.
class KRM_API CKRMCGetCustomizeSupportListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCustomizeSupportListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCustomizeSupportList"> {};

/// Answers with the names of what can be customised.
class KRM_API CKRMCGetCustomizeSupportListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCustomizeSupportListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCustomizeSupportList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomizeName> Data;  ///< names
};

/// GetCustomizeItemList asks for the items of one customisation.
class KRM_API CKRMCGetCustomizeItemListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCustomizeItemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCustomizeItemList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushCustomizeId = 0;            ///< customisation ID
    bool m_bGetCurrentValue = false;                ///< current values are asked for too
    CKRMList<krm_ulong> m_cSpecialFunctionKeyList;  ///< special function keys; logged under the name Data
    krm_ulong m_ulPersonalizeId = 0;                ///< whose settings are meant; the IDs are the engine's
};

/// Answers with the items.
class KRM_API CKRMCGetCustomizeItemListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCustomizeItemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCustomizeItemList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomizeItemData> Data;  ///< items
};

/// SetCustomizeItem asks to give items new values.
class KRM_API CKRMCSetCustomizeItemCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSetCustomizeItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "SetCustomizeItem"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomizeItemSetData> Data;  ///< items and their new values
};

/// Answers which items could be set.
class KRM_API CKRMCSetCustomizeItemCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSetCustomizeItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "SetCustomizeItem"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCustomizeItemResult> Data;  ///< a result per item
};

/// GetCustomizeDestination asks for the destination that the vehicle is set to.
class KRM_API CKRMCGetCustomizeDestinationCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCustomizeDestination"> {};

/// Answers with the destination.
class KRM_API CKRMCGetCustomizeDestinationCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCustomizeDestination"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bEnable = false;               ///< the destination can be set
    krm_ulong m_ulDestinationDispId = 0;  ///< words ID of the text shown for it
    CKRMString m_strDestinationDisp;      ///< text shown for it
};

/// SetCustomizeDestination asks to set the destination.
class KRM_API CKRMCSetCustomizeDestinationCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "SetCustomizeDestination"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMString m_strDestinationCode;  ///< destination code
};

/// Answers whether the code was accepted.
class KRM_API CKRMCSetCustomizeDestinationCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "SetCustomizeDestination"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bInvalidCode = false;  ///< the code is not a valid one
};

#endif  // KRM_MESSAGES_DIAG_CUSTOMIZE_H_
