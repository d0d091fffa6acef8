// What application and engine say to each other, kept in a file: written while they talk, read again later.
//
//     krm::Recorder recorder("session.krmrec");
//     if (!recorder.Error().empty()) ...                     // the file is there already, or its folder is missing
//
//     const std::uint64_t exchange = recorder.BeginExchange();
//     recorder.Write(exchange, request);
//     ...
//     recorder.Write(exchange, answer);
//
//     krm::RecordingReader reader("session.krmrec");
//     while (const std::optional<krm::RecordedMessage> recorded = reader.Next()) {
//         if (!*recorded) {
//             std::cerr << krm::ToText(recorded->fault) << '\n';  // the rest is read all the same
//         } else if (const auto* const codes = recorded->As<CKRMCGetDTCCmdAdaptDataRcv>()) {
//             ...
//         }
//     }
//
// A recording is UTF-8, a JSON document per line, each line ended by a line feed. The first one says what the file is, each
// other one holds a message: the number of its exchange, when it was written, in UTC, its type and ID, and the message as
// krm::ToJson writes it. docs/exchange.md describes the form. krm/exchange/player.h answers requests from a recording.
//
// What Write returned for without error has been handed to the operating system whole: it is in the file even if the program
// is killed the next moment. It isn't forced onto the disk, so what was written last may be lost where the power fails.
//
// Not in a recording is the imported base's third member, m_uchStatus, which has no accessor.
#ifndef KRM_EXCHANGE_RECORDING_H_
#define KRM_EXCHANGE_RECORDING_H_

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "krm/core/types.h"
#include "krm/exchange/export.h"
#include "krm/exchange/json.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/messages/describe.h"
#include "krm/platform/platform.h"

namespace krm {

namespace recording {
class Reader;
class Writer;
}  // namespace recording

/// When a message was written: UTC, in microseconds, which every platform's clock can be rounded to.
using RecordedTime = std::chrono::sys_time<std::chrono::microseconds>;

/// Why and where a recording could not be read.
struct RecordingFault {
    std::uint64_t line = 0;    ///< from 1; 0 where it is about no line, such as a file that can't be opened
    std::uint64_t offset = 0;  ///< where the value at fault begins: in bytes from the file's first
    std::string path;          ///< of that value in its line, "$.message.content.m_ulEcuId"; empty for none
    std::string text;          ///< for people; empty where there is no fault
    /// The line ends before its document does: the program was killed, or the disk was full, while it was written. All
    /// that stands before and behind it is read.
    bool torn = false;
};

/// One line without its end: "line 3, offset 210, $.message.content.m_ulEcuId: expected a whole number from 0 to 4294967295".
KRM_EXCHANGE_API std::string ToText(const RecordingFault& fault);

/// A message that was read from a recording, or why a line of it is none.
struct RecordedMessage {
    std::uint64_t exchange = 0;                       ///< request and answer have the same
    RecordedTime time{};                              ///< when it was written, in UTC
    std::unique_ptr<CKRMBaseAdaptationData> message;  ///< null where the line has a fault
    const MessageDescription* description =
        nullptr;               ///< the message's class, its direction among it; null as `message`
    std::uint64_t line = 0;    ///< from 1
    std::uint64_t offset = 0;  ///< where the line begins: in bytes from the file's first
    RecordingFault fault;      ///< empty but where there is no message

    /// Whether there is a message.
    explicit operator bool() const { return message != nullptr; }

    /// The message, if it is of this class; else null. It belongs to this object, unless `message` is taken out.
    template <class Message>
    Message* As() const {
        return message != nullptr && description->direction == Message::kDirection ? MessageAs<Message>(message.get())
                                                                                   : nullptr;
    }
};

/// What happened to a message that was to be recorded.
struct RecordingResult {
    std::string error;  ///< why it isn't in the recording; empty when it is

    /// Whether it is in the recording.
    explicit operator bool() const { return error.empty(); }
};

/// What a Recorder does with its file.
enum class RecordingMode {
    CreateNew,  ///< a file that is there already stays as it is, and is an error
    Overwrite,  ///< a file that is there already loses its content
    Append      ///< goes on with a recording, or begins one; what isn't a recording stays as it is, and is an error
};

/// Writes a recording. Any number of threads may call it at the same time: lines are whole, and in the order of their times
/// as far as the clock runs forward.
///
/// What fails is a result, and no exception but std::bad_alloc, or what a sink or a clock throws. The exchange may go on:
/// each Write tries again, so where a full disk has room again, a recording lacks what came meanwhile and nothing else.
class KRM_EXCHANGE_API Recorder {
public:
    /// Where the time comes from, such as that of the session that the messages belong to.
    using Clock = std::function<std::chrono::system_clock::time_point()>;
    /// Takes bytes and returns how many of them it took; fewer than all is an error. One call per line, its end included.
    using Sink = std::function<std::size_t(std::string_view bytes)>;

    /// Records into a file, which others may read meanwhile. Its folder must be there. Appending goes through the file once,
    /// to count its exchanges on.
    explicit Recorder(const std::filesystem::path& file, RecordingMode mode = RecordingMode::CreateNew,
                      Clock now = &std::chrono::system_clock::now);
    /// Records into a sink, which is called now, for the first line, and then by Write, by one thread at a time. It must not
    /// call this recorder.
    explicit Recorder(Sink sink, Clock now = &std::chrono::system_clock::now);
    ~Recorder();
    /// Takes all over; `other` may only be assigned to or destroyed then.
    Recorder(Recorder&& other) noexcept;
    /// The same.
    Recorder& operator=(Recorder&& other) noexcept;

    /// What failed last: why there is no file to write to, or why a message was not written, which stays when later ones
    /// are. Empty as long as nothing failed.
    std::string Error() const;

    /// A number for an exchange: one more than the highest that this recorder gave, was given or found in the file
    /// that it appends to. The first one is 1.
    std::uint64_t BeginExchange();

    /// Writes a message of `exchange`, whose request and answer have the same number. `description` is that of its class,
    /// the library's (krm::FindMessage) or a program's own (krm::kMessageDescription). An error, and nothing is written,
    /// where the message carries another type or ID.
    /// REQUIRES: the message has the description's direction, which it can't be asked for; see krm::MessageAs.
    RecordingResult Write(std::uint64_t exchange, const CKRMBaseAdaptationData& message,
                          const MessageDescription& description);
    /// The same of a message of the library; an error where it has none with this type, ID and direction.
    RecordingResult Write(std::uint64_t exchange, const CKRMBaseAdaptationData& message, Direction direction);
    /// The same where its class, or its family's Snd or Rcv base, is known while compiling.
    template <HasDirection Message>
    RecordingResult Write(std::uint64_t exchange, const Message& message) {
        return Write(exchange, message, Message::kDirection);
    }
    /// Writes a message that was read, with its number and its time: for a copy that leaves out or changes some. An error
    /// for one with a fault.
    RecordingResult Write(const RecordedMessage& recorded);

private:
    std::unique_ptr<recording::Writer> m_writer;
};

/// The longest line of a recording that is read, in bytes.
inline constexpr std::size_t kMaxRecordingLine = std::size_t{256} * 1024 * 1024;

/// How many faults are kept by what goes through a whole recording, of however many there are.
inline constexpr std::size_t kMaxKeptFaults = 100;

/// How to read a recording.
struct RecordingReadOptions {
    /// A program's own messages in it, which must live as long as the reader and what it returned. One that the library has
    /// too is the program's.
    std::span<const MessageDescription> ownMessages = {};
    /// A line of more bytes is a fault, and is passed over without being held.
    std::size_t maxLine = kMaxRecordingLine;
};

/// Reads a recording from its first to its last line and holds one line at a time. A byte order mark, carriage returns
/// before line feeds, empty lines, and members of a line in another order or with white space are no faults.
///
/// Throws std::bad_alloc, and what the stream throws, alone.
class KRM_EXCHANGE_API RecordingReader {
public:
    /// Reads a file. That it can't be opened is Next's first fault.
    explicit RecordingReader(const std::filesystem::path& file, const RecordingReadOptions& options = {});
    /// Reads a stream from where it is, which is offset 0. It must live longer, and have been opened as a binary one.
    explicit RecordingReader(std::istream& in, const RecordingReadOptions& options = {});
    ~RecordingReader();
    /// Takes all over; `other` may only be assigned to or destroyed then.
    RecordingReader(RecordingReader&& other) noexcept;
    /// The same.
    RecordingReader& operator=(RecordingReader&& other) noexcept;

    /// The version of the library that began the recording, "1.0.0"; empty until Next has been called, and where the file is
    /// no recording.
    const std::string& Library() const;

    /// The next message, or the fault of the next line, after which it goes on; nothing at the end. A file that isn't a
    /// recording, or is one of a newer version than this library knows, has one fault that says so, and an end.
    std::optional<RecordedMessage> Next();

private:
    std::unique_ptr<recording::Reader> m_reader;
};

}  // namespace krm

#endif  // KRM_EXCHANGE_RECORDING_H_
