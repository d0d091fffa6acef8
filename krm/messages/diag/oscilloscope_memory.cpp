#include "krm/messages/diag/oscilloscope_memory.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandOscInfo>;
template class CKRMList<CKRMCCommandOscData>;
template class CKRMList<CKRMCCommandOscTimeInfo>;
template class CKRMList<CKRMCCommandReadMemoryInfo>;
template class CKRMList<CKRMCCommandWriteData>;

CKRMCCommandOscInfo::~CKRMCCommandOscInfo() = default;

void CKRMCCommandOscInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushChId=%d", m_ushChId);
    line("%s.m_ulVolId=%d", m_ulVolId);
}

CKRMCCommandOscData::~CKRMCCommandOscData() = default;

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

CKRMCCommandOscTimeInfo::~CKRMCCommandOscTimeInfo() = default;

void CKRMCCommandOscTimeInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushTimeId=%d", m_ushTimeId);
    line("%s.m_ulSamplingHz=%u", m_ulSamplingHz);
    line("%s.m_ulRecordTime=%u", m_ulRecordTime);
    line("%s.m_bSyncFlag=%d", m_bSyncFlag);
}

CKRMCCommandReadMemoryInfo::~CKRMCCommandReadMemoryInfo() = default;

void CKRMCCommandReadMemoryInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ulAddress=0x%08X", m_ulAddress);
    line("%s.m_uchData=0x%02X", m_uchData);
    line("%s.m_ulErrorCode=%010u", m_ulErrorCode);
}

CKRMCCommandWriteData::~CKRMCCommandWriteData() = default;

void CKRMCCommandWriteData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushId=%d", m_ushId);
    line("%s.m_uchType=%d", m_uchType);
    line("%s.m_ulData=%d", m_ulData);
}

CKRMCGetOscilloscopeListCmdAdaptDataSnd::~CKRMCGetOscilloscopeListCmdAdaptDataSnd() = default;

krm_long CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetOscilloscopeListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_ushChList[%u]=%d", m_ushChList);
    line("[%s] m_cVolList[%u]", m_cVolList);
    line("[%s] m_cTimeList[%u]", m_cTimeList);
    return 0;
}

krm_long CKRMCReadMemoryCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCReadMemoryCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulAddressList[%d]=0x%08X", m_ulAddressList);
    return 0;
}

krm_long CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCReadMemoryCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_cReadMemoryInfoList[%d]", m_cReadMemoryInfoList);
    return 0;
}

krm_long CKRMCWriteMemoryCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCWriteMemoryCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulAddress=0x%08X", m_ulAddress);
    line("[%s] m_uchData=0x%02X", m_uchData);
    return 0;
}

krm_long CKRMCWriteMemoryCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCWriteMemoryCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_ulErrorCode=%010u", m_ulErrorCode);
    return 0;
}
