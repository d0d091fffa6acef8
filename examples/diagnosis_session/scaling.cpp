#include "scaling.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>

namespace diagnosis_session {
namespace {

constexpr std::int64_t kLargest = std::numeric_limits<krm_long>::max();

/// digits x 10^exponent.
struct Decimal {
    std::int64_t digits = 0;
    int exponent = 0;

    double Value() const { return static_cast<double>(digits) * std::pow(10.0, exponent); }
};

std::optional<Decimal> DecimalOf(std::string_view text) {
    Decimal decimal;
    bool negative = false;
    if (text.starts_with('-')) {
        negative = true;
        text.remove_prefix(1);
    }
    const std::size_t mark = text.find_first_of("eE");
    if (mark != std::string_view::npos) {
        std::string_view power = text.substr(mark + 1);
        if (power.starts_with('+')) {
            power.remove_prefix(1);
        }
        const auto [end, error] = std::from_chars(power.data(), power.data() + power.size(), decimal.exponent);
        if (error != std::errc() || end != power.data() + power.size() || decimal.exponent > 400 ||
            decimal.exponent < -400) {
            return std::nullopt;
        }
        text = text.substr(0, mark);
    }
    bool any = false;
    bool behindPoint = false;
    for (const char character : text) {
        if (character == '.' && !behindPoint) {
            behindPoint = true;
            continue;
        }
        if (character < '0' || character > '9') {
            return std::nullopt;
        }
        any = true;
        if (decimal.digits > (std::numeric_limits<std::int64_t>::max() - 9) / 10) {
            // More digits than a double has: the rest doesn't count.
            decimal.exponent += behindPoint ? 0 : 1;
            continue;
        }
        decimal.digits = decimal.digits * 10 + (character - '0');
        decimal.exponent -= behindPoint ? 1 : 0;
    }
    if (!any) {
        return std::nullopt;
    }
    while (decimal.digits != 0 && decimal.digits % 10 == 0) {
        decimal.digits /= 10;
        ++decimal.exponent;
    }
    if (decimal.digits == 0) {
        decimal.exponent = 0;
    }
    decimal.digits = negative ? -decimal.digits : decimal.digits;
    return decimal;
}

/// `top` / `bottom` x 10^power. The powers of ten cancel out first: each number alone may be too large or too small for a
/// double, and two such numbers have no quotient.
double Quotient(Decimal top, Decimal bottom, int power) {
    if (top.digits == 0) {
        return 0;
    }
    return static_cast<double>(top.digits) / static_cast<double>(bottom.digits) *
           std::pow(10.0, top.exponent - bottom.exponent + power);
}

/// A fraction, reduced, its denominator above 0.
struct Fraction {
    std::int64_t numerator = 0;
    std::int64_t denominator = 1;

    bool Fits() const { return std::abs(numerator) <= kLargest && denominator <= kLargest; }
    double Value() const { return static_cast<double>(numerator) / static_cast<double>(denominator); }
};

/// `top` / `bottom` x 10^power, exactly; nothing where 64 bits don't hold it.
std::optional<Fraction> ExactFraction(Decimal top, Decimal bottom, int power) {
    if (top.digits == 0) {
        return Fraction{};
    }
    const std::int64_t common = std::gcd(top.digits, bottom.digits);
    Fraction fraction{top.digits / common, bottom.digits / common};
    if (fraction.denominator < 0) {
        fraction = {-fraction.numerator, -fraction.denominator};
    }
    // Each power of ten is a factor 2 and a factor 5; one that stands on the other side of the line cancels out.
    int exponent = power + top.exponent - bottom.exponent;
    std::int64_t& grows = exponent >= 0 ? fraction.numerator : fraction.denominator;
    std::int64_t& shrinks = exponent >= 0 ? fraction.denominator : fraction.numerator;
    for (exponent = std::abs(exponent); exponent > 0; --exponent) {
        for (const std::int64_t factor : {2, 5}) {
            if (shrinks % factor == 0) {
                shrinks /= factor;
            } else if (std::abs(grows) > std::numeric_limits<std::int64_t>::max() / factor) {
                return std::nullopt;
            } else {
                grows *= factor;
            }
        }
    }
    return fraction;
}

/// The best fraction for `value` whose two numbers fit 32 bits, by its continued fraction.
Fraction NearestFraction(double value) {
    Fraction before{0, 1};
    Fraction best{1, 0};
    double rest = std::abs(value);
    while (true) {
        const double whole = std::floor(rest);
        if (whole > static_cast<double>(kLargest)) {
            break;
        }
        const auto step = static_cast<std::int64_t>(whole);
        const Fraction next{step * best.numerator + before.numerator, step * best.denominator + before.denominator};
        if (!next.Fits()) {
            break;
        }
        before = best;
        best = next;
        if (rest == whole) {
            break;
        }
        rest = 1.0 / (rest - whole);
    }
    if (best.denominator == 0) {
        return {kLargest, 1};
    }
    return value < 0 ? Fraction{-best.numerator, best.denominator} : best;
}

Scaling MakeScaling(Fraction fraction, std::int64_t offset, int decimals) {
    return {static_cast<krm_long>(fraction.numerator), static_cast<krm_long>(fraction.denominator),
            static_cast<krm_long>(offset), static_cast<unsigned char>(decimals)};
}

}  // namespace

std::optional<Scaling> ScalingOf(std::string_view mulText, std::string_view divText, std::string_view addText,
                                 unsigned bits) {
    const std::optional<Decimal> mul = DecimalOf(mulText);
    const std::optional<Decimal> div = DecimalOf(divText);
    const std::optional<Decimal> add = DecimalOf(addText);
    if (!mul || !div || !add || div->digits == 0) {
        return std::nullopt;
    }

    // The decimals shown first; then more, which lose nothing; then fewer, whose value still may be exact.
    constexpr std::array<int, 10> kDecimals = {kShownDecimals, 6, 7, 8, 9, 4, 3, 2, 1, 0};
    for (const int decimals : kDecimals) {
        const std::optional<Fraction> fraction = ExactFraction(*mul, *div, decimals);
        const std::optional<Fraction> offset = ExactFraction(*add, Decimal{1, 0}, decimals);
        if (fraction && fraction->Fits() && offset && offset->Fits() && offset->denominator == 1) {
            return MakeScaling(*fraction, offset->numerator, decimals);
        }
    }

    // No exact numbers. More decimals make the offset finer and bring a small factor closer to 1, where a fraction has
    // the most digits; the offset's size limits them.
    const double largestRaw = std::pow(2.0, bits);
    std::optional<Scaling> nearest;
    double smallestError = 0.1 * std::pow(10.0, -kShownDecimals);
    for (int decimals = 0; decimals <= 30; ++decimals) {
        const double unit = std::pow(10.0, decimals);
        const double offset = add->Value() * unit;
        if (std::abs(offset) > static_cast<double>(kLargest)) {
            break;
        }
        const double factor = Quotient(*mul, *div, decimals);
        const Fraction fraction = NearestFraction(factor);
        const double error =
            (std::abs(fraction.Value() - factor) * largestRaw + std::abs(std::round(offset) - offset)) / unit;
        if (error < smallestError) {
            smallestError = error;
            nearest = MakeScaling(fraction, static_cast<std::int64_t>(std::round(offset)), decimals);
        }
    }
    return nearest;
}

unsigned char DecimalsOf(const Scaling& scaling) {
    constexpr int kFew = 3;
    const double unit = std::pow(10.0, scaling.decimals);
    const double step = std::abs(static_cast<double>(scaling.mul) / scaling.div) / unit;
    const double offset = scaling.offset / unit;
    const auto isWhole = [](double value) { return std::abs(value - std::round(value)) < 1e-9; };
    for (int decimals = 0; decimals <= kFew; ++decimals) {
        const double power = std::pow(10.0, decimals);
        if (isWhole(step * power) && isWhole(offset * power) && (step == 0 || std::round(step * power) > 0)) {
            return static_cast<unsigned char>(decimals);
        }
    }
    int decimals = 0;
    while (decimals < kShownDecimals && step * std::pow(10.0, decimals) < 1) {
        ++decimals;
    }
    return static_cast<unsigned char>(decimals);
}

}  // namespace diagnosis_session
