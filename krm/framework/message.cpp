#include "krm/framework/message.h"

#include <cstdarg>

#include "krm/framework/dump.h"

namespace krm {

krm_long LoggedMessage::ER_WriteOperationLogFormat(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const krm_long result = WriteOperationLogLine(format, arguments);
    va_end(arguments);
    return result;
}

void LoggedMessage::DumpTypeAndId(const char* logName) {
    const MessageLines line(*this, logName);
    line("[%s] m_dwCommandType=%d", GetCommandType());
    line("[%s] m_dwCommandID=%d", GetCommandID());
}

void LoggedMessage::DumpUnder(const char* logName, void (*dump)(LoggedMessage& message, const MessageLines& line)) {
    dump(*this, MessageLines(*this, logName));
}

}  // namespace krm

void CKRMCBaseCmdAdaptDataSnd::Clear() {
    CKRMCBaseCmdAdaptData::Clear();
    m_ulEcuId = 0;
}

krm_long CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog() {
    CKRMCBaseCmdAdaptData::ErrWriteOperationLog();
    const krm::MessageLines line(*this, "CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulEcuId=%d", m_ulEcuId);
    return 0;
}

void CKRMCBaseCmdAdaptDataRcv::Clear() {
    CKRMCBaseCmdAdaptData::Clear();
    m_bNotSupport = false;
}

krm_long CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog() {
    CKRMCBaseCmdAdaptData::ErrWriteOperationLog();
    const krm::MessageLines line(*this, "CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bNotSupport=%d", m_bNotSupport);
    return 0;
}

void CKRMCBaseVdcAdaptDataSnd::Clear() {
    CKRMCBaseVdcAdaptData::Clear();
    m_ulVdcSndValue = 0;
}

void CKRMCBaseDsdiAdaptDataSnd::Clear() {
    CKRMCBaseDsdiAdaptData::Clear();
    m_ulEcuId = 0;
}

krm_long CKRMCBaseDsdiAdaptDataSnd::ErrWriteOperationLog() {
    CKRMCBaseDsdiAdaptData::ErrWriteOperationLog();
    const krm::MessageLines line(*this, "CKRMCBaseDsdiAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulEcuId=%d", m_ulEcuId);
    return 0;
}
