#include "cli/byte_source.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include "cli/temporary_file.h"

namespace krm_cli {

std::string ReasonOf(int error) {
    // The C library's texts follow the user's locale and differ from system to system.
    switch (error) {
        case ENOENT:
            return "no such file";
        case EACCES:
        case EPERM:
            return "permission denied";
        case EISDIR:
            return "is a directory";
        case ENOTDIR:
            return "no such folder";
        case EEXIST:
            return "is there already";
        case ENOSPC:
            return "no space left";
        case EPIPE:
            return "the pipe is closed";
        case EROFS:
            return "the file system is read-only";
        case EMFILE:
        case ENFILE:
            return "too many open files";
        default:
            return "error " + std::to_string(error);
    }
}

void CheckStandardInput(const std::string& file1, const std::string& file2) {
    if (file1 == "-" && file2 == "-") {
        throw Failure("standard input can be one of both alone");
    }
}

std::FILE* OpenTemporary() {
#ifdef _WIN32
    // Its tmpfile creates files in the drive's root, where users mostly may not.
    char* const name = _tempnam(nullptr, "krm");
    std::FILE* const file = name == nullptr ? nullptr : std::fopen(name, "w+bTD");
    std::free(name);
    return file;
#else
    return std::tmpfile();
#endif
}

ByteSource::ByteSource(const std::string& file, const Surroundings& surroundings) : m_surroundings(surroundings) {
    if (file == "-") {
        m_name = "standard input";
        m_file.reset(stdin);
        m_canRewind = false;
#ifdef _WIN32
        _setmode(_fileno(stdin), _O_BINARY);
#endif
    } else {
        m_name = file;
        std::error_code ignored;
        const bool isFolder = std::filesystem::is_directory(file, ignored);
        errno = 0;
        m_file.reset(isFolder ? nullptr : std::fopen(file.c_str(), "rb"));
        if (m_file == nullptr) {
            throw Failure(file + ": cannot be read: " + ReasonOf(isFolder ? EISDIR : errno));
        }
        if (std::filesystem::is_regular_file(file, ignored)) {
            m_size = std::filesystem::file_size(file, ignored);
        } else {
            m_canRewind = false;
        }
    }
    // Blocks come in large pieces; a buffer between would copy each once more.
    std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
}

ByteSource::ByteSource(std::string bytes, std::string name, const Surroundings& surroundings)
    : m_surroundings(surroundings), m_name(std::move(name)), m_size(bytes.size()), m_ahead(std::move(bytes)) {}

std::size_t ByteSource::ReadFile(char* to, std::size_t size) {
    if (m_file == nullptr) {
        return 0;
    }
    errno = 0;
    const std::size_t count = std::fread(to, 1, size, m_file.get());
    const int error = errno;
    m_surroundings.GoOn();
    if (count == 0 && std::ferror(m_file.get()) != 0) {
        throw Failure(m_name + ": cannot be read: " + ReasonOf(error));
    }
    return count;
}

/// In any thread: without the count and the call of who reads.
std::size_t ByteSource::ReadNow(char* to, std::size_t size) {
    const std::size_t count = std::min(size, m_ahead.size() - m_aheadRead);
    if (count == 0) {
        return ReadFile(to, size);
    }
    std::memcpy(to, m_ahead.data() + m_aheadRead, count);
    m_aheadRead += count;
    return count;
}

std::size_t ByteSource::Counted(std::size_t count) {
    m_read += count;
    m_onRead();
    return count;
}

std::size_t ByteSource::Read(char* to, std::size_t size) {
    m_surroundings.GoOn();
    return Counted(ReadNow(to, size));
}

std::future<std::size_t> ByteSource::BeginRead(char* to, std::size_t size) {
    return std::async(std::launch::async | std::launch::deferred, [this, to, size] { return ReadNow(to, size); });
}

std::size_t ByteSource::FinishRead(std::future<std::size_t>& reading) {
    m_surroundings.GoOn();
    return Counted(reading.get());
}

std::string_view ByteSource::Peek(std::size_t size) {
    if (m_file != nullptr && m_ahead.size() < size) {
        const std::size_t before = m_ahead.size();
        m_ahead.resize(size);
        m_ahead.resize(before + ReadFile(m_ahead.data() + before, size - before));
    }
    return std::string_view(m_ahead).substr(0, size);
}

void ByteSource::Rewind() {
    m_aheadRead = 0;
    m_read = 0;
    if (m_file != nullptr) {
        if (!m_canRewind || std::fseek(m_file.get(), static_cast<long>(m_ahead.size()), SEEK_SET) != 0) {
            throw Failure(m_name + ": cannot be read twice");
        }
    }
}

void ByteSource::KeepForAgain() {
    if (m_canRewind) {
        return;
    }
    std::unique_ptr<std::FILE, Close> kept(OpenTemporary());
    if (kept == nullptr) {
        throw Failure(m_name + ": cannot be kept for a second reading: " + ReasonOf(errno));
    }
    std::vector<char> block(std::size_t{256} * 1024);
    std::uint64_t size = 0;
    while (const std::size_t count = Read(block.data(), block.size())) {
        errno = 0;
        if (std::fwrite(block.data(), 1, count, kept.get()) != count) {
            throw Failure(m_name + ": cannot be kept for a second reading: " + ReasonOf(errno));
        }
        size += count;
    }
    m_file = std::move(kept);
    m_ahead.clear();
    m_size = size;
    m_canRewind = true;
    Rewind();
}

SourceBuffer::int_type SourceBuffer::underflow() {
    const std::size_t count = m_source.Read(m_block.data(), m_block.size());
    m_end += count;
    setg(m_block.data(), m_block.data(), m_block.data() + count);
    return count == 0 ? traits_type::eof() : traits_type::to_int_type(m_block.front());
}

SourceBuffer::pos_type SourceBuffer::seekoff(off_type offset, std::ios_base::seekdir from,
                                             std::ios_base::openmode mode) {
    if (from == std::ios_base::cur && offset == 0) {
        return static_cast<pos_type>(static_cast<off_type>(m_end) - (egptr() - gptr()));
    }
    return from == std::ios_base::beg ? seekpos(offset, mode) : pos_type(off_type(-1));
}

SourceBuffer::pos_type SourceBuffer::seekpos(pos_type position, std::ios_base::openmode) {
    if (position != pos_type(0)) {
        return pos_type(off_type(-1));
    }
    m_source.Rewind();
    m_end = 0;
    setg(nullptr, nullptr, nullptr);
    return position;
}

}  // namespace krm_cli
