// Answers requests from a recording, in place of an engine and its vehicle:
//
//     krm::Player player("session.krmrec");
//     if (!player.Error().empty()) ...                       // no recording
//
//     const krm::PlayedAnswer played = player.Answer(request);
//     if (!played) {
//         std::cerr << played.error << '\n';
//     } else if (const auto* const codes = played.As<CKRMCGetDTCCmdAdaptDataRcv>()) {
//         ...
//     }
//
// It plays back and simulates nothing: it doesn't know that clearing trouble codes leaves none, nor that a value between two
// recorded ones might be asked for. A request gets what an equal one got when it was recorded, and when there is none, an
// error. What the vehicle would have said to requests in another order only the vehicle knows.
#ifndef KRM_EXCHANGE_PLAYER_H_
#define KRM_EXCHANGE_PLAYER_H_

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "krm/exchange/export.h"
#include "krm/exchange/json.h"
#include "krm/exchange/recording.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/messages/describe.h"
#include "krm/platform/platform.h"

namespace krm {

namespace playing {
class Index;
}

/// How to answer.
struct PlayerOptions {
    /// What a request gets whose equals have all been answered.
    enum class UsedUp {
        LastAgain,  ///< the answer that came last
        Fail        ///< an error
    };

    UsedUp usedUp = UsedUp::LastAgain;  ///< the same answer again, unless it says otherwise
    /// Patterns of what doesn't count when requests are compared, in the notation of krm::CompareOptions: a session number,
    /// a time. They hold for all requests; one that fits no request there is, is an error.
    std::vector<std::string> leaveOut = {};
    RecordingReadOptions reading = {};  ///< how to read; its messages must live as long as the player and its answers
};

/// The answer to a request, or why there is none.
struct PlayedAnswer {
    std::unique_ptr<CKRMBaseAdaptationData> message;  ///< null after an error
    const MessageDescription* description = nullptr;  ///< the message's class; null after an error
    std::uint64_t exchange = 0;                       ///< the number in the recording; 0 where nothing fits the request
    std::string error;                                ///< one line, for people; empty but after an error

    /// Whether there is an answer.
    explicit operator bool() const { return message != nullptr; }

    /// The answer, if it is of this class; else null. It belongs to this object, unless `message` is taken out.
    template <class Message>
    Message* As() const {
        return message != nullptr && description->direction == Message::kDirection ? MessageAs<Message>(message.get())
                                                                                   : nullptr;
    }
};

/// Answers requests from a recording, which must stay as it is meanwhile.
///
/// Equal requests are answered in recorded order: trouble codes, clear, trouble codes again; the second answer differs from
/// the first. Requests are equal where krm::Compare, with `leaveOut` as its patterns to ignore, finds no difference. An
/// answer belongs to the last request before it with the same number of the exchange.
///
/// It holds one to two hundred bytes per exchange; answers are read when they are asked for. The effort grows with the file to
/// begin with, and for each request with what it and its answer hold. Several threads may use it at the same time.
class KRM_EXCHANGE_API Player {
public:
    /// Plays a file. Reads it once from its first to its last line.
    explicit Player(const std::filesystem::path& recording, PlayerOptions options = {});
    /// Plays a stream from where it is to its end. It must live longer, have been opened as a binary one, and be one that
    /// seeks. Nobody else may use it meanwhile.
    explicit Player(std::istream& recording, PlayerOptions options = {});
    ~Player();
    /// Takes all over; `other` may only be assigned to or destroyed then.
    Player(Player&& other) noexcept;
    /// The same.
    Player& operator=(Player&& other) noexcept;

    /// Why nothing can be played: the file can't be opened, is no recording, or a pattern of the options is wrong. Else empty.
    const std::string& Error() const;

    /// What in the recording can't be played, the first kMaxKeptFaults of it: lines that aren't messages, a last line that is
    /// torn, answers to no request. An answer whose content is wrong shows when it is asked for.
    const std::vector<RecordingFault>& Faults() const;
    /// How many there are in all.
    std::uint64_t FaultCount() const;

    /// How many exchanges were read, with and without answer.
    std::size_t Count() const;

    /// What the recording has as the answer to `request`; an error
    /// - where no equal request was recorded: it names the recorded one with the fewest differences, among the first 1000
    ///   different ones of the same command, and the fields that differ;
    /// - where equal requests are used up and `usedUp` says so;
    /// - where the recorded one stayed without an answer, as when the program was killed while it waited. It has its turn
    ///   like the others, but isn't the one that comes again;
    /// - where the answer can't be read.
    ///
    /// Throws std::bad_alloc, and what the stream throws, alone.
    PlayedAnswer Answer(const CKRMBaseAdaptationData& request);

    /// The same, copied into an answer that is there already. Returns the error, also where the recorded answer is of another
    /// class; then `answer` is as it was. Empty when it was answered.
    template <HasDirection Message>
    std::string Answer(const CKRMBaseAdaptationData& request, Message& answer) {
        static_assert(Message::kDirection == Direction::Receive, "a request doesn't answer");
        PlayedAnswer played = Answer(request);
        if (const Message* const message = played.template As<Message>()) {
            answer = *message;
        } else if (played) {
            played.error = "the recorded answer is of another class: " + std::string(played.description->className);
        }
        return std::move(played.error);
    }

private:
    std::unique_ptr<playing::Index> m_index;
};

}  // namespace krm

#endif  // KRM_EXCHANGE_PLAYER_H_
