#include "recording_file.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif
#ifdef KRM_HAVE_ZLIB
#include <zlib.h>
#endif

#include "can_recording.h"
#include "operation_log_file.h"
#include "values_file.h"

namespace diagnosis_session {
namespace {

// The two systems name the same calls differently.
#ifdef _WIN32
int OpenForReading(const char* path) {
    return _open(path, _O_RDONLY | _O_BINARY);
}
int ReadSome(int file, char* buffer, std::size_t size) {
    return _read(file, buffer, static_cast<unsigned>(size));
}
void CloseFile(int file) {
    _close(file);
}
#else
int OpenForReading(const char* path) {
    return open(path, O_RDONLY | O_CLOEXEC);
}
int ReadSome(int file, char* buffer, std::size_t size) {
    return static_cast<int>(read(file, buffer, size));
}
void CloseFile(int file) {
    close(file);
}
#endif

constexpr int kStandardInput = 0;
constexpr std::size_t kChunk = std::size_t{64} * 1024;
/// Enough to see what kind of file it is.
constexpr std::size_t kHead = 1024;
constexpr std::string_view kGzip = "\x1F\x8B";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// `path` as a shell takes it.
std::string Quoted(const std::string& path) {
    if (path.find_first_of(" \t\"'$`\\&;|<>()*?[]#~!{}") == std::string::npos) {
        return path;
    }
    std::string quoted = "'";
    for (const char character : path) {
        quoted += character == '\'' ? "'\\''" : std::string(1, character);
    }
    return quoted + '\'';
}

/// A name for the recording that is made of the file: with another ending, and never the file's own, which the command
/// would overwrite while it reads.
std::string NameOfRecording(const std::string& path) {
    if (path == "-") {
        return "recording.log";
    }
    const std::string name = std::filesystem::path(path).replace_extension(".log").string();
    return Quoted(name != path ? name : std::filesystem::path(path).replace_extension(".candump.log").string());
}

bool HasFrame(std::string_view head) {
    LineReader lines([&](char* buffer, std::size_t size) {
        const std::size_t count = head.copy(buffer, size);
        head.remove_prefix(count);
        return count;
    });
    for (std::string_view line; lines.Next(line);) {
        if (std::holds_alternative<CanFrame>(ParseCandumpLine(line, 1))) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::string ReasonOf(int errorNumber) {
    switch (errorNumber) {
        case ENOENT:
            return "no such file";
        case EISDIR:
            return "it is a directory";
        case EACCES:
        case EPERM:
            return "permission denied";
        case ENOSPC:
            return "no space left on the device";
        case EPIPE:
            return "nobody reads the pipe any more";
        default:
            return std::generic_category().message(errorNumber);
    }
}

std::optional<std::string> OtherKindOfFile(std::string_view head, const std::string& path) {
    struct Binary {
        std::string_view begin;
        const char* what;
        const char* command;  ///< %1 is the file, %2 the recording made of it
    };
    constexpr const char* kTshark =
        "tshark -r %1 -T fields -e frame.time_epoch -e can.id -e data.data | awk '{printf($2 > 2047 ? \"(%s) can0 "
        "%08X#%s\\n\" : \"(%s) can0 %03X#%s\\n\", $1, $2, $3)}' > %2";
    using namespace std::string_view_literals;
    static constexpr Binary kBinaries[] = {
        {"\x0A\x0D\x0D\x0A"sv, "a pcapng capture", kTshark},
        {"\xA1\xB2\xC3\xD4"sv, "a pcap capture", kTshark},
        {"\xD4\xC3\xB2\xA1"sv, "a pcap capture", kTshark},
        {"\xA1\xB2\x3C\x4D"sv, "a pcap capture", kTshark},
        {"\x4D\x3C\xB2\xA1"sv, "a pcap capture", kTshark},
        {"LOGG"sv, "a BLF recording", "can_logconvert %1 %2"},
        {"MDF     "sv, "an MDF recording", "can_logconvert %1 %2"},
        {"UnFinMF "sv, "an MDF recording", "can_logconvert %1 %2"},
        {"SQLite format 3\0"sv, "an SQLite database", "can_logconvert %1 %2"},
        {"BZh"sv, "a file packed with bzip2", "bzip2 -dc %1 > %2"},
        {"\xFD"
         "7zXZ\0"sv,
         "a file packed with xz", "xz -dc %1 > %2"},
        {"\x28\xB5\x2F\xFD"sv, "a file packed with zstd", "zstd -dc %1 > %2"},
        {"PK\x03\x04"sv, "a zip archive", "unzip -p %1 > %2"},
        {"\xFF\xFE"sv, "a text in UTF-16", "iconv -f UTF-16 -t UTF-8 %1 > %2"},
        {"\xFE\xFF"sv, "a text in UTF-16", "iconv -f UTF-16 -t UTF-8 %1 > %2"},
#ifndef KRM_HAVE_ZLIB
        {kGzip, "a file packed with gzip", "gzip -dc %1 > %2"},
#endif
    };
    const auto looksLike = [&](const std::string& what, const std::string& command) {
        std::string text = "looks like " + what + "; make a candump recording of it with: ";
        for (std::size_t i = 0; i < command.size(); ++i) {
            const bool isPlace = command[i] == '%' && i + 1 < command.size();
            if (isPlace && command[i + 1] == '1') {
                text += path == "-" ? "FILE" : Quoted(path);
                ++i;
            } else if (isPlace && command[i + 1] == '2') {
                text += NameOfRecording(path);
                ++i;
            } else {
                text += command[i];
            }
        }
        return text;
    };
    for (const Binary& binary : kBinaries) {
        if (head.starts_with(binary.begin)) {
            return looksLike(binary.what, binary.command);
        }
    }
    if (head.starts_with(kGzip)) {
        return std::nullopt;
    }
    if (head.find('\0') != std::string_view::npos) {
        return "looks like a binary file; a recording is text, as candump -l writes it";
    }
    if (head.starts_with(kByteOrderMark)) {
        head.remove_prefix(kByteOrderMark.size());
    }
    if (HasFrame(head)) {
        return std::nullopt;
    }
    const auto begins = [&](std::string_view text) { return head.starts_with(text); };
    const auto has = [&](std::string_view text) { return head.find(text) != std::string_view::npos; };
    if (begins("date ") || has("base hex") || has("base dec") || has("Begin Triggerblock")) {
        return looksLike("an ASC recording", "asc2log -I %1 -O %2");
    }
    if (has(";$FILEVERSION") || begins(";##")) {
        return looksLike("a TRC recording", "can_logconvert %1 %2");
    }
    if (begins("timestamp,arbitration_id,")) {
        return looksLike("a CSV recording", "can_logconvert %1 %2");
    }
    if (begins(OperationLogFile::kFirstLine)) {
        return "is an operation log that this program wrote, not a recording";
    }
    if (begins(ValuesFile::kColumns)) {
        return "is a file of values that this program wrote, not a recording";
    }
    if (begins("Time Stamp,ID,")) {
        return "looks like a CSV recording; a recording is text, as candump -l writes it";
    }
    const std::size_t first = head.find_first_not_of(" \t\r\n");
    if (first != std::string_view::npos && head[first] == '{') {
        return "looks like JSON, as item tables are; the recording comes first, then the item table";
    }
    return std::nullopt;
}

// ---- Lines ----

LineReader::LineReader(ReadBytes read) : m_read(std::move(read)), m_buffer(kChunk) {}

/// Reads more behind what is there.
bool LineReader::Fill() {
    if (m_begin > 0) {
        std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
        m_end -= m_begin;
        m_begin = 0;
    }
    const std::size_t count = m_read(m_buffer.data() + m_end, m_buffer.size() - m_end);
    m_end += count;
    return count != 0;
}

bool LineReader::Next(std::string_view& line) {
    std::size_t searched = 0;
    if (m_atStart) {
        while (m_end - m_begin < kByteOrderMark.size() && Fill()) {
        }
        if (std::string_view(m_buffer.data() + m_begin, m_end - m_begin).starts_with(kByteOrderMark)) {
            m_begin += kByteOrderMark.size();
        }
        m_atStart = false;
    }
    while (true) {
        const char* const begin = m_buffer.data() + m_begin;
        const std::size_t there = m_end - m_begin;
        const void* const found = there > searched ? std::memchr(begin + searched, '\n', there - searched) : nullptr;
        if (found != nullptr) {
            const auto length = static_cast<std::size_t>(static_cast<const char*>(found) - begin);
            line = std::string_view(begin, std::min(length, kLongestLine));
            m_begin += length + 1;
            return true;
        }
        if (there > kLongestLine * 2) {
            // Keep what will be returned, and drop the rest of the line as it comes.
            m_end = m_begin + kLongestLine;
        }
        searched = m_end - m_begin;
        if (!Fill()) {
            line = std::string_view(m_buffer.data() + m_begin, std::min(m_end - m_begin, kLongestLine));
            m_begin = m_end;
            return !line.empty();
        }
    }
}

// ---- The file ----

struct RecordingFile::Unpacker {
#ifdef KRM_HAVE_ZLIB
    Unpacker() : packed(kChunk) {
        // 15 bits of window, and 16 for gzip's head.
        if (inflateInit2(&stream, 15 + 16) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    ~Unpacker() {
        inflateEnd(&stream);
    }
    Unpacker(const Unpacker&) = delete;
    Unpacker& operator=(const Unpacker&) = delete;

    z_stream stream{};
    std::vector<char> packed;
    bool endsWell = false;  ///< the last member is complete
#endif
};

RecordingFile::RecordingFile(std::string path)
    : m_path(std::move(path)), m_name(m_path == "-" ? "standard input" : m_path) {
    Open();
}

RecordingFile::~RecordingFile() = default;

void RecordingFile::Handle::Reset(int file) {
    if (m_file > kStandardInput) {
        CloseFile(m_file);
    }
    m_file = file;
}

void RecordingFile::Rewind() {
    m_unpacker.reset();
    Open();
}

void RecordingFile::Open() {
    m_bytesRead = 0;
    m_head.clear();
    m_headAt = 0;
    if (m_path == "-") {
        m_file.Reset(kStandardInput);
#ifdef _WIN32
        _setmode(kStandardInput, _O_BINARY);
#endif
    } else {
        std::error_code ignored;
        if (std::filesystem::is_directory(m_path, ignored)) {
            throw FileError(m_name + ": cannot be read: " + ReasonOf(EISDIR));
        }
        m_file.Reset(OpenForReading(m_path.c_str()));
        if (m_file.Get() < 0) {
            throw FileError(m_name + ": cannot be read: " + ReasonOf(errno));
        }
        m_isRegular = std::filesystem::is_regular_file(m_path, ignored);
        if (m_isRegular) {
            const auto size = std::filesystem::file_size(m_path, ignored);
            m_size = ignored ? std::nullopt : std::optional<std::uint64_t>(size);
        }
    }
    // A pipe may give few bytes at a time: a first line tells enough.
    std::string head(kHead, '\0');
    std::size_t there = 0;
    while (there < kHead && head.find('\n') >= there) {
        const std::size_t count = ReadFile(head.data() + there, kHead - there);
        if (count == 0) {
            break;
        }
        there += count;
    }
    head.resize(there);
    m_isEmpty = head.empty() && m_atEnd;
    if (const std::optional<std::string> kind = OtherKindOfFile(head, m_path)) {
        throw FileError(m_name + ": " + *kind);
    }
    m_head = std::move(head);
    if (m_head.starts_with(kGzip)) {
        m_unpacker = std::make_unique<Unpacker>();
    }
}

std::size_t RecordingFile::ReadFile(char* buffer, std::size_t size) {
    if (m_headAt < m_head.size()) {
        const std::size_t count = m_head.copy(buffer, size, m_headAt);
        m_headAt += count;
        return count;
    }
    if (!m_isRegular && m_beforeWaiting) {
        m_beforeWaiting();
    }
    const int count = ReadSome(m_file.Get(), buffer, size);
    if (count < 0) {
        if (errno == EINTR) {
            return 0;
        }
        throw FileError(m_name + ": cannot be read: " + ReasonOf(errno));
    }
    m_bytesRead += static_cast<std::size_t>(count);
    m_atEnd = count == 0;
    return static_cast<std::size_t>(count);
}

std::size_t RecordingFile::Read(char* buffer, std::size_t size) {
    return m_unpacker ? ReadUnpacked(buffer, size) : ReadFile(buffer, size);
}

std::size_t RecordingFile::ReadUnpacked(char* buffer, std::size_t size) {
#ifdef KRM_HAVE_ZLIB
    z_stream& stream = m_unpacker->stream;
    stream.next_out = reinterpret_cast<Bytef*>(buffer);
    stream.avail_out = static_cast<uInt>(size);
    while (stream.avail_out == size) {
        if (stream.avail_in == 0) {
            const std::size_t count = ReadFile(m_unpacker->packed.data(), m_unpacker->packed.size());
            if (count == 0) {
                if (!m_unpacker->endsWell) {
                    throw FileError(m_name + ": the gzip data ends too early");
                }
                return 0;
            }
            stream.next_in = reinterpret_cast<Bytef*>(m_unpacker->packed.data());
            stream.avail_in = static_cast<uInt>(count);
        }
        if (m_unpacker->endsWell) {
            // Another member behind the last one: gzip files may be joined.
            inflateReset(&stream);
            m_unpacker->endsWell = false;
        }
        const int status = inflate(&stream, Z_NO_FLUSH);
        if (status == Z_STREAM_END) {
            m_unpacker->endsWell = true;
        } else if (status != Z_OK && status != Z_BUF_ERROR) {
            throw FileError(m_name + ": the gzip data is damaged");
        }
    }
    return size - stream.avail_out;
#else
    return ReadFile(buffer, size);
#endif
}

}  // namespace diagnosis_session
