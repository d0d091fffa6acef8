#include "krm/exchange/internal/line_file.h"

#include <algorithm>
#include <cerrno>

#include "krm/exchange/internal/recording_lines.h"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace krm::recording {
namespace {

// The most that one call is given: systems take less than 2 GB.
constexpr std::size_t kMostBytes = std::size_t{1} << 30U;

#if defined(_WIN32)

int OpenForWriting(const std::filesystem::path& path, RecordingMode mode) {
    const int forMode = mode == RecordingMode::CreateNew   ? _O_EXCL
                        : mode == RecordingMode::Overwrite ? _O_TRUNC
                                                           : _O_APPEND;
    int descriptor = -1;
    const int error = _wsopen_s(&descriptor, path.c_str(), _O_WRONLY | _O_CREAT | _O_BINARY | _O_NOINHERIT | forMode,
                                _SH_DENYNO, _S_IREAD | _S_IWRITE);
    errno = error;
    return error == 0 ? descriptor : -1;
}
int WriteSome(int descriptor, const char* bytes, std::size_t count) {
    return _write(descriptor, bytes, static_cast<unsigned>(count));
}
void Close(int descriptor) {
    _close(descriptor);
}

#else

int OpenForWriting(const std::filesystem::path& path, RecordingMode mode) {
#if defined(O_LARGEFILE)
    constexpr int kLarge = O_LARGEFILE;  // beyond 2 GB where offsets have 32 bits by themselves
#else
    constexpr int kLarge = 0;
#endif
    const int forMode = mode == RecordingMode::CreateNew   ? O_EXCL
                        : mode == RecordingMode::Overwrite ? O_TRUNC
                                                           : O_APPEND;
    int descriptor = -1;
    do {
        descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | kLarge | forMode, 0666);
    } while (descriptor == -1 && errno == EINTR);
    return descriptor;
}
ssize_t WriteSome(int descriptor, const char* bytes, std::size_t count) {
    return write(descriptor, bytes, count);
}
void Close(int descriptor) {
    close(descriptor);
}

#endif

}  // namespace

LineFile::~LineFile() {
    if (m_descriptor != -1) {
        Close(m_descriptor);
    }
}

std::string LineFile::Open(const std::filesystem::path& path, RecordingMode mode) {
    m_descriptor = OpenForWriting(path, mode);
    return m_descriptor == -1 ? "the file can't be written: " + SystemError() : std::string();
}

std::size_t LineFile::Write(std::string_view bytes, std::string& error) {
    std::size_t written = 0;
    while (written < bytes.size()) {
        const auto count =
            WriteSome(m_descriptor, bytes.data() + written, std::min(bytes.size() - written, kMostBytes));
        if (count > 0) {
            written += static_cast<std::size_t>(count);
        } else if (count == 0 || errno != EINTR) {
            error = count == 0 ? "the file takes no more" : "the file can't be written: " + SystemError();
            return written;
        }
    }
    return written;
}

}  // namespace krm::recording
