// Small things of texts: patterns with `*`, numbers as logs and people write them, texts as a terminal may show them.
#ifndef KRM_CLI_PATTERNS_H_
#define KRM_CLI_PATTERNS_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace krm_cli {

/// Whether the text is the pattern's, in which `*` stands for any characters, or none. ASCII's letters of either case are
/// the same.
bool Matches(std::string_view pattern, std::string_view text);
/// Whether it occurs in the text, likewise. REQUIRES: `lower` has no upper-case letters.
bool Contains(std::string_view text, std::string_view lower);
/// The text with ASCII's letters in lower case.
std::string Lower(std::string_view text);

/// A number: decimal, with a fraction or an exponent or not, hexadecimal behind 0x, signed and behind it unsigned in
/// brackets, or true and false, which are 1 and 0. Nothing else may stand there.
std::optional<double> NumberIn(std::string_view text);
/// 32 bits of a number that may have been written with a sign or without: -1 gives what 4294967295 does. Digits alone, behind
/// a minus or not.
std::optional<std::uint32_t> BitsIn(std::string_view digits, int base);
/// The number with the fewest digits that read back to the same bits; without an exponent from 0.000001 to 999999999999999.
std::string TextOf(double number);
/// Whether this is what may stand behind a number's digits: nothing, or the same number unsigned, as "%d(%u)" writes it.
bool IsEndOfNumber(std::string_view rest);

/// The text in UTF-8, on one line and harmless: text that isn't UTF-8 is taken for Latin-1; control characters are \xNN, those
/// that change the direction of what is shown \uNNNN.
std::string Shown(std::string_view text);

/// The first bytes of a text, at most so many, and no half character of UTF-8 at their end.
std::string_view FirstOf(std::string_view text, std::size_t most);

/// Appends the text as a string of JSON; as `{"$bytes":"8347"}` where it isn't UTF-8.
void AppendJson(std::string_view text, std::string& out);

/// The last name of a path without its index or key: "m_strDTC" of "Data[0].m_strDTC", "m_uchSSRNo" of
/// "Data[0].m_uchSSRNo[1]", "m_cResourceMap" of `m_cResourceMap["help.title"]`.
std::string_view LastName(std::string_view path);

}  // namespace krm_cli

#endif  // KRM_CLI_PATTERNS_H_
