// A JSON Schema of the documents that krm/exchange/json.h writes and reads, for editors, validators and other languages.
#ifndef KRM_EXCHANGE_SCHEMA_H_
#define KRM_EXCHANGE_SCHEMA_H_

#include <span>
#include <string>

#include "krm/exchange/export.h"
#include "krm/fields/message_descriptions.h"

namespace krm {

/// The JSON Schema (2020-12) of these messages' documents: all of the library, or a program's own. The same bytes on every
/// platform; each message and each record begins on a line of its own. What krm::ToJson writes is valid by it, but for a text
/// that holds a NUL.
///
/// What is valid krm::FromJson reads, but for what a schema can't say: a whole number written with a fraction or exponent, a
/// number beyond those of a double, a key that comes twice in a map.
KRM_EXCHANGE_API std::string Schema(std::span<const MessageDescription> messages = AllMessages());

}  // namespace krm

#endif  // KRM_EXCHANGE_SCHEMA_H_
