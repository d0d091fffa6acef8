#include "krm/convert/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

namespace krm::convert {

DecimalText::DecimalText(double value, unsigned char decimals) {
    char* const first = m_text.data();
    if (std::isnan(value)) {  // some libraries' to_chars adds which kind of NaN it is
        const std::string_view name = std::signbit(value) ? "-nan" : "nan";
        *std::copy(name.begin(), name.end(), first) = '\0';
        return;
    }
    *std::to_chars(first, first + m_text.size() - 1, value, std::chars_format::fixed, decimals).ptr = '\0';
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
        std::memset(end, '0', width - count);
        end += width - count;
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
