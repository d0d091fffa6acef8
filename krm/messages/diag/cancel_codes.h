// Cancel codes, by category, with their counters. Records come first, then the messages by command ID.
#ifndef KRM_MESSAGES_DIAG_CANCEL_CODES_H_
#define KRM_MESSAGES_DIAG_CANCEL_CODES_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/platform/platform.h"

/// One cancel code with its counters and temperatures. Each of these is a full freeze-frame item, which counts only
/// if its flag is set.
class KRM_API CKRMCCommandCancelCodeData : public krm::RecordOf<CKRMCCommandCancelCodeData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned char m_uchKind = 0;                   ///< kind of code; the codes are the engine's
    unsigned char m_uchStatus = 0;                 ///< status; the codes are the engine's
    krm_ulong m_ulCode = 0;                        ///< code as a number; logged in decimal
    CKRMString m_strCode;                          ///< code as displayed
    krm_ulong m_ulExplanationId = 0;               ///< words ID of the explanation
    CKRMString m_strExplanation;                   ///< text of the explanation
    bool m_bTripCount = false;                     ///< m_cTripCount is there
    CKRMCCommandFFDData m_cTripCount;              ///< trips counted
    bool m_bTimeCount = false;                     ///< m_cTimeCount is there
    CKRMCCommandFFDData m_cTimeCount;              ///< time counted
    bool m_bTripGroup = false;                     ///< m_cTripGroup is there
    CKRMCCommandFFDData m_cTripGroup;              ///< trip group
    bool m_bOccurrenceCount = false;               ///< m_cOccurrenceCount is there
    CKRMCCommandFFDData m_cOccurrenceCount;        ///< occurrences counted
    bool m_bMainUnitTemperature = false;           ///< m_cMainUnitTemperature is there
    CKRMCCommandFFDData m_cMainUnitTemperature;    ///< temperature of the main unit
    bool m_bCameraUnitTemperature = false;         ///< m_cCameraUnitTemperature is there
    CKRMCCommandFFDData m_cCameraUnitTemperature;  ///< temperature of the camera unit
};
extern template class CKRMList<CKRMCCommandCancelCodeData>;

/// A category of cancel codes and its warning.
class KRM_API CKRMCCommandCancelCodeCategoryInfo : public krm::RecordOf<CKRMCCommandCancelCodeCategoryInfo> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCategoryId = 0;  ///< ID of the category, as GetCancelCode carries it; logged unsigned
    krm_ulong m_ulCategoryNameId = 0;    ///< words ID of the category's name; logged unsigned
    CKRMString m_strCategoryName;        ///< text of the category's name
    krm_ulong m_ulWarningMessageId = 0;  ///< words ID of the warning; logged unsigned
    CKRMString m_strWarningMessage;      ///< text of the warning
};
extern template class CKRMList<CKRMCCommandCancelCodeCategoryInfo>;

/// GetCancelCodeCategoryList asks for the categories of cancel codes.
class KRM_API CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCancelCodeCategoryList"> {};

/// Answers GetCancelCodeCategoryList with the categories.
class KRM_API CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCancelCodeCategoryList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCancelCodeCategoryInfo> Data;  ///< categories with their warnings
};

/// GetCancelCode asks for the cancel codes of a category.
class KRM_API CKRMCGetCancelCodeCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCancelCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCancelCode"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushCategoryId = 0;  ///< category whose codes are asked for
};

/// Answers GetCancelCode with the cancel codes and the trouble codes that go with them.
class KRM_API CKRMCGetCancelCodeCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCancelCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCancelCode"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDTCData> m_cDTCList;   ///< trouble codes (DTCs); logged under the name Data
    CKRMList<CKRMCCommandCancelCodeData> Data;  ///< cancel codes; logged under the name Data too, counted from 0 again
    bool m_bProhibit = false;                   ///< prohibited; what is, is the engine's to say
};

#endif  // KRM_MESSAGES_DIAG_CANCEL_CODES_H_
