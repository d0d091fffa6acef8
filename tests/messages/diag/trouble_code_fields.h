// The fields of the classes of krm/messages/diag/trouble_code.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_TROUBLE_CODE_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_TROUBLE_CODE_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/trouble_code.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandDTCData& it) {
    return std::tie(it.m_uchDTCKind, it.m_ulDTCCode, it.m_strDTC, it.m_ulDTCNameId, it.m_strDTCName,
                    it.m_ulDTCDivNameId, it.m_strDTCDivName, it.m_chFFDType, it.m_uchFFDId, it.m_strComment,
                    it.m_uchSSRNo, it.m_uchSDRNo, it.m_uchDTCType, it.m_ulDTCTypeNameId, it.m_strDTCTypeName,
                    it.m_ulDTCTypeToolId, it.m_strDTCTypeTool, it.m_uchDTCStatus, it.m_ulDTCStatusNameId,
                    it.m_strDTCStatusName, it.m_ulDTCStatusToolId, it.m_strDTCStatusTool, it.m_bTripTime,
                    it.m_bFailTripTime, it.m_cTripTime, it.m_bAfterIgOnTime, it.m_bFailAfterIgOnTime,
                    it.m_cAfterIgOnTime, it.m_ulOriginalCountId, it.m_cClockType, it.m_bStatusOfDTC,
                    it.m_uchStatusOfDTC, it.m_ulDTCGroupId);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_TROUBLE_CODE_FIELDS_H_
