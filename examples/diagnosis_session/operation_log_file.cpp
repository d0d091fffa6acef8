#include "operation_log_file.h"

namespace diagnosis_session {

OperationLogFile::OperationLogFile(const std::string& path) : m_file(path, std::ios::binary) {
    KRMC_ER_SetOperationLogSink(&Write, this);
}

OperationLogFile::~OperationLogFile() {
    KRMC_ER_SetOperationLogSink(nullptr, nullptr);
}

bool OperationLogFile::Flush() {
    m_file.flush();
    return IsGood();
}

krm_long OperationLogFile::Write(void* context, const char* text, krm_ulong textLength, int, int) {
    auto& self = *static_cast<OperationLogFile*>(context);
    self.m_file.write(text, static_cast<std::streamsize>(textLength)).put('\n');
    ++self.m_lines;
    return self.IsGood() ? 0 : 1;
}

}  // namespace diagnosis_session
