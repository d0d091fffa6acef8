#include "krm/convert/internal/numbers.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "krm/core/internal/digits.h"

namespace krm::convert {

namespace {

/// Writes what nearly every signal needs in integers alone, exactly as std::to_chars would, in a fraction of its time: a
/// value of at most three decimals and below 2^53. Returns the end of the text, or null for any other value.
///
/// The value is m x 2^-shift with a 53-bit m. m x 1000 fits 63 bits, so the scaled value is exact, and rounding it to an
/// integer, ties to even, rounds the decimal text correctly.
char* WriteShortDecimal(char* first, double value, unsigned char decimals) {
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
    end = core::WriteDecimal(end, number / scale);
    if (decimals > 0) {
        *end++ = '.';
        end = core::WriteLastDecimals(end, number, decimals);
    }
    return end;
}

}  // namespace

DecimalText::DecimalText(double value, unsigned char decimals) {
    char* const first = m_text.data() + kRoomInFront;
    char* const last = m_text.data() + m_text.size() - 1;
    char* end = WriteShortDecimal(first, value, decimals);
    if (end == nullptr && std::isnan(value)) {  // some libraries' to_chars adds which kind of NaN it is
        const std::string_view name = std::signbit(value) ? "-nan" : "nan";
        end = std::copy(name.begin(), name.end(), first);
    } else if (end == nullptr) {
        end = std::to_chars(first, last, value, std::chars_format::fixed, decimals).ptr;
    }
    *end = '\0';
}

krm_ulong AssignHex(CKRMString* result, std::string_view prefix, double value, unsigned short bitLength) {
    if (result == nullptr) {
        return kNullArgument;
    }
    constexpr std::size_t kMostDigits = (0xFFFF + 3) / 4;
    constexpr std::size_t kPrefixRoom = 2;
    std::array<char, kPrefixRoom + kMostDigits + 1> text;  // a value's own digits, at most 8, are fewer
    const auto width = static_cast<std::size_t>((bitLength + 3) / 4);
    char* end = std::copy(prefix.begin(), prefix.end(), text.data());
    end = core::WriteHexadecimal(end, TruncateToLow32(value), core::kUpperCase, width);
    *end = '\0';
    *result = text.data();
    return 0;
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
