// 80-bit extended precision: 64 bits of mantissa, each step rounded to nearest, ties to even. Part of the library's
// inside.
//
// The physical value of a signal is defined in this precision; plain double differs in the last bit for one scaling in
// eight. Where the compiler's long double is just this, it is used; elsewhere (MSVC, ARM) SoftExtended computes the same in
// integers.
#ifndef KRM_CONVERT_INTERNAL_EXTENDED_H_
#define KRM_CONVERT_INTERNAL_EXTENDED_H_

#include <bit>
#include <cfloat>
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

    /// REQUIRES: `value` is 0 or a normal number.
    explicit SoftExtended(double value) {
        const auto bits = std::bit_cast<std::uint64_t>(value);
        const std::uint64_t exponent = bits >> kFractionBits & kExponentMask;
        if (exponent != 0) {
            m_negative = bits >> 63U != 0;
            m_mantissa = (bits << 11U) | kTopBit;
            m_exponent = static_cast<int>(exponent) - kExponentBias - 63;
        }
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
        // Halved where the quotient would need a 65th bit; else it has all 64.
        const unsigned halved = left.m_mantissa >= right.m_mantissa ? 1 : 0;
        const std::uint64_t high = left.m_mantissa >> halved;
        const std::uint64_t low = halved != 0 ? left.m_mantissa << 63U : 0;
        const auto [quotient, remainder] = Divided(high, low, right.m_mantissa);
        // What the remainder makes of the bits behind the quotient: below or above half a unit. It is never just half, for
        // the quotient's 65 bits times the divisor, with the last one set, would not fit the dividend's 64.
        const std::uint64_t rest = remainder > right.m_mantissa - remainder ? ~std::uint64_t{0} : remainder != 0;
        return Rounded(left.m_negative != right.m_negative, quotient, rest,
                       left.m_exponent - right.m_exponent + static_cast<int>(halved) - 128);
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
                high = (high >> 1U) | kTopBit;
                ++exponent;
            }
        }
        return Rounded(left.m_negative, high, low, exponent);
    }

    /// Rounded once more, to a double. REQUIRES: that is 0 or a normal number.
    explicit operator double() const {
        if (m_mantissa == 0) {
            return 0;
        }
        const std::uint64_t dropped = m_mantissa & 0x7FFU;
        const std::uint64_t kept = m_mantissa >> 11U;
        const auto roundedUp = static_cast<std::uint64_t>(dropped > 0x400U || (dropped == 0x400U && (kept & 1U) != 0));
        // Added up: the fraction's carry goes into the exponent. The mantissa's top bit counts one there.
        const std::uint64_t exponent = static_cast<std::uint64_t>(m_exponent + 63 + kExponentBias - 1) << kFractionBits;
        const std::uint64_t sign = m_negative ? kTopBit : 0;
        return std::bit_cast<double>(sign | (exponent + kept + roundedUp));
    }

private:
    static constexpr std::uint64_t kTopBit = std::uint64_t{1} << 63U;
    static constexpr int kFractionBits = 52;  // of a double
    static constexpr std::uint64_t kExponentMask = 0x7FF;
    static constexpr int kExponentBias = 1023;

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
        if (low > kTopBit || (low == kTopBit && (high & 1U) != 0)) {
            ++high;
            if (high == 0) {
                high = kTopBit;
                ++exponent;
            }
        }
        return {negative, high, exponent + 64};
    }

    struct Quotient {
        std::uint64_t quotient;
        std::uint64_t remainder;
    };

    /// (`high` x 2^64 + `low`) / `divisor`, digit by digit with digits of 32 bits. REQUIRES: the divisor's top bit is set,
    /// and `high` is below it.
    static Quotient Divided(std::uint64_t high, std::uint64_t low, std::uint64_t divisor) {
        const std::uint64_t first = NextDigit(high, low >> 32U, divisor);
        const std::uint64_t second = NextDigit(high, low & 0xFFFFFFFFU, divisor);
        return {first << 32U | second, high};
    }

    /// The next quotient digit of `remainder`, to which `digit` is appended, and of which the new remainder is left. The
    /// estimate from the divisor's upper half is at most two too large.
    static std::uint64_t NextDigit(std::uint64_t& remainder, std::uint64_t digit, std::uint64_t divisor) {
        constexpr std::uint64_t kBase = std::uint64_t{1} << 32U;
        const std::uint64_t upper = divisor >> 32U;
        const std::uint64_t lower = divisor & 0xFFFFFFFFU;
        std::uint64_t estimate = remainder / upper;
        std::uint64_t rest = remainder % upper;
        while (estimate >= kBase || estimate * lower > (rest << 32U | digit)) {
            --estimate;
            rest += upper;
            if (rest >= kBase) {
                break;
            }
        }
        remainder = (remainder << 32U | digit) - estimate * divisor;  // what both lose above 64 bits is the same
        return estimate;
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
    bool m_negative = false;
    std::uint64_t m_mantissa = 0;
    int m_exponent = 0;
};

#if LDBL_MANT_DIG == 64
using Extended = long double;
#else
using Extended = SoftExtended;
#endif

/// `compute(number)` with all the precision that Extended has; for some C libraries' functions of a double too. Whoever uses
/// the library may have set the processor to fewer bits, as many Windows programs do: then that is changed for the time of
/// the computation.
/// REQUIRES: what `compute` rounds depends on its argument, which keeps it between the two changes.
template <class Number, class Compute>
double InExtendedPrecision(Number number, Compute compute) {
#if LDBL_MANT_DIG == 64 && (defined(__i386__) || defined(__x86_64__))
    constexpr std::uint16_t kExtended = 0x300;  // the control word's precision field; its largest value is 64 bits
    std::uint16_t control = 0;
    __asm__ volatile("fnstcw %0" : "=m"(control));
    if ((control & kExtended) != kExtended) {
        const auto changed = static_cast<std::uint16_t>(control | kExtended);
        __asm__ volatile("fldcw %1" : "+m"(number) : "m"(changed));
        double result = compute(number);
        __asm__ volatile("fldcw %1" : "+m"(result) : "m"(control));
        return result;
    }
#endif
    return compute(number);
}

}  // namespace krm::convert

#endif  // KRM_CONVERT_INTERNAL_EXTENDED_H_
