// The fields of the classes of krm/messages/diag/trouble_code.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_TROUBLE_CODE_H_
#define KRM_FIELDS_DIAG_TROUBLE_CODE_H_

#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/trouble_code.h"

template <>
struct krm::Fields<CKRMCCommandDTCData>
    : krm::FieldList<
          &CKRMCCommandDTCData::m_uchDTCKind, &CKRMCCommandDTCData::m_ulDTCCode, &CKRMCCommandDTCData::m_strDTC,
          &CKRMCCommandDTCData::m_ulDTCNameId, &CKRMCCommandDTCData::m_strDTCName,
          &CKRMCCommandDTCData::m_ulDTCDivNameId, &CKRMCCommandDTCData::m_strDTCDivName,
          &CKRMCCommandDTCData::m_chFFDType, &CKRMCCommandDTCData::m_uchFFDId, &CKRMCCommandDTCData::m_strComment,
          &CKRMCCommandDTCData::m_uchSSRNo, &CKRMCCommandDTCData::m_uchSDRNo, &CKRMCCommandDTCData::m_uchDTCType,
          &CKRMCCommandDTCData::m_ulDTCTypeNameId, &CKRMCCommandDTCData::m_strDTCTypeName,
          &CKRMCCommandDTCData::m_ulDTCTypeToolId, &CKRMCCommandDTCData::m_strDTCTypeTool,
          &CKRMCCommandDTCData::m_uchDTCStatus, &CKRMCCommandDTCData::m_ulDTCStatusNameId,
          &CKRMCCommandDTCData::m_strDTCStatusName, &CKRMCCommandDTCData::m_ulDTCStatusToolId,
          &CKRMCCommandDTCData::m_strDTCStatusTool, &CKRMCCommandDTCData::m_bTripTime,
          &CKRMCCommandDTCData::m_bFailTripTime, &CKRMCCommandDTCData::m_cTripTime,
          &CKRMCCommandDTCData::m_bAfterIgOnTime, &CKRMCCommandDTCData::m_bFailAfterIgOnTime,
          &CKRMCCommandDTCData::m_cAfterIgOnTime, &CKRMCCommandDTCData::m_ulOriginalCountId,
          &CKRMCCommandDTCData::m_cClockType, &CKRMCCommandDTCData::m_bStatusOfDTC,
          &CKRMCCommandDTCData::m_uchStatusOfDTC, &CKRMCCommandDTCData::m_ulDTCGroupId> {};

#endif  // KRM_FIELDS_DIAG_TROUBLE_CODE_H_
