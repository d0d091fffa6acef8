#include "krm/messages/diag/oscilloscope.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandOscData>;
template class CKRMList<CKRMCCommandOscTimeInfo>;

void CKRMCCommandOscData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulUnitPhysId=%d", m_ulUnitPhysId);
    line("%s.m_strUnitPhys=%s", m_strUnitPhys);
    line("%s.m_ulUnitId=%d", m_ulUnitId);
    line("%s.m_strUnit=%s", m_strUnit);
    line("%s.m_uchDataType=%d", m_uchDataType);
    line("%s.m_uchDecPntCount=%d", m_uchDecPntCount);
    line("%s.m_uchUnitConvDecPntCount=%d", m_uchUnitConvDecPntCount);
    line("%s.m_ulVolId=%d", m_ulVolId);
    line("%s.m_cConversionTbl", m_cConversionTbl);
    line("%s.m_cResolutionData", m_cResolutionData);
}

void CKRMCCommandOscTimeInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushTimeId=%d", m_ushTimeId);
    line("%s.m_ulSamplingHz=%u", m_ulSamplingHz);
    line("%s.m_ulRecordTime=%u", m_ulRecordTime);
    line("%s.m_bSyncFlag=%d", m_bSyncFlag);
}

void CKRMCGetOscilloscopeListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushChList[%u]=%d", m_ushChList);
    line("[%s] m_cVolList[%u]", m_cVolList);
    line("[%s] m_cTimeList[%u]", m_cTimeList);
}
