#include "krm/messages/diag/memory.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandReadMemoryInfo>;

void CKRMCCommandReadMemoryInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ulAddress=0x%08X", m_ulAddress);
    line("%s.m_uchData=0x%02X", m_uchData);
    line("%s.m_ulErrorCode=%010u", m_ulErrorCode);
}

void CKRMCReadMemoryCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulAddressList[%d]=0x%08X", m_ulAddressList);
}

void CKRMCReadMemoryCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_cReadMemoryInfoList[%d]", m_cReadMemoryInfoList);
}

void CKRMCWriteMemoryCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulAddress=0x%08X", m_ulAddress);
    line("[%s] m_uchData=0x%02X", m_uchData);
}

void CKRMCWriteMemoryCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulErrorCode=%010u", m_ulErrorCode);
}
