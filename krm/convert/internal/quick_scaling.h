// A scaled value by one division of doubles, for processors without 80-bit arithmetic. Part of the library's inside.
#ifndef KRM_CONVERT_INTERNAL_QUICK_SCALING_H_
#define KRM_CONVERT_INTERNAL_QUICK_SCALING_H_

#include <array>
#include <bit>
#include <cstdint>
#include <optional>

#include "krm/convert/internal/numbers.h"
#include "krm/core/types.h"

namespace krm::convert {

/// What (`number` x `mul` / `div` + `offset`) / 10^`decimals` gives in 80-bit arithmetic, rounded to a double; nothing where
/// that takes the 80-bit arithmetic itself.
///
/// The value is a fraction of two integers. How far the double nearest to it lies off is an integer, too, and known exactly;
/// by how much the roundings of the 80-bit steps can move the value is known as a bound. Where both together stay below half
/// a unit of the double's last place, as they do for all but one fraction in some hundreds, those steps end at this double.
/// That proves the result however the division here was rounded.
///
/// REQUIRES: `number` is one of SignedConversion's, so that its product with `mul` fits 63 bits.
inline std::optional<double> QuickScaling(krm_int64 number, krm_long mul, krm_long div, krm_long offset,
                                          unsigned char decimals) {
    constexpr std::array<krm_int64, 7> kPowers = {1, 10, 100, 1'000, 10'000, 100'000, 1'000'000};
    constexpr krm_int64 kLimit = krm_int64{1} << 51U;
    if (decimals >= kPowers.size()) {
        return std::nullopt;
    }
    krm_int64 product = number * mul;
    krm_int64 divisor = Divides(div) ? div : 1;
    if (divisor < 0) {
        product = -product;
        divisor = -divisor;
    }
    const krm_int64 shift = offset * divisor;
    const krm_int64 denominator = divisor * kPowers[decimals];
    if (product <= -kLimit || product >= kLimit || shift <= -kLimit || shift >= kLimit || denominator >= kLimit) {
        return std::nullopt;
    }
    const krm_int64 numerator = product + shift;
    if (numerator == 0 || denominator == 1) {
        return static_cast<double>(numerator);
    }

    // The double is mantissa / 2^places; `rest` / (denominator x 2^places) is what it lacks to the fraction. All but the last
    // 64 bits of the two products are the same.
    const auto top = static_cast<std::uint64_t>(numerator < 0 ? -numerator : numerator);
    const auto bottom = static_cast<std::uint64_t>(denominator);
    const double quotient = static_cast<double>(numerator) / static_cast<double>(denominator);
    const auto bits = std::bit_cast<std::uint64_t>(quotient);
    constexpr std::uint64_t kTopBit = std::uint64_t{1} << 52U;
    const std::uint64_t mantissa = (bits & (kTopBit - 1)) | kTopBit;
    const int places = 1023 + 52 - static_cast<int>(bits >> 52U & 0x7FFU);
    if (places > 63) {  // never below 1: the numerator has at most 52 bits, the denominator is not 1
        return std::nullopt;
    }
    const auto rest = static_cast<std::int64_t>((top << places) - mantissa * bottom);

    // In units of 1 / (256 x denominator x 2^places): the three roundings, of the quotient, the sum and the result, move the
    // value by at most 2^-64 of each; two more units for what is cut off and for roundings of roundings.
    const auto factor = static_cast<std::uint64_t>(product < 0 ? -product : product);
    const std::uint64_t moved = (((factor + 2 * top) << 8U) >> (64 - places)) + 2;
    const std::uint64_t off = static_cast<std::uint64_t>(rest < 0 ? -rest : rest) << 8U;
    // Below a power of two the doubles lie twice as close.
    const std::uint64_t unit = (bottom << 8U) >> (mantissa == kTopBit ? 1U : 0U);
    if (2 * (off + moved) >= unit) {
        return std::nullopt;
    }
    return quotient;
}

}  // namespace krm::convert

#endif  // KRM_CONVERT_INTERNAL_QUICK_SCALING_H_
