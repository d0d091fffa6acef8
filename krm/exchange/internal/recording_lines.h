// The form of a recording's lines, and what writes and reads them.
#ifndef KRM_EXCHANGE_INTERNAL_RECORDING_LINES_H_
#define KRM_EXCHANGE_INTERNAL_RECORDING_LINES_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "krm/core/types.h"
#include "krm/exchange/json.h"
#include "krm/exchange/recording.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

namespace krm::recording {

/// The first line, with its end.
std::string Header();

/// Appends the line of a message, with its end; false, and nothing is appended, where it carries another type or ID.
bool AppendLine(std::uint64_t exchange, RecordedTime time, const CKRMBaseAdaptationData& message,
                const MessageDescription& description, std::string& out);

/// Takes a stream apart into lines, of which it holds one.
class Lines {
public:
    Lines(std::istream& in, std::size_t maxLine) : m_in(&in), m_maxLine(maxLine), m_chunk(kChunk) {}

    /// Goes to the next line; false at the end. Empty lines are passed over.
    bool Next();

    /// The line without its end, and without a byte order mark.
    std::string_view Text() const { return m_text; }
    std::uint64_t Number() const { return m_number; }
    /// Where Text() begins: in bytes from where the stream was.
    std::uint64_t Offset() const { return m_offset; }
    /// Whether a line feed ended it.
    bool Ended() const { return m_ended; }
    /// Whether it has more bytes than it may have; then it is empty.
    bool TooLong() const { return m_tooLong; }
    std::size_t MaxLine() const { return m_maxLine; }
    /// At the end: whether that was because the stream couldn't be read.
    bool Failed() const;

private:
    static constexpr std::size_t kChunk = std::size_t{64} * 1024;

    bool Read();

    std::istream* m_in;
    std::size_t m_maxLine;
    std::vector<char> m_chunk;
    std::size_t m_begin = 0;  // of what is left of the chunk
    std::size_t m_end = 0;
    std::string m_line;
    std::string_view m_text;
    std::uint64_t m_number = 0;
    std::uint64_t m_offset = 0;
    std::uint64_t m_nextOffset = 0;
    bool m_ended = false;
    bool m_tooLong = false;
};

/// What the first line says.
struct FirstLine {
    std::string library;   ///< version of the library that wrote it
    RecordingFault fault;  ///< empty if it is the first line of a recording that can be read
};
/// Goes to the first line, and reads it.
FirstLine ReadFirstLine(Lines& lines);

/// A line but for its message, which is there as its text.
struct Envelope {
    std::uint64_t exchange = 0;
    RecordedTime time{};
    krm_ulong type = 0;
    krm_ulong id = 0;
    std::string_view message;
    std::optional<Direction> direction;  ///< what the message says; nothing where it doesn't, or says nonsense
    std::uint64_t lineNumber = 0;
    std::uint64_t exchangeOffset = 0;  // these in bytes from the file's first
    std::uint64_t typeOffset = 0;
    std::uint64_t idOffset = 0;
    std::uint64_t messageOffset = 0;
};
/// Reads a line that begins at this offset; what is wrong with it is in `fault`, and the result is nothing then.
std::optional<Envelope> ReadEnvelope(std::string_view text, std::uint64_t lineNumber, std::uint64_t offset,
                                     RecordingFault& fault);
/// The same of the line that `lines` is at.
std::optional<Envelope> ReadEnvelope(const Lines& lines, RecordingFault& fault);

/// The description of a message: a program's own, or else the library's; null where there is none.
const MessageDescription* Find(std::span<const MessageDescription> own, krm_ulong type, krm_ulong id,
                               Direction direction);

/// Reads a line's message. What is wrong is in `fault`, and there is no message then.
MessageFromJson ReadMessage(const Envelope& envelope, std::span<const MessageDescription> own, RecordingFault& fault);

/// Why the last call of the operating system failed, for people: in English, whatever the process's language.
std::string SystemError();
/// The same of a code that a function gave.
std::string SystemError(const std::error_code& error);

}  // namespace krm::recording

#endif  // KRM_EXCHANGE_INTERNAL_RECORDING_LINES_H_
