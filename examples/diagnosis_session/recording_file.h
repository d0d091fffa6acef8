// The file, or standard input, that a recording is read from: its bytes, without what wraps them, and its lines.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_RECORDING_FILE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_RECORDING_FILE_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace diagnosis_session {

/// A file that can't be read or written; the text names it and says why.
struct FileError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Why the last operation on a file failed, by the C library's error number: "no such file", "permission denied".
std::string ReasonOf(int errorNumber);

/// Bytes from somewhere: fills at most `size` of them and returns how many; 0 at the end.
using ReadBytes = std::function<std::size_t(char* buffer, std::size_t size)>;

/// Cuts bytes into lines. Passes over a byte order mark. Memory doesn't grow with a line: one longer than kLongestLine is
/// cut there, and its rest is dropped.
class LineReader {
public:
    static constexpr std::size_t kLongestLine = 4096;

    explicit LineReader(ReadBytes read);

    /// The next line without its end; false where there is none. The view holds until the next call.
    bool Next(std::string_view& line);

private:
    bool Fill();

    ReadBytes m_read;
    std::vector<char> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    bool m_atStart = true;
};

/// An open recording. What gzip packed is unpacked while it is read.
class RecordingFile {
public:
    /// `path` "-" is standard input. Throws FileError where it can't be read or is a file of another kind.
    explicit RecordingFile(std::string path);
    ~RecordingFile();
    RecordingFile(const RecordingFile&) = delete;
    RecordingFile& operator=(const RecordingFile&) = delete;

    /// As ReadBytes. Throws FileError where reading fails or the packed data is damaged; a signal ends the data.
    std::size_t Read(char* buffer, std::size_t size);

    /// Whether the file can be read again from its begin: not so a pipe.
    bool CanRewind() const { return m_isRegular; }
    void Rewind();

    const std::string& Name() const { return m_name; }
    /// Bytes of the file that were read, and that there are; without a size where it is a pipe.
    std::uint64_t BytesRead() const { return m_bytesRead; }
    std::optional<std::uint64_t> Size() const { return m_size; }
    /// Whether the file has nothing in it.
    bool IsEmpty() const { return m_isEmpty; }

    /// Called before a read that may wait for another program.
    void BeforeWaiting(std::function<void()> call) { m_beforeWaiting = std::move(call); }

private:
    struct Unpacker;

    /// The system's number of an open file; none is below 0. Closes it, but for standard input.
    class Handle {
    public:
        Handle() = default;
        ~Handle() { Reset(-1); }
        Handle(const Handle&) = delete;
        Handle& operator=(const Handle&) = delete;

        int Get() const { return m_file; }
        void Reset(int file);

    private:
        int m_file = -1;
    };

    void Open();
    std::size_t ReadFile(char* buffer, std::size_t size);
    std::size_t ReadUnpacked(char* buffer, std::size_t size);

    std::string m_path;
    std::string m_name;
    Handle m_file;
    bool m_isRegular = false;
    bool m_isEmpty = false;
    bool m_atEnd = false;
    std::optional<std::uint64_t> m_size;
    std::uint64_t m_bytesRead = 0;
    std::string m_head;  ///< what was read to recognise the file, and is to be read again
    std::size_t m_headAt = 0;
    std::unique_ptr<Unpacker> m_unpacker;
    std::function<void()> m_beforeWaiting;
};

/// What a file that begins with `head` is, if it is known not to be a recording that this program reads: what it looks
/// like, and the command that makes such a recording of it.
std::optional<std::string> OtherKindOfFile(std::string_view head, const std::string& path);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_RECORDING_FILE_H_
