// Writes the operation log into a file, with a heading before the lines of each message.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "can_recording.h"
#include "krm/platform/platform.h"
#include "output_file.h"

namespace diagnosis_session {

/// While it lives, every line of the operation log goes into its file. There is one operation log in a process, so use
/// one of these at a time.
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

    /// Begins the lines of a message: "# TIME NAME". The time is the recording's, in UTC where it has dates.
    void BeginMessage(Microseconds time, std::string_view name);

    /// Writes out what is still buffered. Throws FileError where the file didn't take all up to now.
    void Close();
    /// Lines of messages, without the headings.
    std::size_t LineCount() const { return m_lines; }

private:
    static krm_long Write(void* context, const char* text, krm_ulong textLength, int first, int second);

    OutputFile m_file;
    std::size_t m_lines = 0;
};

/// "2024-11-07 17:20:00.048500", or the seconds alone where the recording has no dates, or "-".
std::string TimeText(Microseconds time);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_
