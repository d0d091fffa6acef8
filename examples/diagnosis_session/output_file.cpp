#include "output_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace diagnosis_session {
namespace {

constexpr std::size_t kBuffered = std::size_t{256} * 1024;

}  // namespace

OutputFile::OutputFile(std::string path, std::string_view firstLine, const std::string& what)
    : m_path(std::move(path)) {
    std::error_code ignored;
    if (std::filesystem::is_directory(m_path, ignored)) {
        throw FileError(m_path + ": cannot be written: " + ReasonOf(EISDIR));
    }
    // A device has no content to lose.
    if (std::filesystem::is_regular_file(m_path, ignored) && std::filesystem::file_size(m_path, ignored) != 0) {
        std::ifstream there(m_path, std::ios::binary);
        std::string begin(firstLine.size(), '\0');
        there.read(begin.data(), static_cast<std::streamsize>(begin.size()));
        if (!there || begin != firstLine) {
            throw FileError(m_path + ": is there and is not " + what + "; it will not be overwritten");
        }
    }
    errno = 0;
    m_file.open(m_path, std::ios::binary | std::ios::trunc);
    if (!m_file) {
        throw FileError(m_path + ": cannot be written: " + ReasonOf(errno));
    }
}

void OutputFile::Write(std::string_view text) {
    m_buffer += text;
    if (m_buffer.size() >= kBuffered) {
        Flush();
    }
}

void OutputFile::Flush() {
    errno = 0;
    m_file.write(m_buffer.data(), static_cast<std::streamsize>(m_buffer.size()));
    m_buffer.clear();
    if (!m_file.flush()) {
        throw FileError(m_path + ": cannot be written: " + ReasonOf(errno));
    }
}

void OutputFile::Close() {
    Flush();
    m_file.close();
}

}  // namespace diagnosis_session
