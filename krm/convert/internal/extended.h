// 80-bit extended precision: 64 bits of mantissa, each step rounded to nearest, ties to even. Part of the library's
// inside.
//
// The physical value of a signal is defined in this precision; plain double differs in the last bit for one scaling in
// eight. Where the compiler's long double is just this, it is used. Elsewhere (MSVC), and on Windows, where a program may
// have set the processor to 53 bits, SoftExtended computes the same in integers.
#ifndef KRM_CONVERT_INTERNAL_EXTENDED_H_
#define KRM_CONVERT_INTERNAL_EXTENDED_H_

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <utility>

#include "krm/core/types.h"

namespace krm::convert {

/// Extended precision in integers. Holds finite values far from the ends of the exponent range, which is all that a
/// scaling of 64-bit integers by 32-bit integers and powers of ten up to 10^255 can give; zero has no sign.
class SoftExtended {
public:
    explicit SoftExtended(krm_int64 value)
        : m_negative(value < 0),
          m_mantissa(value < 0 ? std::uint64_t{0} - static_cast<std::uint64_t>(value)
                               : static_cast<std::uint64_t>(value)) {
        Normalise();
    }

    /// REQUIRES: `value` is finite.
    explicit SoftExtended(double value) : m_negative(value < 0) {
        const double fraction = std::frexp(std::fabs(value), &m_exponent);  // exactly 53 bits behind the point
        m_mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, 53));
        m_exponent -= 53;
        Normalise();
    }

    friend SoftExtended operator*(SoftExtended left, SoftExtended right) {
        const std::uint64_t leftHigh = left.m_mantissa >> 32U;
        const std::uint64_t leftLow = left.m_mantissa & 0xFFFFFFFFU;
        const std::uint64_t rightHigh = right.m_mantissa >> 32U;
        const std::uint64_t rightLow = right.m_mantissa & 0xFFFFFFFFU;
        const std::uint64_t lowLow = leftLow * rightLow;
        const std::uint64_t highLow = leftHigh * rightLow;
        const std::uint64_t middle = leftLow * rightHigh + (lowLow >> 32U) + (highLow & 0xFFFFFFFFU);
        const std::uint64_t high = leftHigh * rightHigh + (highLow >> 32U) + (middle >> 32U);
        const std::uint64_t low = (middle << 32U) | (lowLow & 0xFFFFFFFFU);
        return Rounded(left.m_negative != right.m_negative, high, low, left.m_exponent + right.m_exponent);
    }

    /// REQUIRES: `right` is not zero.
    friend SoftExtended operator/(SoftExtended left, SoftExtended right) {
        // Bit by bit: 66 quotient bits, of which the first or the second is set, then a bit for what remains.
        std::uint64_t remainder = left.m_mantissa;
        bool carry = false;  // the remainder's 65th bit
        std::uint64_t high = 0;
        std::uint64_t low = 0;
        for (int i = 0; i < 66; ++i) {
            const bool bit = carry || remainder >= right.m_mantissa;
            if (bit) {
                remainder -= right.m_mantissa;
            }
            high = (high << 1U) | (low >> 63U);
            low = (low << 1U) | static_cast<std::uint64_t>(bit);
            carry = (remainder >> 63U) != 0;
            remainder <<= 1U;
        }
        high = (high << 1U) | (low >> 63U);
        low = (low << 1U) | static_cast<std::uint64_t>(carry || remainder != 0);
        return Rounded(left.m_negative != right.m_negative, high, low, left.m_exponent - right.m_exponent - 66);
    }

    friend SoftExtended operator+(SoftExtended left, SoftExtended right) {
        if (left.m_mantissa == 0) {
            return right;
        }
        if (right.m_mantissa == 0) {
            return left;
        }
        if (left.m_exponent < right.m_exponent ||
            (left.m_exponent == right.m_exponent && left.m_mantissa < right.m_mantissa)) {
            std::swap(left, right);
        }
        // The smaller one is shifted behind the larger; bits that fall off below 128 leave a mark in the lowest.
        const int distance = left.m_exponent - right.m_exponent;
        std::uint64_t high = distance < 64 ? right.m_mantissa >> distance : 0;
        std::uint64_t low = 0;
        if (distance >= 128) {
            low = 1;
        } else if (distance > 64) {
            low = right.m_mantissa >> (distance - 64);
            low |= static_cast<std::uint64_t>((right.m_mantissa << (128 - distance)) != 0);
        } else if (distance > 0) {
            low = right.m_mantissa << (64 - distance);
        }
        int exponent = left.m_exponent - 64;
        if (left.m_negative != right.m_negative) {
            const std::uint64_t borrow = low != 0 ? 1 : 0;
            low = std::uint64_t{0} - low;
            high = left.m_mantissa - high - borrow;
        } else {
            high += left.m_mantissa;
            if (high < left.m_mantissa) {
                low = (high << 63U) | (low >> 1U) | (low & 1U);
                high = (high >> 1U) | (std::uint64_t{1} << 63U);
                ++exponent;
            }
        }
        return Rounded(left.m_negative, high, low, exponent);
    }

    /// Rounded once more, to a double.
    explicit operator double() const {
        const std::uint64_t dropped = m_mantissa & 0x7FFU;
        std::uint64_t kept = m_mantissa >> 11U;
        kept += static_cast<std::uint64_t>(dropped > 0x400U || (dropped == 0x400U && (kept & 1U) != 0));
        const double magnitude = std::ldexp(static_cast<double>(kept), m_exponent + 11);
        return m_negative ? -magnitude : magnitude;
    }

private:
    SoftExtended(bool negative, std::uint64_t mantissa, int exponent)
        : m_negative(negative), m_mantissa(mantissa), m_exponent(exponent) {}

    /// (`high` x 2^64 + `low`) x 2^`exponent`, rounded to 64 bits.
    static SoftExtended Rounded(bool negative, std::uint64_t high, std::uint64_t low, int exponent) {
        if (high == 0) {
            high = low;
            low = 0;
            exponent -= 64;
        }
        if (high == 0) {
            return {false, 0, 0};
        }
        const int shift = std::countl_zero(high);
        if (shift > 0) {
            high = (high << shift) | (low >> (64 - shift));
            low <<= shift;
            exponent -= shift;
        }
        constexpr std::uint64_t kHalf = std::uint64_t{1} << 63U;
        if (low > kHalf || (low == kHalf && (high & 1U) != 0)) {
            ++high;
            if (high == 0) {
                high = kHalf;
                ++exponent;
            }
        }
        return {negative, high, exponent + 64};
    }

    void Normalise() {
        if (m_mantissa == 0) {
            m_negative = false;
            m_exponent = 0;
            return;
        }
        const int shift = std::countl_zero(m_mantissa);
        m_mantissa <<= shift;
        m_exponent -= shift;
    }

    // The value is m_mantissa x 2^m_exponent; the mantissa's top bit is set unless the value is 0.
    bool m_negative;
    std::uint64_t m_mantissa = 0;
    int m_exponent = 0;
};

#if LDBL_MANT_DIG == 64 && !defined(_WIN32)
using Extended = long double;
#else
using Extended = SoftExtended;
#endif

}  // namespace krm::convert

#endif  // KRM_CONVERT_INTERNAL_EXTENDED_H_
