#include "operation_log_file.h"

#include "krm/platform/platform.h"

namespace diagnosis_session {
namespace {

constexpr std::size_t kMuch = std::size_t{64} * 1024;

}  // namespace

OperationLogFile::OperationLogFile(const std::string& path) : m_file(path, kFirstLine, "an operation log") {
    m_file.Write(kFirstLine);
    m_log.emplace(m_text, [this] { return m_time; });
    KRMC_ER_SetOperationLogSink(&krm::WriteToSink<OperationLogFile>, this);
}

OperationLogFile::~OperationLogFile() {
    KRMC_ER_SetOperationLogSink(nullptr, nullptr);
}

krm_long OperationLogFile::Write(std::string_view line, int first, int second) {
    ++m_lines;
    const krm_long result = m_log->Write(line, first, second);
    if (m_text.view().size() >= kMuch) {
        PassOn();
    }
    return result;
}

/// The log writes to memory first: a stream of its own would keep to itself why a file takes no more.
void OperationLogFile::PassOn() {
    m_file.Write(m_text.view());
    m_text.str(std::string());
}

void OperationLogFile::Close() {
    KRMC_ER_SetOperationLogSink(nullptr, nullptr);
    m_log.reset();  // which may still hold lines
    PassOn();
    m_file.Close();
}

}  // namespace diagnosis_session
