// Customisation of vehicle functions and of the destination, cancel codes, checks of the CAN bus and results of the
// on-board monitor.
//
// Records first, then the messages by command ID.
#ifndef KRM_MESSAGES_DIAG_CUSTOMIZE_H_
#define KRM_MESSAGES_DIAG_CUSTOMIZE_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/platform/platform.h"

/// One cancel code with its counters. Each counter is a full freeze-frame item and counts only if its flag is set.
class KRM_API CKRMCCommandCancelCodeData : public RecordOf<CKRMCCommandCancelCodeData> {
public:
    ~CKRMCCommandCancelCodeData() override;
    void Dump(const krm::RecordLines& line);

    unsigned char m_uchKind = 0;                   ///< kind of code; the codes are the engine's
    unsigned char m_uchStatus = 0;                 ///< status; the codes are the engine's
    krm_ulong m_ulCode = 0;                        ///< numeric code
    CKRMString m_strCode;                          ///< code as displayed
    krm_ulong m_ulExplanationId = 0;               ///< words ID of the explanation
    CKRMString m_strExplanation;                   ///< explanation
    bool m_bTripCount = false;                     ///< the trip count is there
    CKRMCCommandFFDData m_cTripCount;              ///< trip count
    bool m_bTimeCount = false;                     ///< the time count is there
    CKRMCCommandFFDData m_cTimeCount;              ///< time count
    bool m_bTripGroup = false;                     ///< the trip group is there
    CKRMCCommandFFDData m_cTripGroup;              ///< trip group
    bool m_bOccurrenceCount = false;               ///< the occurrence count is there
    CKRMCCommandFFDData m_cOccurrenceCount;        ///< occurrence count
    bool m_bMainUnitTemperature = false;           ///< the main unit's temperature is there
    CKRMCCommandFFDData m_cMainUnitTemperature;    ///< temperature of the main unit
    bool m_bCameraUnitTemperature = false;         ///< the camera unit's temperature is there
    CKRMCCommandFFDData m_cCameraUnitTemperature;  ///< temperature of the camera unit
};
extern template class CKRMList<CKRMCCommandCancelCodeData>;

/// A category of cancel codes and its warning.
class KRM_API CKRMCCommandCancelCodeCategoryInfo : public RecordOf<CKRMCCommandCancelCodeCategoryInfo> {
public:
    ~CKRMCCommandCancelCodeCategoryInfo() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCategoryId = 0;  ///< category ID
    krm_ulong m_ulCategoryNameId = 0;    ///< words ID of the category's name
    CKRMString m_strCategoryName;        ///< the category's name
    krm_ulong m_ulWarningMessageId = 0;  ///< words ID of the warning
    CKRMString m_strWarningMessage;      ///< warning
};
extern template class CKRMList<CKRMCCommandCancelCodeCategoryInfo>;

/// One test result of the on-board monitor, with the limits that it was held against.
class KRM_API CKRMCCommandOnBoardMonitorInfo : public RecordOf<CKRMCCommandOnBoardMonitorInfo> {
public:
    ~CKRMCCommandOnBoardMonitorInfo() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushId = 0;                   ///< test ID
    CKRMString m_strName;                         ///< test name
    krm_ulong m_ulDescriptionId = 0;              ///< words ID of the description
    CKRMString m_strDescription;                  ///< description
    CKRMString m_strScalingId;                    ///< scaling identifier
    krm_ulong m_ulUnitPhysId = 0;                 ///< words ID of the physical unit
    CKRMString m_strUnitPhys;                     ///< physical unit
    krm_ulong m_ulUnitId = 0;                     ///< words ID of the display unit
    CKRMString m_strUnit;                         ///< display unit
    unsigned char m_uchDataType = 0;              ///< data type of the value, as the converters take it
    unsigned char m_uchDecPntCount = 0;           ///< decimal places
    unsigned char m_uchUnitConvDecPntCount = 0;   ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;  ///< conversion of the value
    CKRMCCommandDispData m_cTestValData;          ///< test value
    CKRMCCommandDispData m_cTestMinData;          ///< lower limit
    CKRMCCommandDispData m_cTestMaxData;          ///< upper limit
    bool m_bResult = false;                       ///< the test was passed
};
extern template class CKRMList<CKRMCCommandOnBoardMonitorInfo>;

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

/// An ECU on the CAN bus, as a check of the bus sees it.
class KRM_API CKRMCCommandCanBusCategoryInfo {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCanBusCategoryInfo(); }

    krm_ulong m_ulEcuId = 0;                ///< ECU identifier
    krm_ulong m_ulEcuNameId = 0;            ///< words ID of the ECU's name
    CKRMString m_strEcuName;                ///< the ECU's name
    krm_ulong m_ulCategoryId = 0;           ///< category ID; the IDs are the engine's
    unsigned char m_uchHistPidSupport = 0;  ///< whether the ECU has a PID for its history; the codes are the engine's
};
extern template class CKRMList<CKRMCCommandCanBusCategoryInfo>;

/// The ECUs of one result of a check of the CAN bus.
class KRM_API CKRMCCommandCanBusCategoryListData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCanBusCategoryListData(); }

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs
};
extern template class CKRMList<CKRMCCommandCanBusCategoryListData>;

/// GetCanBusCategoryList asks for the ECUs whose communication can be checked.
class KRM_API CKRMCGetCanBusCategoryListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCanBusCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCanBusCategoryList")> {
public:
    ~CKRMCGetCanBusCategoryListCmdAdaptDataSnd() override;
};

/// Answers with those ECUs.
class KRM_API CKRMCGetCanBusCategoryListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCanBusCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCanBusCategoryList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs
};

/// GetCanBusCheckList asks to check the communication of the given ECUs.
class KRM_API CKRMCGetCanBusCheckListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCanBusCheckListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCanBusCheckList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCanBusCategoryInfo> Data;  ///< ECUs to check
};

/// Answers with what the check found.
class KRM_API CKRMCGetCanBusCheckListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCanBusCheckListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCanBusCheckList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCanBusCategoryListData> Info;  ///< current results
    CKRMList<CKRMCCommandCanBusCategoryListData> Hist;  ///< history
};

/// GetCustomizeSupportList asks what can be customised.
class KRM_API CKRMCGetCustomizeSupportListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCustomizeSupportListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCustomizeSupportList")> {
public:
    ~CKRMCGetCustomizeSupportListCmdAdaptDataSnd() override;
};

/// Answers with the names of what can be customised.
class KRM_API CKRMCGetCustomizeSupportListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCustomizeSupportListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCustomizeSupportList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCustomizeName> Data;  ///< names
};

/// GetCustomizeItemList asks for the items of one customisation.
class KRM_API CKRMCGetCustomizeItemListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCustomizeItemListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCustomizeItemList")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushCustomizeId = 0;            ///< customisation ID
    bool m_bGetCurrentValue = false;                ///< current values are asked for too
    CKRMList<krm_ulong> m_cSpecialFunctionKeyList;  ///< special function keys; logged under the name Data
    krm_ulong m_ulPersonalizeId = 0;                ///< whose settings are meant; the IDs are the engine's
};

/// Answers with the items.
class KRM_API CKRMCGetCustomizeItemListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCustomizeItemListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCustomizeItemList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCustomizeItemData> Data;  ///< items
};

/// SetCustomizeItem asks to give items new values.
class KRM_API CKRMCSetCustomizeItemCmdAdaptDataSnd
    : public MessageOf<CKRMCSetCustomizeItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SetCustomizeItem")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCustomizeItemSetData> Data;  ///< items and their new values
};

/// Answers which items could be set.
class KRM_API CKRMCSetCustomizeItemCmdAdaptDataRcv
    : public MessageOf<CKRMCSetCustomizeItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SetCustomizeItem")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCustomizeItemResult> Data;  ///< a result per item
};

/// GetCustomizeDestination asks for the destination that the vehicle is set to.
class KRM_API CKRMCGetCustomizeDestinationCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCustomizeDestination")> {
public:
    ~CKRMCGetCustomizeDestinationCmdAdaptDataSnd() override;
};

/// Answers with the destination.
class KRM_API CKRMCGetCustomizeDestinationCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCustomizeDestination")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bEnable = false;               ///< the destination can be set
    krm_ulong m_ulDestinationDispId = 0;  ///< words ID of the text shown for it
    CKRMString m_strDestinationDisp;      ///< text shown for it
};

/// SetCustomizeDestination asks to set the destination.
class KRM_API CKRMCSetCustomizeDestinationCmdAdaptDataSnd
    : public MessageOf<CKRMCSetCustomizeDestinationCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SetCustomizeDestination")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMString m_strDestinationCode;  ///< destination code
};

/// Answers whether the code was accepted.
class KRM_API CKRMCSetCustomizeDestinationCmdAdaptDataRcv
    : public MessageOf<CKRMCSetCustomizeDestinationCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SetCustomizeDestination")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bInvalidCode = false;  ///< the code is not a valid one
};

/// OnBoardMonitor asks for the test results of on-board monitors.
class KRM_API CKRMCOnBoardMonitorCmdAdaptDataSnd
    : public MessageOf<CKRMCOnBoardMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "OnBoardMonitor")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<unsigned char> m_uchMIDList;  ///< monitor IDs (MID) to run
};

/// Answers with the results.
class KRM_API CKRMCOnBoardMonitorCmdAdaptDataRcv
    : public MessageOf<CKRMCOnBoardMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "OnBoardMonitor")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandOnBoardMonitorInfo> Data;  ///< results
};

/// GetCancelCodeCategoryList asks for the categories of cancel codes.
class KRM_API CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCancelCodeCategoryList")> {
public:
    ~CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd() override;
};

/// Answers with the categories.
class KRM_API CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCancelCodeCategoryList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCancelCodeCategoryInfo> Data;  ///< categories
};

/// GetCancelCode asks for the cancel codes of a category.
class KRM_API CKRMCGetCancelCodeCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCancelCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCancelCode")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushCategoryId = 0;  ///< category ID
};

/// Answers with the cancel codes, and the trouble codes that go with them.
class KRM_API CKRMCGetCancelCodeCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCancelCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCancelCode")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandDTCData> m_cDTCList;   ///< trouble codes (DTC); logged under the name Data
    CKRMList<CKRMCCommandCancelCodeData> Data;  ///< cancel codes
    bool m_bProhibit = false;                   ///< prohibited; what is, is the engine's to say
};

/// OnBoardMonitorList asks which on-board monitors an ECU has.
class KRM_API CKRMCOnBoardMonitorListCmdAdaptDataSnd
    : public MessageOf<CKRMCOnBoardMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "OnBoardMonitorList")> {
public:
    ~CKRMCOnBoardMonitorListCmdAdaptDataSnd() override;
};

/// Answers with the monitors.
class KRM_API CKRMCOnBoardMonitorListCmdAdaptDataRcv
    : public MessageOf<CKRMCOnBoardMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "OnBoardMonitorList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<unsigned char> m_uchMIDList;  ///< supported monitor IDs (MID)
};

#endif  // KRM_MESSAGES_DIAG_CUSTOMIZE_H_
