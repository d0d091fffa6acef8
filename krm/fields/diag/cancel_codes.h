// The fields of the classes of krm/messages/diag/cancel_codes.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_CANCEL_CODES_H_
#define KRM_FIELDS_DIAG_CANCEL_CODES_H_

#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/diag/trouble_code.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/cancel_codes.h"

template <>
struct krm::Fields<CKRMCCommandCancelCodeData>
    : krm::FieldList<&CKRMCCommandCancelCodeData::m_uchKind, &CKRMCCommandCancelCodeData::m_uchStatus,
                     &CKRMCCommandCancelCodeData::m_ulCode, &CKRMCCommandCancelCodeData::m_strCode,
                     &CKRMCCommandCancelCodeData::m_ulExplanationId, &CKRMCCommandCancelCodeData::m_strExplanation,
                     &CKRMCCommandCancelCodeData::m_bTripCount, &CKRMCCommandCancelCodeData::m_cTripCount,
                     &CKRMCCommandCancelCodeData::m_bTimeCount, &CKRMCCommandCancelCodeData::m_cTimeCount,
                     &CKRMCCommandCancelCodeData::m_bTripGroup, &CKRMCCommandCancelCodeData::m_cTripGroup,
                     &CKRMCCommandCancelCodeData::m_bOccurrenceCount, &CKRMCCommandCancelCodeData::m_cOccurrenceCount,
                     &CKRMCCommandCancelCodeData::m_bMainUnitTemperature,
                     &CKRMCCommandCancelCodeData::m_cMainUnitTemperature,
                     &CKRMCCommandCancelCodeData::m_bCameraUnitTemperature,
                     &CKRMCCommandCancelCodeData::m_cCameraUnitTemperature> {};

template <>
struct krm::Fields<CKRMCCommandCancelCodeCategoryInfo>
    : krm::FieldList<&CKRMCCommandCancelCodeCategoryInfo::m_ushCategoryId,
                     &CKRMCCommandCancelCodeCategoryInfo::m_ulCategoryNameId,
                     &CKRMCCommandCancelCodeCategoryInfo::m_strCategoryName,
                     &CKRMCCommandCancelCodeCategoryInfo::m_ulWarningMessageId,
                     &CKRMCCommandCancelCodeCategoryInfo::m_strWarningMessage> {};

template <>
struct krm::Fields<CKRMCGetCancelCodeCategoryListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetCancelCodeCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetCancelCodeCmdAdaptDataSnd::m_ushCategoryId> {};

template <>
struct krm::Fields<CKRMCGetCancelCodeCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCancelCodeCmdAdaptDataRcv::m_cDTCList, &CKRMCGetCancelCodeCmdAdaptDataRcv::Data,
                     &CKRMCGetCancelCodeCmdAdaptDataRcv::m_bProhibit> {};

#endif  // KRM_FIELDS_DIAG_CANCEL_CODES_H_
