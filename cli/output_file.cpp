#include "cli/output_file.h"

#include <cerrno>
#include <system_error>

#include "cli/byte_source.h"

namespace krm_cli {

OutputFile::OutputFile(const std::string& file, std::string_view replacesOnly, bool replacesAll,
                       const Surroundings& surroundings)
    : m_surroundings(surroundings), m_file(file), m_part(file) {
    std::error_code ignored;
    if (file.empty() || std::filesystem::is_directory(m_file, ignored)) {
        throw Failure(file + ": cannot be written: " + ReasonOf(file.empty() ? ENOENT : EISDIR));
    }
    if (std::filesystem::exists(m_file, ignored) && !std::filesystem::is_regular_file(m_file, ignored)) {
        m_part = m_file;  // a device: there is nothing to lose, and no other name
    } else {
        m_part += ".part";
        if (!replacesAll && std::filesystem::exists(m_file, ignored) &&
            std::filesystem::file_size(m_file, ignored) != 0) {
            std::string begin(replacesOnly.size(), '\0');
            std::ifstream there(m_file, std::ios::binary);
            there.read(begin.data(), static_cast<std::streamsize>(begin.size()));
            if (replacesOnly.empty() || !there || begin != replacesOnly) {
                throw Failure(file + ": is there already and will not be overwritten");
            }
        }
    }
    errno = 0;
    m_out.open(m_part, std::ios::binary | std::ios::trunc);
    if (!m_out) {
        Fail(errno);
    }
}

OutputFile::~OutputFile() {
    if (!m_isComplete) {
        m_out.close();
        std::error_code ignored;
        if (m_part != m_file) {
            std::filesystem::remove(m_part, ignored);
        }
    }
}

void OutputFile::Fail(int error) {
    throw Failure(m_file.string() + ": cannot be written: " + ReasonOf(error));
}

void OutputFile::Write(std::string_view text) {
    m_surroundings.GoOn();
    errno = 0;
    if (!m_out.write(text.data(), static_cast<std::streamsize>(text.size()))) {
        Fail(errno);
    }
}

void OutputFile::Complete() {
    m_surroundings.GoOn();
    errno = 0;
    m_out.close();
    if (!m_out) {
        Fail(errno);
    }
    if (m_part != m_file) {
        std::error_code failed;
        std::filesystem::rename(m_part, m_file, failed);
        if (failed) {
            Fail(failed.default_error_condition().value());
        }
    }
    m_isComplete = true;
}

}  // namespace krm_cli
