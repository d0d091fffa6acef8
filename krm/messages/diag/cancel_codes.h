// Cancel codes: why a driver assistance function was switched off.
#ifndef KRM_MESSAGES_DIAG_CANCEL_CODES_H_
#define KRM_MESSAGES_DIAG_CANCEL_CODES_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/trouble_code.h"
#include "krm/platform/platform.h"

/// One cancel code with its counters. Each counter is a full freeze-frame item and counts only if its flag is set.
class KRM_API CKRMCCommandCancelCodeData : public krm::RecordOf<CKRMCCommandCancelCodeData> {
public:
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
class KRM_API CKRMCCommandCancelCodeCategoryInfo : public krm::RecordOf<CKRMCCommandCancelCodeCategoryInfo> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushCategoryId = 0;  ///< category ID
    krm_ulong m_ulCategoryNameId = 0;    ///< words ID of the category's name
    CKRMString m_strCategoryName;        ///< the category's name
    krm_ulong m_ulWarningMessageId = 0;  ///< words ID of the warning
    CKRMString m_strWarningMessage;      ///< warning
};
extern template class CKRMList<CKRMCCommandCancelCodeCategoryInfo>;

/// GetCancelCodeCategoryList asks for the categories of cancel codes.
class KRM_API CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetCancelCodeCategoryList"> {};

/// Answers with the categories.
class KRM_API CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetCancelCodeCategoryList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandCancelCodeCategoryInfo> Data;  ///< categories
};

/// GetCancelCode asks for the cancel codes of a category.
class KRM_API CKRMCGetCancelCodeCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCancelCodeCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCancelCode"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushCategoryId = 0;  ///< category ID
};

/// Answers with the cancel codes, and the trouble codes that go with them.
class KRM_API CKRMCGetCancelCodeCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCancelCodeCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCancelCode"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDTCData> m_cDTCList;   ///< trouble codes (DTC); logged under the name Data
    CKRMList<CKRMCCommandCancelCodeData> Data;  ///< cancel codes
    bool m_bProhibit = false;                   ///< prohibited; what is, is the engine's to say
};

#endif  // KRM_MESSAGES_DIAG_CANCEL_CODES_H_
