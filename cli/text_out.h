// What a subcommand writes: text in large pieces, colours where there is a terminal, and JSON.
#ifndef KRM_CLI_TEXT_OUT_H_
#define KRM_CLI_TEXT_OUT_H_

#include <string_view>

#include "cli/surroundings.h"
#include "cli/terminal/gathered_text.h"

namespace krm_cli {

/// How a part of a line stands out, as the escape sequence of ECMA-48 for it.
namespace colour {
inline constexpr std::string_view kDim = "\x1b[2m";
inline constexpr std::string_view kBold = "\x1b[1m";
inline constexpr std::string_view kRed = "\x1b[31m";
inline constexpr std::string_view kGreen = "\x1b[32m";
inline constexpr std::string_view kYellow = "\x1b[33m";
inline constexpr std::string_view kCyan = "\x1b[36m";
}  // namespace colour

/// Text on its way to standard output. Throws Failure when the stream takes no more.
class TextOut : public terminal::GatheredText<TextOut> {
public:
    explicit TextOut(const Surroundings& surroundings) : m_surroundings(surroundings) {}

    /// The text in this colour, where colours are wanted; an empty one is none.
    TextOut& Coloured(std::string_view colour, std::string_view text);
    /// The text as a string of JSON; as `{"$bytes":"8347"}` where it isn't UTF-8.
    TextOut& Json(std::string_view text);

    void Flush();

private:
    const Surroundings& m_surroundings;
};

}  // namespace krm_cli

#endif  // KRM_CLI_TEXT_OUT_H_
