// Texts as template arguments, and the text that several of them make, all while compiling.
#ifndef KRM_FRAMEWORK_LITERAL_H_
#define KRM_FRAMEWORK_LITERAL_H_

#include <cstddef>
#include <string_view>

namespace krm {

/// A text literal that can be a template argument: `template <krm::Literal name> ...`. `Size` counts its NUL.
template <std::size_t Size>
struct Literal {
    /// The text of a literal.
    consteval Literal(const char (&text)[Size]) {  // NOLINT: a literal converts by itself
        for (std::size_t i = 0; i < Size; ++i) {
            characters[i] = text[i];
        }
    }
    /// NULs only, to be filled.
    constexpr Literal() = default;

    /// The text, with a NUL behind it.
    constexpr const char* Text() const { return characters; }
    /// The text without its NUL.
    constexpr std::string_view View() const { return {characters, Size - 1}; }

    char characters[Size]{};  ///< public, as a template argument must be
};

/// The texts one behind the other.
template <Literal... parts>
consteval auto Joined() {
    Literal<(sizeof...(parts) == 0 ? 1 : ((sizeof parts.characters - 1) + ... + 1))> joined;
    std::size_t end = 0;
    const auto append = [&](std::string_view part) {
        for (const char character : part) {
            joined.characters[end++] = character;
        }
    };
    (append(parts.View()), ...);
    return joined;
}

}  // namespace krm

#endif  // KRM_FRAMEWORK_LITERAL_H_
