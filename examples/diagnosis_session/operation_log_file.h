// Sends the operation log into a file.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_

#include <cstddef>
#include <fstream>
#include <string>

#include "krm/platform/platform.h"

namespace diagnosis_session {

/// While it lives, every line of the operation log goes into its file. There is one operation log in a process, so use
/// one of these at a time.
class OperationLogFile {
public:
    /// Creates the file, or empties it.
    explicit OperationLogFile(const std::string& path);
    /// Gives the log back to its default sink.
    ~OperationLogFile();
    OperationLogFile(const OperationLogFile&) = delete;
    OperationLogFile& operator=(const OperationLogFile&) = delete;

    /// Whether the file could be opened and took all lines up to now.
    bool IsGood() const { return m_file.good(); }
    /// Writes out what is still buffered; then as IsGood.
    bool Flush();
    std::size_t LineCount() const { return m_lines; }

private:
    static krm_long Write(void* context, const char* text, krm_ulong textLength, int first, int second);

    std::ofstream m_file;
    std::size_t m_lines = 0;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_OPERATION_LOG_FILE_H_
