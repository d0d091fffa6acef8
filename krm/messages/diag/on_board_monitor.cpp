#include "krm/messages/diag/on_board_monitor.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandOnBoardMonitorInfo>;

void CKRMCCommandOnBoardMonitorInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushId=%d", m_ushId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_ulDescriptionId=%d", m_ulDescriptionId);
    line("%s.m_strDescription=%s", m_strDescription);
    line("%s.m_strScalingId=%s", m_strScalingId);
    line("%s.m_ulUnitPhysId=%d", m_ulUnitPhysId);
    line("%s.m_strUnitPhys=%s", m_strUnitPhys);
    line("%s.m_ulUnitId=%d", m_ulUnitId);
    line("%s.m_strUnit=%s", m_strUnit);
    line("%s.m_uchDataType=%d", m_uchDataType);
    line("%s.m_uchDecPntCount=%d", m_uchDecPntCount);
    line("%s.m_uchUnitConvDecPntCount=%d", m_uchUnitConvDecPntCount);
    line("%s.m_cConversionTbl", m_cConversionTbl);
    line("%s.m_cTestValData", m_cTestValData);
    line("%s.m_cTestMinData", m_cTestMinData);
    line("%s.m_cTestMaxData", m_cTestMaxData);
    line("%s.m_bResult=%d", m_bResult);
}

void CKRMCOnBoardMonitorCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchMIDList[%d]=%d", m_uchMIDList);
}

void CKRMCOnBoardMonitorCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCOnBoardMonitorListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchMIDList[%d]=%d", m_uchMIDList);
}
