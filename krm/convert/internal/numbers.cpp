#include "krm/convert/internal/numbers.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace krm::convert {

namespace {

/// Writes what nearly every signal needs in integers alone, exactly as std::to_chars would, in a fraction of its time: a
/// value of at most three decimals and below 2^53. Returns the end of the text, or null for any other value.
///
/// The value is m x 2^-shift with a 53-bit m. m x 1000 fits 63 bits, so the scaled value is exact, and rounding it to an
/// integer, ties to even, rounds the decimal text correctly.
char* WriteShortDecimal(double value, unsigned char decimals, char* first, char* last) {
    constexpr std::array<std::uint64_t, 4> kScales = {1, 10, 100, 1000};
    constexpr int kFractionBits = 52;
    constexpr int kExponentBias = 1023;
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const int shift = kExponentBias + kFractionBits - static_cast<int>((bits >> kFractionBits) & 0x7FFU);
    if (decimals >= kScales.size() || shift < 1 || shift > 63) {
        return nullptr;
    }
    const std::uint64_t mantissa =
        (bits & ((std::uint64_t{1} << kFractionBits) - 1)) | (std::uint64_t{1} << kFractionBits);
    const std::uint64_t scale = kScales[decimals];
    const std::uint64_t scaled = mantissa * scale;
    const std::uint64_t half = std::uint64_t{1} << (shift - 1);
    const std::uint64_t dropped = scaled & ((half << 1U) - 1);
    std::uint64_t number = scaled >> shift;
    number += static_cast<std::uint64_t>(dropped > half || (dropped == half && (number & 1U) != 0));

    char* end = first;
    if ((bits >> 63U) != 0) {
        *end++ = '-';
    }
    end = std::to_chars(end, last, number / scale).ptr;
    if (decimals > 0) {
        *end = '.';
        std::uint64_t fraction = number % scale;
        for (int i = decimals; i > 0; --i) {
            end[i] = static_cast<char>('0' + fraction % 10);
            fraction /= 10;
        }
        end += decimals + 1;
    }
    return end;
}

}  // namespace

DecimalText::DecimalText(double value, unsigned char decimals) {
    char* const first = m_text.data();
    char* const last = first + m_text.size() - 1;
    char* end = WriteShortDecimal(value, decimals, first, last);
    if (end == nullptr && std::isnan(value)) {  // some libraries' to_chars adds which kind of NaN it is
        const std::string_view name = std::signbit(value) ? "-nan" : "nan";
        end = std::copy(name.begin(), name.end(), first);
    } else if (end == nullptr) {
        end = std::to_chars(first, last, value, std::chars_format::fixed, decimals).ptr;
    }
    *end = '\0';
}

void AssignHex(CKRMString& result, const char* prefix, double value, unsigned short bitLength) {
    constexpr std::size_t kMostDigits = (0xFFFF + 3) / 4;
    constexpr std::size_t kPrefixRoom = 2;
    std::array<char, kPrefixRoom + kMostDigits + 1> text;  // a value's own digits, at most 8, are fewer

    std::array<char, 8> digits;
    char* const digitsEnd = std::to_chars(digits.data(), digits.data() + digits.size(), TruncateToLow32(value), 16).ptr;
    const auto count = static_cast<std::size_t>(digitsEnd - digits.data());
    const auto width = static_cast<std::size_t>((bitLength + 3) / 4);

    char* end = text.data();
    for (const char* p = prefix; *p != '\0'; ++p) {
        *end++ = *p;
    }
    if (width > count) {
        end = std::fill_n(end, width - count, '0');
    }
    for (const char* p = digits.data(); p != digitsEnd; ++p) {
        *end++ = *p >= 'a' ? static_cast<char>(*p - 'a' + 'A') : *p;
    }
    *end = '\0';
    result = text.data();
}

bool TakeFirstByte(CKRMCCommandDispData* record, const unsigned char* data, krm_ulong dataLen) {
    if (record == nullptr || data == nullptr || dataLen == 0) {
        return false;
    }
    record->m_ulRawData = data[0];
    record->m_dDataPhys = data[0];
    return true;
}

void AssignBytesAsText(CKRMString& result, const unsigned char* data, krm_ulong dataLen) {
    constexpr krm_ulong kMostBytes = 255;
    std::array<char, kMostBytes + 1> text;
    const std::size_t length = dataLen < kMostBytes ? dataLen : kMostBytes;
    std::memcpy(text.data(), data, length);
    text[length] = '\0';
    result = text.data();
}

}  // namespace krm::convert
