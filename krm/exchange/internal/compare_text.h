// Values as texts for people, the same everywhere: krm/exchange/compare.h describes them.
#ifndef KRM_EXCHANGE_INTERNAL_COMPARE_TEXT_H_
#define KRM_EXCHANGE_INTERNAL_COMPARE_TEXT_H_

#include <optional>
#include <string>
#include <string_view>

#include "krm/exchange/internal/compare_rules.h"
#include "krm/fields/message_descriptions.h"

namespace krm::comparing {

/// Appends `text` in quotes, escaped.
void AppendQuoted(std::string_view text, std::string& out);
/// `text` in quotes, escaped.
std::string Quoted(std::string_view text);

/// Takes what AppendQuoted writes, from the quote in front to the one behind, off the front of `quoted`, and returns the
/// text; nothing where there is no such thing in front.
std::optional<std::string> TakeQuoted(std::string_view& quoted);

/// Appends the value, without what `rules`, which may be null, ignore.
void AppendValue(ConstValue value, const Rules* rules, std::string& out);

/// What a type is called: a class's name, or what kind of value it is.
std::string NameOfType(const TypeDescription& type);

}  // namespace krm::comparing

#endif  // KRM_EXCHANGE_INTERNAL_COMPARE_TEXT_H_
