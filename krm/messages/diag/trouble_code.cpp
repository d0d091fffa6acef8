#include "krm/messages/diag/trouble_code.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandDTCData>;

void CKRMCCommandDTCData::Dump(const krm::RecordLines& line) {
    line("%s.m_uchDTCKind=%d", m_uchDTCKind);
    line("%s.m_ulDTCCode=%d", m_ulDTCCode);
    line("%s.m_strDTC=%s", m_strDTC);
    line("%s.m_ulDTCNameId=%d", m_ulDTCNameId);
    line("%s.m_strDTCName=%s", m_strDTCName);
    line("%s.m_ulDTCDivNameId=%d", m_ulDTCDivNameId);
    line("%s.m_strDTCDivName=%s", m_strDTCDivName);
    line("%s.m_chFFDType=%d", m_chFFDType);
    line("%s.m_uchFFDId=%d", m_uchFFDId);
    line("%s.m_strComment=%s", m_strComment);
    line("[%s] m_uchSSRNo[%d]=%d", m_uchSSRNo);
    line("[%s] m_uchSDRNo[%d]=%d", m_uchSDRNo);
    line("%s.m_uchDTCType=%d", m_uchDTCType);
    line("%s.m_ulDTCTypeNameId=%d", m_ulDTCTypeNameId);
    line("%s.m_strDTCTypeName=%s", m_strDTCTypeName);
    line("%s.m_ulDTCTypeToolId=%d", m_ulDTCTypeToolId);
    line("%s.m_strDTCTypeTool=%s", m_strDTCTypeTool);
    line("%s.m_uchDTCStatus=%d", m_uchDTCStatus);
    line("%s.m_ulDTCStatusNameId=%d", m_ulDTCStatusNameId);
    line("%s.m_strDTCStatusName=%s", m_strDTCStatusName);
    line("%s.m_ulDTCStatusToolId=%d", m_ulDTCStatusToolId);
    line("%s.m_strDTCStatusTool=%s", m_strDTCStatusTool);
    line("%s.m_bTripTime=%d", m_bTripTime);
    line("%s.m_bFailTripTime=%d", m_bFailTripTime);
    line("%s.m_cTripTime", m_cTripTime);
    line("%s.m_bAfterIgOnTime=%d", m_bAfterIgOnTime);
    line("%s.m_bFailAfterIgOnTime=%d", m_bFailAfterIgOnTime);
    line("%s.m_cAfterIgOnTime", m_cAfterIgOnTime);
    line("%s.m_ulOriginalCountId=%d", m_ulOriginalCountId);
    line("%s.m_cClockType", m_cClockType);
    line("%s.m_bStatusOfDTC=%d", m_bStatusOfDTC);
    line("%s.m_uchStatusOfDTC=%d", m_uchStatusOfDTC);
    line("%s.m_ulDTCGroupId=%d", m_ulDTCGroupId);
}
