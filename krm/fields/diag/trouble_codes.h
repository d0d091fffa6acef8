// The fields of the classes of krm/messages/diag/trouble_codes.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_TROUBLE_CODES_H_
#define KRM_FIELDS_DIAG_TROUBLE_CODES_H_

#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/diag/trouble_code.h"
#include "krm/fields/diag/words.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/trouble_codes.h"

template <>
struct krm::Fields<CKRMCCommandDtcFfdData>
    : krm::FieldList<&CKRMCCommandDtcFfdData::m_uchDTCKind, &CKRMCCommandDtcFfdData::m_ulDTCCode,
                     &CKRMCCommandDtcFfdData::m_strDTC, &CKRMCCommandDtcFfdData::m_ulDTCNameId,
                     &CKRMCCommandDtcFfdData::m_strDTCName, &CKRMCCommandDtcFfdData::m_chFFDType,
                     &CKRMCCommandDtcFfdData::m_uchFFDId, &CKRMCCommandDtcFfdData::m_strDtcFfdText,
                     &CKRMCCommandDtcFfdData::m_cFFDList, &CKRMCCommandDtcFfdData::m_uchDTCType,
                     &CKRMCCommandDtcFfdData::m_ulDTCTypeNameId, &CKRMCCommandDtcFfdData::m_strDTCTypeName,
                     &CKRMCCommandDtcFfdData::m_uchDTCStatus, &CKRMCCommandDtcFfdData::m_ulDTCStatusNameId,
                     &CKRMCCommandDtcFfdData::m_strDTCStatusName, &CKRMCCommandDtcFfdData::m_bTripTime,
                     &CKRMCCommandDtcFfdData::m_bFailTripTime, &CKRMCCommandDtcFfdData::m_cTripTime,
                     &CKRMCCommandDtcFfdData::m_bAfterIgOnTime, &CKRMCCommandDtcFfdData::m_bFailAfterIgOnTime,
                     &CKRMCCommandDtcFfdData::m_cAfterIgOnTime, &CKRMCCommandDtcFfdData::m_ulOriginalCountId,
                     &CKRMCCommandDtcFfdData::m_cClockType, &CKRMCCommandDtcFfdData::m_bStatusOfDTC,
                     &CKRMCCommandDtcFfdData::m_uchStatusOfDTC, &CKRMCCommandDtcFfdData::m_ulDTCGroupId,
                     &CKRMCCommandDtcFfdData::m_uchSubFunction> {};

template <>
struct krm::Fields<CKRMCCommandDiagDetailData>
    : krm::FieldList<&CKRMCCommandDiagDetailData::m_ulDiagDetailId, &CKRMCCommandDiagDetailData::m_ulDiagDetailCode,
                     &CKRMCCommandDiagDetailData::m_cDiagDetailDataList> {};

template <>
struct krm::Fields<CKRMCGetDTCCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetDTCCmdAdaptDataSnd::m_uchPhaseType, &CKRMCGetDTCCmdAdaptDataSnd::m_uchGetFFDType> {};

template <>
struct krm::Fields<CKRMCGetDTCCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetDTCCmdAdaptDataRcv::Data, &CKRMCGetDTCCmdAdaptDataRcv::m_bDTCType,
                     &CKRMCGetDTCCmdAdaptDataRcv::m_ulReadynessStatus> {};

template <>
struct krm::Fields<CKRMCClearDTCCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCClearDTCCmdAdaptDataRcv> : krm::FieldList<&CKRMCClearDTCCmdAdaptDataRcv::m_ulResult> {};

template <>
struct krm::Fields<CKRMCGetDiagDetailCmdAdaptDataSnd> : krm::FieldList<&CKRMCGetDiagDetailCmdAdaptDataSnd::m_uchFFDId> {
};

template <>
struct krm::Fields<CKRMCGetDiagDetailCmdAdaptDataRcv> : krm::FieldList<&CKRMCGetDiagDetailCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData>
    : krm::FieldList<&CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::EOPData::m_ulEOPData> {};

template <>
struct krm::Fields<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetDtcFfdCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetDtcFfdCmdAdaptDataRcv> : krm::FieldList<&CKRMCGetDtcFfdCmdAdaptDataRcv::Data> {};

#endif  // KRM_FIELDS_DIAG_TROUBLE_CODES_H_
