// Text on its way to a stream, in large pieces.
#ifndef KRM_CLI_TERMINAL_GATHERED_TEXT_H_
#define KRM_CLI_TERMINAL_GATHERED_TEXT_H_

#include <charconv>
#include <concepts>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace terminal {

/// Gathers what is written. `Out`, the class derived from it, has `void Flush()`, which writes it out.
template <class Out>
class GatheredText {
public:
    Out& operator<<(std::string_view text) {
        m_text += text;
        return Derived();
    }
    Out& operator<<(char character) {
        m_text += character;
        return Derived();
    }
    template <std::integral Number>
    requires(!std::same_as<Number, char> && !std::same_as<Number, bool>) Out& operator<<(Number number) {
        char digits[24];
        const auto [end, error] = std::to_chars(digits, digits + sizeof digits, number);
        m_text.append(digits, end);
        return Derived();
    }
    /// Writes out what has gathered, if it is much.
    void FlushIfMuch() {
        if (m_text.size() >= kMuch) {
            Derived().Flush();
        }
    }
    /// Called before something is written out.
    void BeforeWriting(std::function<void()> call) { m_beforeWriting = std::move(call); }

protected:
    static constexpr std::size_t kMuch = std::size_t{64} * 1024;

    GatheredText() = default;

    std::string m_text;
    std::function<void()> m_beforeWriting = [] {};

private:
    Out& Derived() { return static_cast<Out&>(*this); }
};

}  // namespace terminal

#endif  // KRM_CLI_TERMINAL_GATHERED_TEXT_H_
