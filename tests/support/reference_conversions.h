// A second, plain computation of every conversion, for tests that compare the converters with it.
//
// It is written for reading, not for speed, takes other roads than the library where there is one, and never calls it.
// The order of its parts: numbers, texts, the way back to a raw value, then what each conversion type does otherwise.
#ifndef KRM_TESTS_SUPPORT_REFERENCE_CONVERSIONS_H_
#define KRM_TESTS_SUPPORT_REFERENCE_CONVERSIONS_H_

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "krm/core/types.h"
#include "tests/support/c_locale.h"

namespace krm::test {

/// One entry of a pattern table.
struct Pattern {
    krm_ulong key = 0;
    std::string text;
    krm_ulong id = 0;
};

/// All that tells how an item is converted, beside its raw value.
struct Item {
    unsigned char sign = 0;
    unsigned short bits = 8;
    krm_long mul = 1;
    krm_long div = 1;
    krm_long offset = 0;
    unsigned char decimals = 0;
    krm_ulong max = 0xFFFFFFFFU;
    krm_ulong min = 0;
    std::vector<Pattern> patterns = {};
    std::string defaultText = {};
    krm_ulong defaultId = 0;
};

namespace reference {

/// Whether this compiler's `long double` has the 64 bits of precision in which values are scaled. Where it has not
/// (MSVC), tests of exact scaling have nothing to compare with.
inline constexpr bool kHasExtendedPrecision = LDBL_MANT_DIG == 64;

inline constexpr std::int64_t kMostNegative = std::numeric_limits<std::int64_t>::min();

// ---- Numbers ----

/// 10^n as the converters have it: n's bits from the lowest, the base squared between them, all in double.
inline double PowerOfTen(unsigned n) {
    double power = 1;
    double base = 10;
    while (n != 0) {
        if (n % 2 != 0) {
            power = power * base;
        }
        base = base * base;
        n = n / 2;
    }
    return power;
}

/// a / b as the hardware divides; spelled out for 0 so that no sanitizer minds.
inline double Quotient(double a, double b) {
    if (b != 0 || std::isnan(b)) {
        return a / b;
    }
    if (a == 0 || std::isnan(a)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return std::copysign(std::numeric_limits<double>::infinity(), std::signbit(a) == std::signbit(b) ? 1.0 : -1.0);
}

/// Truncated toward zero; the most negative number for NaN and for what doesn't fit.
inline std::int64_t Whole(double value) {
    constexpr double kLimit = 9223372036854775808.0;
    return value >= -kLimit && value < kLimit ? static_cast<std::int64_t>(value) : kMostNegative;
}

inline krm_ulong Low32(std::int64_t value) {
    return static_cast<krm_ulong>(static_cast<std::uint64_t>(value) % 0x100000000ULL);
}

/// Truncated toward zero, its low 32 bits.
inline krm_ulong Low32(double value) {
    return Low32(Whole(value));
}

/// The raw bits as a number: bit `bits` - 1 (counted modulo 32) is worth minus its place value in two's complement, and
/// turns the sign in sign and magnitude; bits above it count only while it is clear.
inline std::int64_t Signed(krm_ulong raw, unsigned sign, unsigned bits) {
    const std::int64_t place = std::int64_t{1} << ((bits + 31U) % 32U);
    const std::int64_t all = raw;
    const bool isSet = all / place % 2 == 1;
    if (!isSet || (sign != 1 && sign != 3)) {
        return all;
    }
    const std::int64_t below = all % place;
    return sign == 1 ? below - place : -below;
}

inline bool Divides(krm_long div) {
    return div < 0 || div > 1;
}

/// The physical value: each step in extended precision, rounded to double once at the end.
inline double Physical(krm_ulong raw, const Item& item) {
    auto value = static_cast<long double>(Signed(raw, item.sign, item.bits));
    value = value * static_cast<long double>(item.mul);
    if (Divides(item.div)) {
        value = value / static_cast<long double>(item.div);
    }
    value = value + static_cast<long double>(item.offset);
    value = value / static_cast<long double>(PowerOfTen(item.decimals));
    return static_cast<double>(value);
}

/// The same in plain double: what a converter must not do.
inline double PhysicalInDouble(krm_ulong raw, const Item& item) {
    auto value = static_cast<double>(Signed(raw, item.sign, item.bits));
    value = value * static_cast<double>(item.mul);
    if (Divides(item.div)) {
        value = value / static_cast<double>(item.div);
    }
    value = value + static_cast<double>(item.offset);
    return value / PowerOfTen(item.decimals);
}

// ---- Texts ----

template <class... Arguments>
std::string Print(const char* format, Arguments... arguments) {
    const InCLocale inCLocale;
    char text[1000];
    const int length = std::snprintf(text, sizeof text, format, arguments...);
    return std::string(text, static_cast<std::size_t>(length));
}

/// Fixed-point text; infinities as "inf" and "-inf", NaN as "nan".
inline std::string FixedPoint(double value, int decimals) {
    if (std::isnan(value)) {
        return "nan";
    }
    if (std::isinf(value)) {
        return value < 0 ? "-inf" : "inf";
    }
    return Print("%.*f", decimals, value);
}

/// Fixed-point text in which a value below zero loses its sign when only zeros are left of it.
inline std::string Decimal(double value, unsigned decimals) {
    std::string text = FixedPoint(value, static_cast<int>(decimals));
    if (value < 0 && text.find_first_not_of("-0.") == std::string::npos) {
        text.erase(0, 1);
    }
    return text;
}

/// Low 32 bits of the truncated value, with at least a digit per four bits of the bit length.
inline std::string HexDigits(double value, unsigned bits) {
    krm_ulong rest = Low32(value);
    std::string digits;
    do {
        digits.insert(digits.begin(), "0123456789ABCDEF"[rest % 16]);
        rest /= 16;
    } while (rest != 0);
    const std::size_t width = (bits + 3U) / 4U;
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

inline std::string Hex(double value, unsigned bits) {
    return "0x" + HexDigits(value, bits);
}

/// A display text, and the words ID that comes with it.
struct Text {
    std::string text;
    krm_ulong id = 0;
};

inline const Pattern* Find(const std::vector<Pattern>& patterns, krm_ulong key) {
    for (const Pattern& pattern : patterns) {
        if (pattern.key == key) {
            return &pattern;
        }
    }
    return nullptr;
}

/// The pattern's text, or the decimal text where there is no pattern.
inline Text OrDecimal(const Pattern* pattern, double phys, const Item& item) {
    return pattern != nullptr ? Text{pattern->text, pattern->id} : Text{Decimal(phys, item.decimals), 0};
}

// ---- The way back to a raw value ----

inline double Unscaled(double value, const Item& item) {
    double v = value * PowerOfTen(item.decimals);
    v = v - static_cast<double>(item.offset);
    if (item.mul != 1) {
        v = Quotient(v, static_cast<double>(item.mul));
    }
    if (Divides(item.div)) {
        v = v * static_cast<double>(item.div);
    }
    return v;
}

/// Sign and magnitude for the way back: the magnitude, at most what fits below the sign bit. Only the most negative
/// number, which has no magnitude, gets the sign bit.
inline krm_ulong Magnitude(std::int64_t x, unsigned bits) {
    const bool holdsPlace = bits >= 1 && bits <= 63;
    const std::int64_t place = holdsPlace ? std::int64_t{1} << (bits - 1) : 0;
    if (x == kMostNegative) {
        return Low32(place);
    }
    const std::int64_t magnitude = x < 0 ? -x : x;
    return Low32(holdsPlace && magnitude >= place ? place - 1 : magnitude);
}

/// Physical value to raw value with raw limits: truncates, and returns the limit itself where one is reached.
inline krm_ulong LogicalByRawLimits(double value, const Item& item) {
    const std::int64_t x = Whole(Unscaled(value, item));
    if (x >= Signed(item.max, item.sign, item.bits)) {
        return item.max;
    }
    if (x <= Signed(item.min, item.sign, item.bits)) {
        return item.min;
    }
    return item.sign == 3 ? Magnitude(x, item.bits) : Low32(x);
}

/// Physical value to raw value with physical limits: limits the value, rounds, then limits it to what the bits hold.
inline krm_ulong LogicalByPhysicalLimits(double value, const Item& item, double max, double min) {
    double limited = value;
    if (value > max) {
        limited = max;
    } else if (value <= max && value < min) {
        limited = min;
    }
    const double v = Unscaled(limited, item);
    const std::int64_t x = Whole(v >= 0 ? v + 0.5 : v - 0.5);
    switch (item.sign) {
        case 0:
            if (x < 0) {
                return 0;
            }
            if (item.bits < 63 && x >= std::int64_t{1} << item.bits) {
                return Low32((std::int64_t{1} << item.bits) - 1);
            }
            return Low32(x);
        case 1:
            if (item.bits >= 1 && item.bits <= 63) {
                const std::int64_t place = std::int64_t{1} << (item.bits - 1);
                if (x >= place) {
                    return Low32(place - 1);
                }
                if (x < -place) {
                    return Low32(-place);
                }
            }
            return Low32(x);
        case 3:
            return Magnitude(x, item.bits);
        default:
            return Low32(x);
    }
}

// ---- Values of the conversion types ----

inline double Illuminance(krm_ulong raw) {
    if (raw == 0) {
        return 0;
    }
    const int q = static_cast<int>(30000 / raw);
    const int lux = q >= 623 ? static_cast<int>(240000 / raw) - 4400 : q - 50;
    return lux < 0 ? 0 : lux;
}

inline double IlluminanceMinMax(krm_ulong raw) {
    if (raw <= 3000) {
        return raw / 2;
    }
    return Low32(std::int64_t{raw} * 8 - 22500);
}

/// Bits are counted from the first byte's highest bit on; the last is a sign, or counts like the others.
/// `width` up to 32.
inline double Chassis(krm_ulong raw, unsigned width, bool hasSign, const Item& item) {
    std::int64_t sum = 0;
    bool negative = false;
    for (unsigned i = 0; i < width; ++i) {
        const unsigned byte = (raw >> (i / 8 * 8)) % 256;
        const bool isSet = (byte & (128U >> (i % 8))) != 0;
        if (hasSign && i + 1 == width) {
            negative = isSet;
        } else if (isSet) {
            sum += std::int64_t{1} << i;
        }
    }
    std::int64_t value = (negative ? -sum : sum) * item.mul;
    if (Divides(item.div)) {
        value /= item.div;
    }
    return static_cast<double>(value + item.offset) / PowerOfTen(item.decimals);
}

inline double Reversal(krm_ulong raw, const Item& item) {
    const krm_ulong first = raw % 256;
    const krm_ulong second = raw / 256 % 256;
    return Physical(raw / 65536 * 65536 + first * 256 + second, item);
}

inline double ThreeBytes(krm_ulong raw, const Item& item) {
    Item part = item;
    part.bits = 8;
    part.decimals = 0;
    krm_ulong value = 0;
    for (unsigned i = 0; i < 3; ++i) {
        value |= Low32(Physical((raw >> (8 * i)) % 256, part)) << (8 * i);
    }
    return value;
}

inline double HoursAndMinutes(krm_ulong raw, const Item& item) {
    Item plain = item;
    plain.sign = 0;
    plain.decimals = 0;
    const krm_ulong minutes = Low32(Physical(raw, plain));
    return Low32(static_cast<std::int64_t>(minutes / 60) * 256) | (minutes % 60);
}

inline double Bcd(krm_ulong raw, const Item& item) {
    double sum = 0;
    bool negative = false;
    int taken = 0;
    do {
        taken += 4;
        int shift = (static_cast<int>(item.bits) - taken) % 32;
        if (shift < 0) {
            shift += 32;
        }
        const unsigned nibble = (raw >> shift) % 16;
        sum = sum * 10 + (nibble <= 9 ? nibble : 0);
        if (nibble == 15 && sum == 0) {
            negative = true;
        }
    } while (taken < item.bits);
    return (negative && sum != 0 ? -sum : sum) / PowerOfTen(item.decimals);
}

inline double Incline(krm_ulong raw, const Item& item) {
    const double sine = Physical(raw, item) * 0.1 / 9.8;
    if (std::fabs(sine) > 1) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    const double percent = std::tan(std::asin(sine)) * 100;
    return percent < -100 ? -100 : percent > 100 ? 100 : percent;
}

inline double Special2(krm_ulong raw, const Item& item) {
    const double product = Physical(raw, item) * 0.0338;
    return 11.515 - product;
}

inline double Special3(krm_ulong raw) {
    const int n = raw > 255 ? 255 : raw == 0 ? 1 : static_cast<int>(raw);
    const double volts = (256 - n) * 0.01;
    const double ratio = 1.8 * volts / (5.12 - 2 * volts) / 2.5;
    return 1 / (std::log(ratio) / 3520 + 0.003411222923418046) - 273.15;
}

/// The physical value that the converter of conversion type `code` gives. Not for types 4 and 104, which take bytes.
inline double ValueOf(int code, krm_ulong raw, const Item& item) {
    switch (code) {
        case 5:
        case 105:
        case 106:
            return raw;
        case 6:
            return Illuminance(raw);
        case 7:
            return Chassis(raw, 10, true, item);
        case 8:
            return Chassis(raw, 12, true, item);
        case 9:
            return Chassis(raw, 10, false, item);
        case 10:
            return Chassis(raw, 8, true, item);
        case 11:
            return Chassis(raw, 16, false, item);
        case 12:
            return Reversal(raw, item);
        case 15:
        case 16:
            return ThreeBytes(raw, item);
        case 19:
        case 111:
            return HoursAndMinutes(raw, item);
        case 24:
            return IlluminanceMinMax(raw);
        case 101:
            return Bcd(raw, item);
        case 102:
            return Incline(raw, item);
        case 110:
            return Special2(raw, item);
        case 114:
            return Special3(raw);
        default:
            return Physical(raw, item);
    }
}

// ---- Texts of the conversion types ----

inline Text PatternText(double phys, const Item& item) {
    if (const Pattern* found = Find(item.patterns, Low32(phys))) {
        return {found->text, found->id};
    }
    if (!item.defaultText.empty()) {
        return {item.defaultText, item.defaultId};
    }
    return {Hex(phys, item.bits), 0};
}

inline std::string DiagCode(double phys) {
    const unsigned x = Low32(phys) % 65536;
    return std::string(1, "PCBU"[x / 16384]) + HexDigits(x % 16384, 16);
}

inline Text MinMaxText(double phys, krm_ulong raw, const Item& item) {
    const std::int64_t s = Signed(raw, item.sign, item.bits);
    if (s <= Signed(item.min, item.sign, item.bits)) {
        return OrDecimal(Find(item.patterns, 0), phys, item);
    }
    if (s >= Signed(item.max, item.sign, item.bits)) {
        return OrDecimal(Find(item.patterns, 1), phys, item);
    }
    return OrDecimal(nullptr, phys, item);
}

inline Text IlluminanceMinMaxText(double phys, krm_ulong raw, const Item& item) {
    if (raw > item.min && raw < item.max) {
        return OrDecimal(nullptr, phys, item);
    }
    return OrDecimal(Find(item.patterns, raw > item.min ? 1 : 0), phys, item);
}

inline std::string ThreeParts(double phys) {
    const krm_ulong x = Low32(phys);
    const auto part = [x](unsigned shift) { return static_cast<unsigned>(x >> shift) % 256 % 100; };
    return Print("%02u.%02u.%02u", part(16), part(8), part(0));
}

inline std::string Coordinate(char positive, char negative, double phys) {
    return phys < 0 ? negative + FixedPoint(-phys, 4) : positive + FixedPoint(phys, 4);
}

inline std::string Binary(krm_ulong raw, unsigned bits) {
    std::string text;
    for (; bits > 0; --bits) {
        text += (raw >> (bits - 1)) % 2 == 1 ? '1' : '0';
    }
    return text;
}

/// The display text that the converter of conversion type `code` gives to the physical value `phys`, which comes from
/// `raw`. Not for types 4 and 104, which take bytes, nor for 105 and 106, whose text is the locale's.
inline Text TextOf(int code, double phys, krm_ulong raw, const Item& item) {
    const auto x = static_cast<unsigned>(Low32(phys));
    switch (code) {
        case 1:
        case 20:
        case 22:
            return PatternText(phys, item);
        case 3:
            return {Hex(phys, item.bits), 0};
        case 5:
            return {DiagCode(phys), 0};
        case 13:
            return MinMaxText(phys, raw, item);
        case 15:
        case 16:
            return {ThreeParts(phys), 0};
        case 19:
            return {Print("%02u:%02u", x / 256, x % 256), 0};
        case 24:
            return IlluminanceMinMaxText(phys, raw, item);
        case 103:
            return OrDecimal(Find(item.patterns, raw), phys, item);
        case 107:
            return {Coordinate('N', 'S', phys), 0};
        case 108:
            return {Coordinate('E', 'W', phys), 0};
        case 109:
            return {Print("%X.%02X", static_cast<unsigned>(raw) / 256 % 256, static_cast<unsigned>(raw) % 256), 0};
        case 111:
            return {Print("%uhrs,%umin", x / 256, x % 256), 0};
        case 112:
            return {HexDigits(phys, item.bits), 0};
        case 113:
            return {Binary(raw, item.bits), 0};
        case 115:
            return {Print("%uhrs,%umin", x / 3600, x / 60 % 60), 0};
        default:
            return OrDecimal(nullptr, phys, item);
    }
}

}  // namespace reference
}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_REFERENCE_CONVERSIONS_H_
