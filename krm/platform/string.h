// Conveniences for CKRMString: comparison, hashing, streams, concatenation, and the way from and to the standard strings.
//
//     if (code.m_strDTC == "P0301") ...
//     std::cout << code.m_strDTC << '\n';
//     std::unordered_map<CKRMString, int> count;
//     code.m_strComment = krm::MakeString(name) + ", " + unit;    // name: std::string, std::string_view, const char*
//     std::string text = krm::ToString(code.m_strDTC);
//
// A text is a CKRMString, a `const char*`, of which null counts as empty, a std::string or a std::string_view; none of the
// operators makes one out of another to compare them. Built on the members that every platform's CKRMString has
// (constructor, GetText, GetLength, +=), so it serves them all.
//
// std::format and its like take `krm::View(text)`, and krm_ulong as any other number.
#ifndef KRM_PLATFORM_STRING_H_
#define KRM_PLATFORM_STRING_H_

#include <compare>
#include <concepts>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "krm/platform/platform.h"

namespace krm {

/// Whether `T` is CKRMString. The operators ask for exactly this class: what merely converts to a CKRMString, as every
/// `const char*` does, keeps the operators that it had.
template <class T>
concept IsString = std::same_as<T, CKRMString>;
/// Whether `T` is, or converts to, a `const char*` or a std::string_view. A literal nullptr is no text: compared with it, a
/// string would look like a pointer.
template <class T>
concept IsStandardText =
    !IsString<T> && !std::same_as<T, std::nullptr_t> &&
    (std::convertible_to<const T&, const char*> || std::convertible_to<const T&, std::string_view>);
/// Whether `T` is either kind of text.
template <class T>
concept IsText = IsString<T> || IsStandardText<T>;

/// The bytes of `text`, NULs within a CKRMString among them; valid as long as they are there and unchanged.
template <IsText Text>
std::string_view View(const Text& text) {
    if constexpr (IsString<Text>) {
        return {text.GetText(), text.GetLength()};
    } else if constexpr (std::convertible_to<const Text&, const char*>) {
        const char* const characters = text;
        return characters == nullptr ? std::string_view() : std::string_view(characters);
    } else {
        return text;
    }
}

/// A copy of the bytes of `text`.
template <IsText Text>
std::string ToString(const Text& text) {
    return std::string(View(text));
}

/// `text` as a CKRMString. It ends at the first NUL, whatever follows: a CKRMString is made from a NUL-terminated text.
template <IsStandardText Text>
CKRMString MakeString(const Text& text) {
    if constexpr (std::convertible_to<const Text&, const char*>) {
        return CKRMString(static_cast<const char*>(text));
    } else {
        return CKRMString(ToString(text).c_str());
    }
}

}  // namespace krm

// Global, as the class is: so they are found wherever it is used.

/// Whether the bytes are the same. A NUL within a CKRMString counts, unlike in CKRMString::Compare.
template <krm::IsString String, krm::IsText Text>
bool operator==(const String& left, const Text& right) {
    return krm::View(left) == krm::View(right);
}

/// Orders by bytes as unsigned numbers, and a text before those that it begins.
template <krm::IsString String, krm::IsText Text>
std::strong_ordering operator<=>(const String& left, const Text& right) {
    return krm::View(left).compare(krm::View(right)) <=> 0;
}

/// Appends `right` up to its first NUL. For what the member += doesn't take.
template <krm::IsString String, krm::IsStandardText Text>
requires(!std::convertible_to<const Text&, const char*>) String& operator+=(String& left, const Text& right) {
    left += krm::MakeString(right);
    return left;
}

/// The texts one behind the other, each standard text up to its first NUL.
template <krm::IsString String, krm::IsText Text>
String operator+(String left, const Text& right) {
    left += right;
    return left;
}
/// The same with the standard text in front.
template <krm::IsStandardText Text, krm::IsString String>
String operator+(const Text& left, const String& right) {
    String both = krm::MakeString(left);
    both += right;
    return both;
}

/// Writes the bytes, as the stream writes a std::string_view: with its width and fill.
template <krm::IsString String>
std::ostream& operator<<(std::ostream& stream, const String& text) {
    return stream << krm::View(text);
}

/// What std::hash gives for a CKRMString: the hash of a std::string_view on its bytes.
template <>
struct std::hash<CKRMString> {
    /// The hash of `text`.
    std::size_t operator()(const CKRMString& text) const noexcept {
        return std::hash<std::string_view>()(krm::View(text));
    }
};

#endif  // KRM_PLATFORM_STRING_H_
