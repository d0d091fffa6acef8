// Messages as JSON, without loss:
//
//     const std::string text = krm::ToJson(answer);
//
// krm/exchange/ has messages as data. It is a library of its own, krm::exchange, so that krm::adaptation_data keeps needing
// the standard library alone. It includes krm/core/, krm/framework/, krm/messages/, krm/fields/ and the platform; no header
// of it includes the JSON library. docs/exchange.md describes the form of the documents.
//
// Not in a document is the imported base's third member, m_uchStatus, which has no accessor.
#ifndef KRM_EXCHANGE_JSON_H_
#define KRM_EXCHANGE_JSON_H_

#include <string>

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
/// The same where its class, or its family's Snd or Rcv base, is known while compiling.
template <HasDirection Message>
std::string ToJson(const Message& message) {
    return ToJson(message, Message::kDirection);
}

}  // namespace krm

#endif  // KRM_EXCHANGE_JSON_H_
