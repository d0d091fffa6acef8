// Writes the operation log into a file, as people read it.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_

#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "can_recording.h"
#include "krm/framework/log_sinks.h"
#include "output_file.h"

namespace diagnosis_session {

/// While it lives, every line of the operation log goes into its file: with a time, and with a heading before each message,
/// as krm::HeadedLog has them. The time is the recording's. There is one operation log in a process, so use one of these at
/// a time, in one thread.
class OperationLogFile {
public:
    /// How such a file begins, by which it is recognised.
    static constexpr std::string_view kFirstLine = "# Operation log of diagnosis_session\n";

    /// Creates the file, or empties it. Throws FileError where that can't be done, as OutputFile.
    explicit OperationLogFile(const std::string& path);
    /// Gives the log back to its default sink.
    ~OperationLogFile();
    OperationLogFile(const OperationLogFile&) = delete;
    OperationLogFile& operator=(const OperationLogFile&) = delete;

    /// The time of the lines that follow. Before the first one, and where the recording has none, it is the begin of 1970.
    void SetTime(Microseconds time) { m_time = TimePointOf(time); }

    /// A line of the log. Throws FileError where the file doesn't take what was written up to now.
    krm_long Write(std::string_view line, int first, int second);

    /// Gives the log back and writes out what is still buffered. Throws FileError likewise.
    void Close();
    /// Lines of messages, without the headings.
    std::uint64_t LineCount() const { return m_lines; }

private:
    void PassOn();

    OutputFile m_file;
    std::chrono::system_clock::time_point m_time{};
    std::ostringstream m_text;
    std::optional<krm::HeadedLog> m_log;
    std::uint64_t m_lines = 0;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_
