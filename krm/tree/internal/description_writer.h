// Writes a description. Part of the tree's inside.
#ifndef KRM_TREE_INTERNAL_DESCRIPTION_WRITER_H_
#define KRM_TREE_INTERNAL_DESCRIPTION_WRITER_H_

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "krm/core/internal/digits.h"
#include "krm/platform/platform.h"

namespace krm::tree {

/// Collects a text and appends it to a string in large pieces: each of the dozen pieces of a tag by itself would cost more
/// than its copying. What is still collected is lost unless Flush is called.
class DescriptionWriter {
public:
    explicit DescriptionWriter(CKRMString& out) : m_out(out) {}
    DescriptionWriter(const DescriptionWriter&) = delete;
    DescriptionWriter& operator=(const DescriptionWriter&) = delete;

    /// Appends the texts, each with a NUL behind it.
    template <class... Texts>
    void Append(const Texts&... texts) {
        AppendViews(View(texts)...);
    }
    /// Appends a number in decimal.
    template <std::integral Number>
    void AppendNumber(Number number) {
        m_length =
            static_cast<std::size_t>(core::WriteDecimal(Room(core::kDecimalRoom<Number>), number) - m_room.get());
    }
    /// Appends the number's low 32 bits as eight hexadecimal digits.
    void AppendHexadecimal(std::uintptr_t number) {
        constexpr std::size_t kDigits = 8;
        char* const to = Room(kDigits);
        m_length = static_cast<std::size_t>(
            core::WriteHexadecimal(to, static_cast<std::uint32_t>(number), core::kUpperCase, kDigits) - m_room.get());
    }

    /// Hands over what has been collected.
    void Flush() {
        m_room[m_length] = '\0';
        m_out += m_room.get();
        m_length = 0;
    }

private:
    static constexpr std::size_t kRoom = 4095;

    static std::string_view View(const char* text) { return text; }
    static std::string_view View(const CKRMString& text) { return {text.GetText(), text.GetLength()}; }

    template <class... Views>
    void AppendViews(const Views&... views) {
        const std::size_t length = (views.size() + ...);
        if (length > kRoom) {
            Flush();
            ((m_out += views.data()), ...);
            return;
        }
        char* to = Room(length);
        ((to += views.copy(to, views.size())), ...);
        m_length += length;
    }

    /// Where up to `count` characters, at most kRoom, may be written.
    char* Room(std::size_t count) {
        if (count > kRoom - m_length) {
            Flush();
        }
        return m_room.get() + m_length;
    }

    CKRMString& m_out;
    std::size_t m_length = 0;
    // Not on the stack: a description of an overriding class encloses those of all its followers, each with one of these.
    std::unique_ptr<char[]> m_room = std::make_unique_for_overwrite<char[]>(kRoom + 1);
};

}  // namespace krm::tree

#endif  // KRM_TREE_INTERNAL_DESCRIPTION_WRITER_H_
