// Messages as JSON, without loss:
//
//     const std::string text = krm::ToJson(answer);
//
//     const krm::MessageFromJson read = krm::FromJson(text);
//     if (!read) {
//         std::cerr << read.error.path << ", offset " << read.error.offset << ": " << read.error.text << '\n';
//     } else if (const auto* const codes = read.As<CKRMCGetDTCCmdAdaptDataRcv>()) {
//         ...
//     }
//
// krm/exchange/ has messages as data. It is a library of its own, krm::exchange, so that krm::adaptation_data keeps needing
// the standard library alone. It includes krm/core/, krm/framework/, krm/messages/, krm/fields/ and the platform; no header
// of it includes the JSON library. docs/exchange.md describes the form of the documents.
//
// Not in a document is the imported base's third member, m_uchStatus, which has no accessor.
#ifndef KRM_EXCHANGE_JSON_H_
#define KRM_EXCHANGE_JSON_H_

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "krm/exchange/export.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/messages/describe.h"
#include "krm/platform/platform.h"

namespace krm {

/// The message as one line of JSON, in UTF-8, the same bytes on every platform: what it is, then all of its fields in the
/// order of their declaration, its base's first. `description` is that of its class, the library's (krm::FindMessage) or a
/// program's own (krm::kMessageDescription). Empty where the message carries another type or ID. Throws std::bad_alloc alone.
///
/// REQUIRES: the message has the description's direction, which it can't be asked for; see krm::MessageAs.
KRM_EXCHANGE_API std::string ToJson(const CKRMBaseAdaptationData& message, const MessageDescription& description);

/// The same of a message of the library; empty where the library has none with this type, ID and direction.
KRM_EXCHANGE_API std::string ToJson(const CKRMBaseAdaptationData& message, Direction direction);
/// The same where the direction is known while compiling, by its class or its family's Snd or Rcv base. A program's own
/// message needs its description here, too: without it, this gives an empty text.
template <HasDirection Message>
std::string ToJson(const Message& message) {
    return ToJson(message, Message::kDirection);
}

/// Why and where a document was not read.
struct JsonError {
    /// The value at fault, "$.content.Data[0].m_strDTC"; "$" is the document. A name that is no identifier stands in
    /// brackets, as JSON has it: `$.content["m.x"]`.
    std::string path;
    std::size_t offset = 0;  ///< where the value, or the name of the member, begins: in bytes from the document's first
    std::string text;        ///< for people: "expected a whole number from 0 to 255"
};

/// A message that was read from JSON, or why there is none.
struct MessageFromJson {
    std::unique_ptr<CKRMBaseAdaptationData> message;  ///< null after an error
    const MessageDescription* description = nullptr;  ///< the message's class; null after an error
    JsonError error;                                  ///< empty but after an error

    /// Whether there is a message.
    explicit operator bool() const { return message != nullptr; }

    /// The message, if it is of this class; else null. It belongs to this object, unless `message` is taken out.
    template <class Message>
    Message* As() const {
        return message != nullptr && description->direction == Message::kDirection ? MessageAs<Message>(message.get())
                                                                                   : nullptr;
    }
};

/// The message of the library that the document is. Members of the content that it lacks keep the value of a new message.
///
/// All else is an error, and no message at all: what isn't JSON, a member that the class doesn't have or that comes twice, a
/// value of another kind than the field's, a number that the field can't hold, an array or map of another size, a text with a
/// NUL or that isn't UTF-8, nesting deeper than kMaxJsonDepth, anything behind the document. Throws std::bad_alloc alone.
KRM_EXCHANGE_API MessageFromJson FromJson(std::string_view json);

/// The same of a class that the caller knows, which may be a program's own (krm::kMessageDescription). The document may then
/// leave out command, family and direction; the error is there where they are another class's.
/// REQUIRES: `description` outlives the result.
KRM_EXCHANGE_API MessageFromJson FromJson(std::string_view json, const MessageDescription& description);

/// How deep objects and arrays in a document may be nested; no message of the library needs a third of it.
inline constexpr int kMaxJsonDepth = 64;

}  // namespace krm

#endif  // KRM_EXCHANGE_JSON_H_
