#include "krm/framework/message.h"

#include <cstdarg>

#include "krm/framework/dump.h"

namespace {

/// What every family's base does when it is cleared: the imported base's reset, then the family's command type.
void ClearAs(krm::CommandFamily family, CKRMBaseAdaptationData& message) {
    message.CKRMBaseAdaptationData::Clear();
    message.SetCommandType(static_cast<krm_ulong>(family));
}

/// The two lines that every family's base writes.
template <class FamilyBase>
void DumpTypeAndId(FamilyBase& message, const char* logName) {
    const krm::DumpLines<FamilyBase, 0> line(message, logName);
    line("[%s] m_dwCommandType=%d", message.GetCommandType());
    line("[%s] m_dwCommandID=%d", message.GetCommandID());
}

}  // namespace

CKRMCBaseCmdAdaptData::CKRMCBaseCmdAdaptData() {
    ClearAs(kFamily, *this);
}

CKRMCBaseCmdAdaptData::CKRMCBaseCmdAdaptData(krm_ulong commandId) : CKRMCBaseCmdAdaptData() {
    SetCommandID(commandId);
}

void CKRMCBaseCmdAdaptData::Clear() {
    ClearAs(kFamily, *this);
}

krm_long CKRMCBaseCmdAdaptData::ErrWriteOperationLog() {
    DumpTypeAndId(*this, "CKRMCBaseCmdAdaptData::ErrWriteOperationLog");
    return 0;
}

krm_long CKRMCBaseCmdAdaptData::ER_WriteOperationLogFormat(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const krm_long result = krm::WriteOperationLogLine(format, arguments);
    va_end(arguments);
    return result;
}

CKRMCBaseCmdAdaptDataSnd::CKRMCBaseCmdAdaptDataSnd() = default;

CKRMCBaseCmdAdaptDataSnd::CKRMCBaseCmdAdaptDataSnd(krm_ulong commandId) : CKRMCBaseCmdAdaptData(commandId) {}

void CKRMCBaseCmdAdaptDataSnd::Clear() {
    CKRMCBaseCmdAdaptData::Clear();
    m_ulEcuId = 0;
}

krm_long CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump<CKRMCBaseCmdAdaptDataSnd, CKRMCBaseCmdAdaptData>(
        *this, "CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulEcuId=%d", m_ulEcuId);
    return 0;
}

CKRMCBaseCmdAdaptDataRcv::CKRMCBaseCmdAdaptDataRcv() = default;

CKRMCBaseCmdAdaptDataRcv::CKRMCBaseCmdAdaptDataRcv(krm_ulong commandId) : CKRMCBaseCmdAdaptData(commandId) {}

void CKRMCBaseCmdAdaptDataRcv::Clear() {
    CKRMCBaseCmdAdaptData::Clear();
    m_bNotSupport = false;
}

krm_long CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump<CKRMCBaseCmdAdaptDataRcv, CKRMCBaseCmdAdaptData>(
        *this, "CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bNotSupport=%d", m_bNotSupport);
    return 0;
}

CKRMCBaseVdcAdaptData::CKRMCBaseVdcAdaptData() {
    ClearAs(kFamily, *this);
}

CKRMCBaseVdcAdaptData::CKRMCBaseVdcAdaptData(krm_ulong commandId) : CKRMCBaseVdcAdaptData() {
    SetCommandID(commandId);
}

void CKRMCBaseVdcAdaptData::Clear() {
    ClearAs(kFamily, *this);
}

CKRMCBaseVdcAdaptDataSnd::CKRMCBaseVdcAdaptDataSnd() = default;

CKRMCBaseVdcAdaptDataSnd::CKRMCBaseVdcAdaptDataSnd(krm_ulong commandId) : CKRMCBaseVdcAdaptData(commandId) {}

void CKRMCBaseVdcAdaptDataSnd::Clear() {
    CKRMCBaseVdcAdaptData::Clear();
    m_ulVdcSndValue = 0;
}

CKRMCBaseVdcAdaptDataRcv::CKRMCBaseVdcAdaptDataRcv() = default;

CKRMCBaseVdcAdaptDataRcv::CKRMCBaseVdcAdaptDataRcv(krm_ulong commandId) : CKRMCBaseVdcAdaptData(commandId) {}

void CKRMCBaseVdcAdaptDataRcv::Clear() {
    CKRMCBaseVdcAdaptData::Clear();
}

CKRMCBaseDsdiAdaptData::CKRMCBaseDsdiAdaptData() {
    ClearAs(kFamily, *this);
}

CKRMCBaseDsdiAdaptData::CKRMCBaseDsdiAdaptData(krm_ulong commandId) : CKRMCBaseDsdiAdaptData() {
    SetCommandID(commandId);
}

void CKRMCBaseDsdiAdaptData::Clear() {
    ClearAs(kFamily, *this);
}

krm_long CKRMCBaseDsdiAdaptData::ErrWriteOperationLog() {
    DumpTypeAndId(*this, "CKRMCBaseDsdiAdaptData::ErrWriteOperationLog");
    return 0;
}

krm_long CKRMCBaseDsdiAdaptData::ER_WriteOperationLogFormat(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const krm_long result = krm::WriteOperationLogLine(format, arguments);
    va_end(arguments);
    return result;
}

CKRMCBaseDsdiAdaptDataSnd::CKRMCBaseDsdiAdaptDataSnd() = default;

CKRMCBaseDsdiAdaptDataSnd::CKRMCBaseDsdiAdaptDataSnd(krm_ulong commandId) : CKRMCBaseDsdiAdaptData(commandId) {}

void CKRMCBaseDsdiAdaptDataSnd::Clear() {
    CKRMCBaseDsdiAdaptData::Clear();
    m_ulEcuId = 0;
}

krm_long CKRMCBaseDsdiAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump<CKRMCBaseDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptData>(
        *this, "CKRMCBaseDsdiAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulEcuId=%d", m_ulEcuId);
    return 0;
}

CKRMCBaseDsdiAdaptDataRcv::CKRMCBaseDsdiAdaptDataRcv() = default;

CKRMCBaseDsdiAdaptDataRcv::CKRMCBaseDsdiAdaptDataRcv(krm_ulong commandId) : CKRMCBaseDsdiAdaptData(commandId) {}

void CKRMCBaseDsdiAdaptDataRcv::Clear() {
    CKRMCBaseDsdiAdaptData::Clear();
}

CKRMCBaseUccAdaptData::CKRMCBaseUccAdaptData() {
    ClearAs(kFamily, *this);
}

CKRMCBaseUccAdaptData::CKRMCBaseUccAdaptData(krm_ulong commandId) : CKRMCBaseUccAdaptData() {
    SetCommandID(commandId);
}

void CKRMCBaseUccAdaptData::Clear() {
    ClearAs(kFamily, *this);
}

krm_long CKRMCBaseUccAdaptData::ErrWriteOperationLog() {
    DumpTypeAndId(*this, "CKRMCBaseUccAdaptData::ErrWriteOperationLog");
    return 0;
}

krm_long CKRMCBaseUccAdaptData::ER_WriteOperationLogFormat(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const krm_long result = krm::WriteOperationLogLine(format, arguments);
    va_end(arguments);
    return result;
}

CKRMCBaseUccAdaptDataSnd::CKRMCBaseUccAdaptDataSnd() = default;

CKRMCBaseUccAdaptDataSnd::CKRMCBaseUccAdaptDataSnd(krm_ulong commandId) : CKRMCBaseUccAdaptData(commandId) {}

void CKRMCBaseUccAdaptDataSnd::Clear() {
    CKRMCBaseUccAdaptData::Clear();
}

CKRMCBaseUccAdaptDataRcv::CKRMCBaseUccAdaptDataRcv() = default;

CKRMCBaseUccAdaptDataRcv::CKRMCBaseUccAdaptDataRcv(krm_ulong commandId) : CKRMCBaseUccAdaptData(commandId) {}

void CKRMCBaseUccAdaptDataRcv::Clear() {
    CKRMCBaseUccAdaptData::Clear();
}

// The words-table family starts without a Clear: the imported base's own state, then the type.
CKRMCBaseDwtAdaptData::CKRMCBaseDwtAdaptData() {
    SetCommandType(static_cast<krm_ulong>(kFamily));
}

CKRMCBaseDwtAdaptData::CKRMCBaseDwtAdaptData(krm_ulong commandId) {
    SetCommandID(commandId);
    SetCommandType(static_cast<krm_ulong>(kFamily));
}

void CKRMCBaseDwtAdaptData::Clear() {
    ClearAs(kFamily, *this);
}

krm_long CKRMCBaseDwtAdaptData::ErrWriteOperationLog() {
    DumpTypeAndId(*this, "CKRMCBaseDwtAdaptData::ErrWriteOperationLog");
    return 0;
}

krm_long CKRMCBaseDwtAdaptData::ER_WriteOperationLogFormat(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const krm_long result = krm::WriteOperationLogLine(format, arguments);
    va_end(arguments);
    return result;
}

CKRMCBaseDwtAdaptDataSnd::CKRMCBaseDwtAdaptDataSnd() = default;

CKRMCBaseDwtAdaptDataSnd::CKRMCBaseDwtAdaptDataSnd(krm_ulong commandId) : CKRMCBaseDwtAdaptData(commandId) {}

void CKRMCBaseDwtAdaptDataSnd::Clear() {
    CKRMCBaseDwtAdaptData::Clear();
}

CKRMCBaseDwtAdaptDataRcv::CKRMCBaseDwtAdaptDataRcv() = default;

CKRMCBaseDwtAdaptDataRcv::CKRMCBaseDwtAdaptDataRcv(krm_ulong commandId) : CKRMCBaseDwtAdaptData(commandId) {}

void CKRMCBaseDwtAdaptDataRcv::Clear() {
    CKRMCBaseDwtAdaptData::Clear();
}
