// An operation log or a recording as one exchange of messages: what every subcommand that reads one goes through.
//
//     Input& input = ...;
//     for (;;) {
//         switch (input.Next()) {
//             case Event::Begin: ...   // of message input.Head().number, of which little more is known yet
//             case Event::Field: ...   // input.Field()
//             case Event::End: ...     // input.Head() is complete
//             case Event::Other: ...   // a line that belongs to no message, at any place
//             case Event::Finished: return;
//         }
//     }
//
// Messages come one after the other in the order in which they begin, also where threads mixed their lines.
#ifndef KRM_CLI_INPUT_H_
#define KRM_CLI_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/byte_source.h"
#include "krm/core/types.h"
#include "krm/exchange/recording.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"

namespace krm_cli {

enum class Event {
    Begin,    ///< a message begins
    Field,    ///< a field of it
    End,      ///< it ends
    Other,    ///< a line that belongs to none
    Finished  ///< the end of the file
};

/// What a message is.
struct MessageHead {
    std::uint64_t number = 0;                 ///< from 1, in the order of their begins
    std::uint64_t firstLine = 0;              ///< from 1
    std::uint64_t fields = 0;                 ///< how many fields, or lines of the log, it has
    std::string className;                    ///< empty where the log doesn't tell
    std::string command;                      ///< "GetDTC"; "type 1, ID 900" where the library has no such command
    std::string_view family;                  ///< "Cmd"; empty where it isn't known
    std::optional<krm::Direction> direction;  ///< nothing where the log doesn't tell
    krm_ulong type = 0;
    krm_ulong id = 0;
    std::optional<krm_ulong> ecu;  ///< of a request; of an answer that of the request before it, if there was one
    std::string time;              ///< as it is written; empty for none
    std::string source;            ///< what else the sink wrote in front of the log's lines, such as a thread
    std::optional<std::uint64_t> exchange;  ///< of a recording: its number
    bool beginIsMissing = false;            ///< the log begins, or goes on, in the middle of it
    /// The message's class; null where the library has none.
    const krm::MessageDescription* description = nullptr;
};

/// A field, or a line of the log, in the log's notation.
struct FieldText {
    std::string_view path;
    std::string_view value;
    std::uint64_t line = 0;
    std::uint64_t cutBytes = 0;  ///< how many bytes are missing at the value's end
};

/// A line that belongs to no message.
struct OtherLine {
    std::uint64_t line = 0;
    std::string_view text;
    std::uint64_t cutBytes = 0;
    bool isFault = false;  ///< of a recording: `text` says what is wrong with the line
};

/// What was read, in all.
struct InputTotals {
    std::uint64_t lines = 0;
    std::uint64_t messages = 0;
    std::uint64_t otherLines = 0;  ///< that are no lines of messages
    std::uint64_t faults = 0;      ///< of a recording: lines that can't be read
    std::uint64_t cutLines = 0;    ///< longer than LineReader::kMaxLine
    bool lastLineHasNoEnd = false;
};

class Input {
public:
    virtual ~Input() = default;

    virtual Event Next() = 0;
    /// Behind Field: may pass over fields that follow in the same message, whose paths begin with `begin`, as many of them as
    /// are read fast. None whose path ends with `unless`, if that isn't empty. Head counts them.
    virtual void PassOver(std::string_view /*begin*/, std::string_view /*unless*/) {}
    /// Whether it is a recording, and no log.
    virtual bool IsRecording() const = 0;
    /// Of a recording, from Begin to End: the message itself. Null for a log.
    virtual const CKRMBaseAdaptationData* Message() const { return nullptr; }

    const MessageHead& Head() const { return m_head; }
    const FieldText& Field() const { return m_field; }
    const OtherLine& Other() const { return m_other; }
    const InputTotals& Totals() const { return m_totals; }

protected:
    MessageHead m_head;
    FieldText m_field;
    OtherLine m_other;
    InputTotals m_totals;
};

/// The message's description that has this class; null where none has.
const krm::MessageDescription* FindMessage(std::string_view className);

/// Which of both the source is, by how it begins.
bool IsRecording(ByteSource& source);

/// Reads the source, which must live longer, from its begin.
std::unique_ptr<Input> OpenInput(ByteSource& source);

/// Gives answers the ECU of the request before them with the same command.
class EcusOfRequests {
public:
    void Complete(MessageHead& head);

private:
    static constexpr std::size_t kMost = 256;
    struct Request {
        krm_ulong type;
        krm_ulong id;
        std::optional<std::uint64_t> exchange;
        std::string source;
        std::optional<krm_ulong> ecu;
    };
    std::vector<Request> m_requests;  ///< the newest last
};

}  // namespace krm_cli

#endif  // KRM_CLI_INPUT_H_
