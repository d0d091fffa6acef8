// Arithmetic and texts that the converters share. Part of the library's inside.
#ifndef KRM_CONVERT_INTERNAL_NUMBERS_H_
#define KRM_CONVERT_INTERNAL_NUMBERS_H_

#include <array>
#include <cstddef>
#include <limits>
#include <string_view>

#include "krm/core/error_codes.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

namespace krm::convert {

/// `value` truncated toward zero. NaN and what 64 bits can't hold give the most negative integer, as the conversion
/// instruction of the processor does; its low 32 bits are 0.
inline krm_int64 Truncate(double value) {
    constexpr double kLimit = 9223372036854775808.0;  // 2^63
    return value >= -kLimit && value < kLimit ? static_cast<krm_int64>(value) : std::numeric_limits<krm_int64>::min();
}

/// The low 32 bits of `value`.
inline krm_ulong Low32(krm_int64 value) {
    return static_cast<krm_ulong>(value & 0xFFFFFFFF);
}

/// The low 32 bits of `value` truncated toward zero.
inline krm_ulong TruncateToLow32(double value) {
    return Low32(Truncate(value));
}

/// 10^`exponent` by repeated squaring in double. From 10^23 on that is not always the nearest double; it is part of the
/// result all the same, so that values compare equal with those that a user has recorded.
constexpr double RepeatedSquaring(unsigned exponent) {
    double result = 1;
    double base = 10;
    for (; exponent != 0; exponent >>= 1U) {
        if ((exponent & 1U) != 0) {
            result *= base;
        }
        base *= base;
    }
    return result;
}

inline constexpr std::array<double, 256> kPowersOfTen = [] {
    std::array<double, 256> powers{};
    for (unsigned exponent = 0; exponent < powers.size(); ++exponent) {
        powers[exponent] = RepeatedSquaring(exponent);
    }
    return powers;
}();

inline double PowerOfTen(unsigned char exponent) {
    return kPowersOfTen[exponent];
}

/// Whether a scaling divides: the divisor, taken as unsigned, is above 1. The division itself is signed.
inline bool Divides(krm_long divisor) {
    return static_cast<krm_ulong>(divisor) > 1;
}

/// Text of a double with a fixed number of decimals; never cut, not allocated.
class DecimalText {
public:
    DecimalText(double value, unsigned char decimals);

    const char* Text() const { return m_text.data() + kRoomInFront; }
    /// The text with a character in front of it.
    const char* TextBehind(char first) {
        m_text[0] = first;
        return m_text.data();
    }

private:
    static constexpr std::size_t kRoomInFront = 1;

    // Sign, the 309 digits of the largest double, point, 255 decimals, NUL.
    std::array<char, kRoomInFront + 1 + 309 + 1 + 255 + 1> m_text;
};

/// Assigns a physical value that needs no step; the status of a converter's operation.
inline krm_ulong AssignValue(double* result, double value) {
    if (result == nullptr) {
        return kNullArgument;
    }
    *result = value;
    return 0;
}

/// Assigns `prefix` and the low 32 bits of `value`, truncated, in upper-case hexadecimal with at least one digit per
/// four bits of `bitLength`; the status of a converter's operation.
krm_ulong AssignHex(CKRMString* result, std::string_view prefix, double value, unsigned short bitLength);

/// Sets the words ID of a text to 0: no pattern. Callers may leave it out.
inline void ResetStringId(krm_ulong* stringId) {
    if (stringId != nullptr) {
        *stringId = 0;
    }
}

/// What most text conversions start with: false without a result, else the words ID is reset.
inline bool BeginText(const CKRMString* result, krm_ulong* stringId) {
    if (result == nullptr) {
        return false;
    }
    ResetStringId(stringId);
    return true;
}

/// What every byte-array conversion starts with: the first byte becomes raw and physical value of `*record`. False, and
/// nothing done, without a record or bytes.
bool TakeFirstByte(CKRMCCommandDispData* record, const unsigned char* data, krm_ulong dataLen);

/// Assigns the first 255 bytes as text, up to a NUL. REQUIRES: `data` is not null.
void AssignBytesAsText(CKRMString& result, const unsigned char* data, krm_ulong dataLen);

}  // namespace krm::convert

#endif  // KRM_CONVERT_INTERNAL_NUMBERS_H_
