// The file that a recording is written to.
#ifndef KRM_EXCHANGE_INTERNAL_LINE_FILE_H_
#define KRM_EXCHANGE_INTERNAL_LINE_FILE_H_

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "krm/exchange/recording.h"

namespace krm::recording {

/// Hands bytes to the operating system at once: no buffer of the program's own comes between. Each function returns, or
/// sets, what is wrong, for people.
class LineFile {
public:
    LineFile() = default;
    ~LineFile();
    LineFile(const LineFile&) = delete;
    LineFile& operator=(const LineFile&) = delete;

    /// Opens the file; empty when it is open. REQUIRES: none is.
    std::string Open(const std::filesystem::path& path, RecordingMode mode);
    /// How many of the bytes were written; `error` says why not all were.
    std::size_t Write(std::string_view bytes, std::string& error);

private:
    int m_descriptor = -1;
};

}  // namespace krm::recording

#endif  // KRM_EXCHANGE_INTERNAL_LINE_FILE_H_
