// The one way in which the library writes the digits of an integer: into the caller's room, without a format, a locale or
// an allocation. Part of the library's inside.
//
// Each function writes from `to` on and returns the end of what it wrote; no NUL follows.
#ifndef KRM_CORE_INTERNAL_DIGITS_H_
#define KRM_CORE_INTERNAL_DIGITS_H_

#include <algorithm>
#include <bit>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <limits>

namespace krm::core {

/// The digits of hexadecimal numbers; those of smaller bases are the first of them.
inline constexpr char kLowerCase[] = "0123456789abcdef";
inline constexpr char kUpperCase[] = "0123456789ABCDEF";

/// The most characters that a number of this type has in decimal: its digits, and a minus sign if it can be negative.
template <std::integral Number>
inline constexpr std::size_t kDecimalRoom = std::numeric_limits<Number>::digits10 +
                                            (std::signed_integral<Number> ? 2 : 1);

/// A number in decimal, with a minus sign where it is negative. REQUIRES: room for kDecimalRoom<Number> characters.
template <std::integral Number>
char* WriteDecimal(char* to, Number number) {
    return std::to_chars(to, to + kDecimalRoom<Number>, number).ptr;
}

/// The last `count` decimal digits of a number, zeros where it has fewer.
template <std::unsigned_integral Number>
char* WriteLastDecimals(char* to, Number number, std::size_t count) {
    for (char* digit = to + count; digit != to; number /= 10) {
        *--digit = static_cast<char>('0' + number % 10);
    }
    return to + count;
}

/// A number in decimal, filled with leading zeros to `width` digits. REQUIRES: room for kDecimalRoom<Number> characters,
/// and for `width`.
template <std::unsigned_integral Number>
char* WriteDecimal(char* to, Number number, std::size_t width) {
    if (width <= 1) {
        return WriteDecimal(to, number);
    }
    // The last digits first: mostly there are no others.
    Number others = number;
    for (char* digit = to + width; digit != to; others /= 10) {
        *--digit = static_cast<char>('0' + others % 10);
    }
    return others == 0 ? to + width : WriteDecimal(to, number);
}

/// A number in the base of which a digit holds `kBits` bits, filled with leading zeros to `width` digits. A number of n
/// bits has at most n / `kBits` digits, rounded up.
template <unsigned kBits, std::unsigned_integral Number>
char* WriteBits(char* to, Number number, std::size_t width = 1, const char* digits = kLowerCase) {
    constexpr std::size_t kMost = (std::numeric_limits<Number>::digits + kBits - 1) / kBits;
    if (width > kMost) {
        to = std::fill_n(to, width - kMost, '0');
        width = kMost;
    }
    const auto bits = static_cast<std::size_t>(std::bit_width(static_cast<Number>(number | 1U)));
    const std::size_t count = std::max((bits + kBits - 1) / kBits, width);
    for (char* digit = to + count; digit != to; number >>= kBits) {
        *--digit = digits[number & ((1U << kBits) - 1)];
    }
    return to + count;
}

/// A number in hexadecimal, with the digits kLowerCase or kUpperCase.
template <std::unsigned_integral Number>
char* WriteHexadecimal(char* to, Number number, const char* digits, std::size_t width = 1) {
    return WriteBits<4>(to, number, width, digits);
}

/// A byte as two hexadecimal digits.
inline char* WriteByte(char* to, unsigned char byte, const char* digits) {
    to[0] = digits[byte >> 4U];
    to[1] = digits[byte & 0xFU];
    return to + 2;
}

}  // namespace krm::core

#endif  // KRM_CORE_INTERNAL_DIGITS_H_
