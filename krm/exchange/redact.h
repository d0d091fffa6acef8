// Takes out of messages and recordings what identifies a vehicle or a person, before they are shared:
//
//     krm::Redactor redactor({.fields = {"m_cVehicleInfoList[*].m_strVehicleInfo"}, .values = {"Jane Doe"}});
//     const krm::RedactedRecording done = krm::RedactRecording("session.krmrec", "shared.krmrec", redactor);
//     if (!done) {
//         std::cerr << done.error << '\n';  // and there is no shared.krmrec
//     }
//
// What is replaced is a value: the VIN, which is found by itself, and what the caller names, by its field or by what it is.
// A value goes wherever it occurs in a message, with letters of either case:
//
//   - in a text, also within a longer one; in the keys and values of a map;
//   - as hexadecimal digits in a text, of either case, the bytes with or without something between them: "4B524D",
//     "4b 52 4d", "4B:52:4D", "0x4B, 0x52, 0x4D";
//   - as a list or an array of numbers that spell it, a byte each, also within a longer list, and as the same field of one
//     record after the other in a list, as memory that is read byte by byte;
//
// and becomes a pseudonym of the same length in bytes: letters become letters of the same case (never I, O or Q, so that a
// VIN stays one, though its check digit is not made right), digits digits, letters beyond ASCII other letters as long, and
// punctuation and blanks stay. Bytes that are no text become other bytes. The same value has the same pseudonym as long as
// the Redactor lives, and no two have the same, so what was equal stays equal and what differed stays different.
//
// What this can't do: find a value that is split over several fields or messages; that is encoded in another way (UTF-16,
// Base64, decimal numbers in a text, bytes in reverse order, packed into larger numbers, compressed); or that nobody names
// and that doesn't look like a VIN. Numbers are replaced where a field is named alone. Times stay, and so does how long
// each value is. docs/exchange.md says more.
#ifndef KRM_EXCHANGE_REDACT_H_
#define KRM_EXCHANGE_REDACT_H_

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "krm/exchange/export.h"
#include "krm/exchange/recording.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/platform/platform.h"

namespace krm {

/// A value that is replaced wherever it occurs has at least so many letters, digits or other bytes that are replaced: a
/// shorter one would hit everything.
inline constexpr std::size_t kMinRedactedLength = 4;

/// What to replace, and how.
struct RedactOptions {
    /// The VIN: what the field `m_strVinCode` holds, and whatever looks like one, in a text, as hexadecimal or as numbers:
    /// 17 letters and digits with nothing of the kind around them, a letter among them, no I, O or Q, the last four digits.
    bool vin = true;
    /// Patterns of fields, in Compare's notation (krm/exchange/compare.h): `m_cVehicleInfoList[*].m_strVehicleInfo`. All
    /// beneath a record, a list or a map goes with it, keys too; `m_cResourceMap["owner"]` and `m_cResourceMap[*]` are texts
    /// without their keys.
    ///
    /// What a text holds, without blanks around it, or a list of bytes, is a value, unless it is shorter than
    /// kMinRedactedLength or all of its bytes are the same; it is then replaced in the field alone. So are numbers, by others
    /// with as many digits, and doubles. A bool stays, and so do NaN and infinities. A pattern that no message of the library
    /// has is an error, as it is mostly misspelled.
    std::vector<std::string> fields = {};
    /// Values, as bytes: a text with letters beyond ASCII in each encoding that it may have. One that is shorter than
    /// kMinRedactedLength is an error.
    std::vector<std::string> values = {};
    /// What pseudonyms are made from: with the same one, the same recording gives the same bytes again, on every platform.
    /// Who knows it can try out what a pseudonym stands for, so it must be hard to guess, and be kept. Empty, which is safer:
    /// random numbers of the system, other ones for each Redactor, which are nowhere kept; nobody can tell then.
    std::string secret = {};
    /// Leaves patterns aside that no message of the library has, as those of a program's own messages; they must still be
    /// well written.
    bool forOtherClassesToo = false;
};

/// What Redact did.
struct Redaction {
    std::uint64_t places = 0;  ///< how often a value was replaced, or a number
    std::string error;         ///< why it could not be; empty when all is done. No value is quoted

    /// Whether all that was to be replaced is.
    explicit operator bool() const { return error.empty(); }
};

/// Replaces values in messages and texts, and knows its values and their pseudonyms as long as it lives. What it needs grows
/// with the number of different values, not with that of messages. One thread at a time.
///
/// A value is replaced from the moment on when it is known, which is too late for what came before: who has more than one
/// message collects from all of them first, as RedactRecording does.
class KRM_EXCHANGE_API Redactor {
public:
    /// Throws std::system_error where there is no secret and the system has no random numbers.
    explicit Redactor(const RedactOptions& options = {});
    ~Redactor();
    /// Takes all over; `other` may only be assigned to or destroyed then.
    Redactor(Redactor&& other) noexcept;
    /// The same.
    Redactor& operator=(Redactor&& other) noexcept;

    /// What is wrong with the options; empty when they can be used. Otherwise nothing is collected, and redacting fails.
    const std::string& Error() const;

    /// Learns the values that the message holds and changes nothing. `description` is that of its class, the library's
    /// (krm::FindMessage) or a program's own (krm::kMessageDescription), and must live as long as this object; a message
    /// that carries another type or ID tells nothing.
    /// REQUIRES: the message has the description's direction, which it can't be asked for; see krm::MessageAs.
    void Collect(const CKRMBaseAdaptationData& message, const MessageDescription& description);
    /// The same of a message of the library.
    void Collect(const CKRMBaseAdaptationData& message, Direction direction);
    /// The same where its class, or its family's Snd or Rcv base, is known while compiling.
    template <HasDirection Message>
    void Collect(const Message& message) {
        Collect(message, Message::kDirection);
    }

    /// Collects from the message, then replaces all values in it. An error, and the message must not be given away, where
    /// the options can't be used, it carries another type or ID than `description` says, or so many values are known that
    /// no pseudonym is left. A text with a NUL in which something is replaced ends there.
    /// REQUIRES: as Collect.
    Redaction Redact(CKRMBaseAdaptationData& message, const MessageDescription& description);
    /// The same of a message of the library; an error where it has none with this type, ID and direction.
    Redaction Redact(CKRMBaseAdaptationData& message, Direction direction);
    /// The same where its class, or its family's Snd or Rcv base, is known while compiling.
    template <HasDirection Message>
    Redaction Redact(Message& message) {
        return Redact(message, Message::kDirection);
    }

    /// The same with a text of any kind, such as a line of a log: what looks like a VIN is collected, and values are replaced
    /// that are in it as text or hexadecimal.
    Redaction Redact(std::string& text);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// What RedactRecording did.
struct RedactedRecording {
    std::uint64_t messages = 0;          ///< copied
    std::uint64_t places = 0;            ///< how often a value was replaced, or a number
    std::uint64_t faultCount = 0;        ///< lines that could not be read, which are not in the copy
    std::vector<RecordingFault> faults;  ///< the first kMaxKeptFaults of them
    std::string error;                   ///< why there is no copy; empty when there is one

    /// Whether there is a copy, though faults may keep lines out of it.
    explicit operator bool() const { return error.empty(); }
};

/// Copies a recording, with all values replaced in it. It is read twice, as a value may occur before a field tells that it is
/// one; one message at a time is held. Numbers of exchanges and times stay. Lines that can't be read are left out and told:
/// who knows what is in them. A program's own messages are read by `options`.
///
/// `to` appears when it is complete; until then it is called `to` with ".part" behind, which is there no longer after an
/// error. That it is there already is an error, unless `mode` is Overwrite; it may then be `from` itself. There is no
/// appending. Redactor's members say what the pseudonyms are; with the same Redactor several recordings have the same.
/// Throws std::bad_alloc, and what the streams throw, alone.
KRM_EXCHANGE_API RedactedRecording RedactRecording(const std::filesystem::path& from, const std::filesystem::path& to,
                                                   Redactor& redactor, RecordingMode mode = RecordingMode::CreateNew,
                                                   const RecordingReadOptions& options = {});
/// The same from a stream that can be read again from where it is, opened as a binary one, and to another. After an error
/// what `to` has is not complete.
KRM_EXCHANGE_API RedactedRecording RedactRecording(std::istream& from, std::ostream& to, Redactor& redactor,
                                                   const RecordingReadOptions& options = {});

}  // namespace krm

#endif  // KRM_EXCHANGE_REDACT_H_
