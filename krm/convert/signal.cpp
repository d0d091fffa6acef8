#include "krm/convert/signal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "krm/convert/internal/numbers.h"

namespace krm {
namespace {

constexpr unsigned char kPlainNumber = 0;

/// The converters' arguments aren't const, but they only read these.
CKRMList<CKRMCCommandDispData>* Patterns(const SignalRule& rule) {
    return const_cast<CKRMList<CKRMCCommandDispData>*>(&rule.conversion.m_cPatternDispList);
}

CKRMString* DefaultText(const SignalRule& rule) {
    return const_cast<CKRMString*>(&rule.conversion.m_strDefaultPattern);
}

krm_ulong LargestOfBits(unsigned bits) {
    return bits >= 32 ? 0xFFFFFFFFU : static_cast<krm_ulong>((krm_ulong{1} << bits) - 1);
}

/// Whether two physical values differ by no more than the last binary place's rounding.
bool Same(double left, double right) {
    return left == right || std::fabs(left - right) <= 2 * std::numeric_limits<double>::epsilon() *
                                                           std::max(std::fabs(left), std::fabs(right));
}

/// Takes the parts of a text one after the other. Lenient: what it has read is shown again and compared.
class Scanner {
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    Scanner& Words(std::string_view words) {
        m_good = m_good && m_rest.substr(0, words.size()) == words;
        m_rest.remove_prefix(m_good ? words.size() : 0);
        return *this;
    }
    Scanner& Number(krm_ulong& number, int base) {
        const char* const end = m_rest.data() + m_rest.size();
        const auto [last, error] = std::from_chars(m_rest.data(), end, number, base);
        m_good = m_good && error == std::errc();
        m_rest.remove_prefix(m_good ? static_cast<std::size_t>(last - m_rest.data()) : 0);
        return *this;
    }
    bool AtEnd() const { return m_good && m_rest.empty(); }

private:
    std::string_view m_rest;
    bool m_good = true;
};

std::optional<double> DecimalOf(std::string_view text) {
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && last == end ? std::optional(value) : std::nullopt;
}

/// The numbers that a type's raw values stand for. Its physical value rises or falls with them, all along.
struct Range {
    krm_int64 least;
    krm_int64 most;
};

/// The number of a range whose value is the nearest to a wanted one.
struct Nearest {
    krm_int64 number;
    bool beyond;    ///< the wanted value lies outside all values of the range
    bool constant;  ///< every number has the same value
};

/// REQUIRES: `value(number)` rises or falls with the number.
template <class Value>
Nearest FindNearest(Range range, double wanted, Value value) {
    const double first = value(range.least);
    const double last = value(range.most);
    const bool rises = first <= last;
    const auto numberAt = [&](krm_int64 step) { return rises ? range.least + step : range.most - step; };
    const krm_int64 steps = range.most - range.least;
    krm_int64 reached = steps + 1;  // the first step whose value is not below the wanted one
    for (krm_int64 low = 0; low < reached;) {
        const krm_int64 middle = low + (reached - low) / 2;
        if (value(numberAt(middle)) < wanted) {
            low = middle + 1;
        } else {
            reached = middle;
        }
    }
    const bool constant = steps > 0 && first == last;
    if (reached == steps + 1) {
        return {numberAt(steps), true, constant};
    }
    const double above = value(numberAt(reached));
    if (reached == 0) {
        return {numberAt(0), above > wanted, constant};
    }
    const double below = value(numberAt(reached - 1));
    return {numberAt(wanted - below < above - wanted ? reached - 1 : reached), false, constant};
}

/// Finds raw values under one rule. What it gives with kNone is as near as it comes.
class Inverse {
public:
    explicit Inverse(const SignalRule& rule)
        : m_rule(rule),
          m_type(rule.conversionType),
          m_converter(rule.conversionType),
          m_bits(rule.conversion.m_ushBitLength),
          m_largestRaw(m_type >= 7 && m_type <= 11 ? 0xFFFFU : LargestOfBits(m_bits == 0 ? 32 : m_bits)) {}

    RawSignal FromValue(double value) const {
        if (!IsInvertible(m_type) || m_type == 104) {
            return {.status = RawStatus::kNoInverse};
        }
        if (!std::isfinite(value)) {
            return {};
        }
        switch (m_type) {
            case 15:
            case 16:
                return FromThreeBytes(value);
            case 19:
            case 111:
                return FromHoursAndMinutes(value);
            case 102:
                return FromSlope(value);
            default:
                return FromNumber(value);
        }
    }

    RawSignal FromText(std::string_view text) const {
        krm_ulong high = 0;
        krm_ulong middle = 0;
        krm_ulong low = 0;
        switch (m_type) {
            case 4:
            case 6:
            case 24:
            case 105:
            case 106:
                return {.status = RawStatus::kNoInverse};
            case 1:
            case 20:
            case 22:
                return FromPatternOrHex(text);
            case 3:
                return Scanner(text).Words("0x").Number(low, 16).AtEnd() ? FromKey(low, text) : RawSignal{};
            case 112:
                return Scanner(text).Number(low, 16).AtEnd() ? FromKey(low, text) : RawSignal{};
            case 5:
                return FromTroubleCode(text);
            case 13:
                return FromLimitOrDecimal(text);
            case 15:
            case 16:
                return Scanner(text).Number(high, 10).Words(".").Number(middle, 10).Words(".").Number(low, 10).AtEnd()
                           ? FromValueOf(text, {static_cast<double>((high << 16U) | (middle << 8U) | low)})
                           : RawSignal{};
            case 19:
                return Scanner(text).Number(high, 10).Words(":").Number(low, 10).AtEnd()
                           ? FromValueOf(text, {static_cast<double>((high << 8U) | low)})
                           : RawSignal{};
            case 111:
                return Scanner(text).Number(high, 10).Words("hrs,").Number(low, 10).Words("min").AtEnd()
                           ? FromValueOf(text, {static_cast<double>((high << 8U) | low)})
                           : RawSignal{};
            case 115: {
                if (!Scanner(text).Number(high, 10).Words("hrs,").Number(low, 10).Words("min").AtEnd()) {
                    return {};
                }
                const double seconds = (static_cast<double>(high) * 60 + low) * 60;
                return FromValueOf(text, {seconds, seconds + 30});  // raw values may pass over the full minute
            }
            case 103:
                return FromRawPatternOrDecimal(text);
            case 104:
                return FromBytesInHex(text);
            case 107:
                return FromDegrees(text, 'N', 'S');
            case 108:
                return FromDegrees(text, 'E', 'W');
            case 109:
                return Scanner(text).Number(high, 16).Words(".").Number(low, 16).AtEnd()
                           ? FromRaw((high << 8U) | low, text)
                           : RawSignal{};
            case 113:
                return Scanner(text).Number(low, 2).AtEnd() ? FromRaw(low, text) : RawSignal{};
            default:
                return FromDecimal(text);
        }
    }

private:
    // ---- Raw value to what is shown ----

    double Value(const SignalConverter& converter, krm_ulong raw, unsigned char sign, unsigned char decimals) const {
        const CKRMCCommandConversionData& table = m_rule.conversion;
        double value = std::numeric_limits<double>::quiet_NaN();
        converter->ValueConversion(&value, raw, sign, table.m_ushBitLength, table.m_lMul, table.m_lDiv, table.m_lOffset,
                                   decimals);
        return value;
    }

    double Physical(krm_ulong raw) const {
        return Value(m_converter, raw, m_rule.conversion.m_uchSigned, m_rule.decPntCount);
    }

    std::string Text(krm_ulong raw) const {
        CKRMCCommandDispData shown;
        ConvertSignal(m_converter, m_rule, raw, &shown);
        return shown.m_strDataPhys.GetText();
    }

    // ---- Numbers and raw values ----

    struct Group {
        unsigned width;
        bool isSigned;
    };
    /// How types 7 to 11 read their bits.
    Group ChassisGroup() const {
        const ConversionType& type = ConversionTypeOf(m_type);
        return {static_cast<unsigned>(type.groupWidth), type.lastBitIsSign};
    }

    /// The bits that carry a sign, as the converters count them: of bit lengths 0 and 32 all, of 33 one.
    unsigned SignedBits() const { return (m_bits + 31U) % 32U + 1; }

    /// Whether the bit length leaves a digit, or one of two exchanged bytes, incomplete: bits are then read twice or lost.
    bool IsCutShort() const {
        return (m_type == 101 && (m_bits > 32 || m_bits % 4 != 0 || m_bits == 0)) ||
               (m_type == 12 && m_bits > 0 && m_bits < 16);
    }

    unsigned BcdDigits() const { return std::max(1U, (m_bits + 3U) / 4U); }

    Range Numbers() const {
        const krm_int64 largest = m_largestRaw;
        switch (m_type) {
            case 5:
            case 19:
            case 105:
            case 106:
            case 111:
                return {0, largest};
            case 7:
            case 8:
            case 9:
            case 10:
            case 11: {
                const Group group = ChassisGroup();
                const krm_int64 magnitude = LargestOfBits(group.isSigned ? group.width - 1 : group.width);
                return {group.isSigned ? -magnitude : 0, magnitude};
            }
            case 101: {
                krm_int64 power = 1;
                for (unsigned i = 1; i < std::min(BcdDigits(), 8U); ++i) {
                    power *= 10;
                }
                return {1 - power, power * 10 - 1};
            }
            case 114:
                return {1, std::min(krm_int64{255}, largest)};
            default:
                break;
        }
        const krm_int64 half = krm_int64{1} << (SignedBits() - 1);
        switch (m_rule.conversion.m_uchSigned) {
            case 1:
                return {-half, half - 1};
            case 3:
                return {1 - half, half - 1};
            default:
                return {0, largest};
        }
    }

    krm_ulong RawOf(krm_int64 number) const {
        switch (m_type) {
            case 7:
            case 8:
            case 9:
            case 10:
            case 11:
                return ChassisRaw(number);
            case 12: {
                const krm_ulong raw = SignedRaw(number);
                return (raw & 0xFFFF0000U) | ((raw & 0xFFU) << 8U) | ((raw >> 8U) & 0xFFU);
            }
            case 101:
                return BcdRaw(number);
            default:
                return SignedRaw(number);
        }
    }

    krm_ulong SignedRaw(krm_int64 number) const {
        if (number >= 0) {
            return convert::Low32(number);
        }
        const bool signAndMagnitude = m_rule.conversion.m_uchSigned == 3;
        const krm_int64 signBit = krm_int64{1} << (SignedBits() - 1);
        return convert::Low32(signAndMagnitude ? signBit - number : number) & LargestOfBits(SignedBits());
    }

    krm_ulong ChassisRaw(krm_int64 number) const {
        const Group group = ChassisGroup();
        auto bits = convert::Low32(number < 0 ? -number : number);
        bits |= number < 0 ? krm_ulong{1} << (group.width - 1) : 0;
        krm_ulong raw = 0;
        for (unsigned i = 0; i < group.width; ++i) {
            raw |= ((bits >> i) & 1U) << (i / 8 * 8 + (7 - i % 8));
        }
        return raw;
    }

    krm_ulong BcdRaw(krm_int64 number) const {
        krm_int64 rest = number < 0 ? -number : number;
        krm_ulong raw = 0;
        const unsigned digits = BcdDigits();
        for (unsigned place = digits; place > 0; --place) {  // from the last digit, which the type reads last
            const krm_ulong digit = place == 1 && number < 0 ? 0xFU : static_cast<krm_ulong>(rest % 10);
            raw |= digit << ((m_bits - 4 * place) % 32U);
            rest /= 10;
        }
        return raw;
    }

    // ---- From a physical value ----

    RawSignal Judged(krm_ulong raw, double wanted, bool beyond) const {
        const double physical = Physical(raw);
        if (raw <= m_largestRaw && Same(physical, wanted)) {
            return {.status = RawStatus::kFound, .raw = raw, .physical = physical};
        }
        const bool far = beyond || raw > m_largestRaw || std::isnan(physical);
        return {.status = far ? RawStatus::kNone : RawStatus::kNearest, .raw = raw, .physical = physical};
    }

    RawSignal FromNumber(double value) const {
        if (IsCutShort()) {
            return {.status = RawStatus::kNoInverse};
        }
        const Nearest nearest = FindNearest(Numbers(), value, [&](krm_int64 n) { return Physical(RawOf(n)); });
        RawSignal found = Judged(RawOf(nearest.number), value, nearest.beyond);
        if (nearest.constant && found) {
            found.status = RawStatus::kNoInverse;
        }
        return found;
    }

    /// The number whose plain scaling comes nearest to `scaled`, as a raw value.
    RawSignal FromScaled(double value, double scaled, unsigned char sign, unsigned char decimals) const {
        const SignalConverter plain(kPlainNumber);
        const auto scale = [&](krm_int64 number) { return Value(plain, RawOf(number), sign, decimals); };
        const Range range = Numbers();
        const Nearest nearest = FindNearest(range, scaled, scale);
        RawSignal best = Judged(RawOf(nearest.number), value, nearest.beyond);
        for (const krm_int64 number : {nearest.number - 1, nearest.number + 1}) {
            if (number >= range.least && number <= range.most) {
                RawSignal other = Judged(RawOf(number), value, nearest.beyond);
                if (std::isnan(best.physical) || std::fabs(other.physical - value) < std::fabs(best.physical - value)) {
                    best = std::move(other);
                }
            }
        }
        if (nearest.constant && best) {
            best.status = RawStatus::kNoInverse;
        }
        return best;
    }

    RawSignal FromHoursAndMinutes(double value) const {
        const krm_int64 packed = convert::Truncate(value);
        if (packed < 0 || packed > 0xFFFFFFFF || static_cast<double>(packed) != value || (packed & 0xFF) >= 60) {
            return {};
        }
        const auto minutes = static_cast<double>((packed >> 8) * 60 + (packed & 0xFF));
        return FromScaled(value, minutes, 0, 0);
    }

    RawSignal FromSlope(double value) const {
        if (std::fabs(value) > 100) {
            return {};
        }
        const double acceleration = std::sin(std::atan(value / 100)) * 9.8;
        return FromScaled(value, acceleration / 0.1, m_rule.conversion.m_uchSigned, m_rule.decPntCount);
    }

    /// Every part for itself, as far as each stays within its byte.
    RawSignal FromThreeBytes(double value) const {
        const krm_int64 parts = convert::Truncate(value);
        if (parts < 0 || parts > 0xFFFFFF || static_cast<double>(parts) != value) {
            return {};
        }
        if (m_rule.conversion.m_lMul == 0) {
            RawSignal constant = Judged(0, value, true);
            constant.status = constant ? RawStatus::kNoInverse : RawStatus::kNone;
            return constant;
        }
        krm_ulong raw = 0;
        for (unsigned shift = 0; shift < 24; shift += 8) {
            const krm_int64 part = (parts >> shift) & 0xFF;
            krm_ulong byte = 0;
            while (byte < 256 && convert::Truncate(ByteValue(byte)) != part) {
                ++byte;
            }
            if (byte == 256) {
                return {};
            }
            raw |= byte << shift;
        }
        return Judged(raw, value, true);
    }

    double ByteValue(krm_ulong byte) const {
        const CKRMCCommandConversionData& table = m_rule.conversion;
        double value = 0;
        CKRMCCommandConvSignalData().ValueConversion(&value, byte, table.m_uchSigned, 8, table.m_lMul, table.m_lDiv,
                                                     table.m_lOffset, 0);
        return value;
    }

    // ---- From a text ----

    /// `raw`, if the type shows it as `text`.
    RawSignal FromRaw(krm_ulong raw, std::string_view text) const {
        if (raw > m_largestRaw || Text(raw) != text) {
            return {};
        }
        return {.status = RawStatus::kFound, .raw = raw, .physical = Physical(raw)};
    }

    /// The first raw value near one of `values` that the type shows as `text`.
    RawSignal FromValueOf(std::string_view text, std::initializer_list<double> values) const {
        for (const double value : values) {
            RawSignal found = FromValue(value);
            if (found.status == RawStatus::kNoInverse) {
                return found;
            }
            if (RawSignal shown = FromRaw(found.raw, text)) {
                return shown;
            }
        }
        return {};
    }

    /// A raw value whose physical value, truncated, has `key` as its low 32 bits.
    RawSignal FromKey(krm_ulong key, std::string_view text) const {
        const double positive = key;
        const double negative = positive - 4294967296.0;  // 2^32
        return FromValueOf(text, {positive, positive + 0.5, negative, negative - 0.5});
    }

    template <class FromPattern>
    RawSignal FromPatterns(std::string_view text, FromPattern fromPattern) const {
        for (const CKRMCCommandDispData& pattern : m_rule.conversion.m_cPatternDispList) {
            if (text == pattern.m_strDataPhys.GetText()) {
                RawSignal found = fromPattern(pattern.m_ulRawData);
                if (found.status == RawStatus::kFound || found.status == RawStatus::kNoInverse) {
                    return found;
                }
            }
        }
        return {};
    }

    RawSignal FromPatternOrHex(std::string_view text) const {
        RawSignal found = FromPatterns(text, [&](krm_ulong key) { return FromKey(key, text); });
        if (found.status != RawStatus::kNone) {
            return found;
        }
        const CKRMString& defaultText = m_rule.conversion.m_strDefaultPattern;
        if (defaultText.GetLength() != 0) {
            return {.status = text == defaultText.GetText() ? RawStatus::kNoInverse : RawStatus::kNone};
        }
        krm_ulong key = 0;
        return Scanner(text).Words("0x").Number(key, 16).AtEnd() ? FromKey(key, text) : RawSignal{};
    }

    RawSignal FromRawPatternOrDecimal(std::string_view text) const {
        RawSignal found = FromPatterns(text, [&](krm_ulong key) { return FromRaw(key, text); });
        return found ? found : FromDecimal(text);
    }

    RawSignal FromLimitOrDecimal(std::string_view text) const {
        const auto limit = [&](krm_ulong key) {
            const CKRMCCommandConversionData& table = m_rule.conversion;
            const CKRMCCommandDispData& record = key == 0 ? table.m_cDataMin : table.m_cDataMax;
            return key <= 1 ? FromRaw(record.m_ulRawData & m_largestRaw, text) : RawSignal{};
        };
        RawSignal found = FromPatterns(text, limit);
        return found ? found : FromDecimal(text);
    }

    RawSignal FromDecimal(std::string_view text) const {
        const std::optional<double> value = DecimalOf(text);
        if (!value) {
            return {};
        }
        RawSignal found = FromValue(*value);
        if (found.status == RawStatus::kNoInverse || !std::isfinite(*value)) {
            return found;
        }
        if (RawSignal shown = FromRaw(found.raw, text)) {
            return shown;
        }
        // One that has a pattern is never shown as a number.
        return DecimalOf(Text(found.raw)) ? found : RawSignal{};
    }

    RawSignal FromDegrees(std::string_view text, char positive, char negative) const {
        if (text.empty() || (text[0] != positive && text[0] != negative)) {
            return {};
        }
        const std::optional<double> degrees = DecimalOf(text.substr(1));
        return degrees ? FromValueOf(text, {text[0] == positive ? *degrees : -*degrees}) : RawSignal{};
    }

    RawSignal FromTroubleCode(std::string_view text) const {
        constexpr std::string_view kSystems = "PCBU";
        const std::size_t system = text.empty() ? kSystems.npos : kSystems.find(text[0]);
        krm_ulong number = 0;
        if (system == kSystems.npos || !Scanner(text.substr(1)).Number(number, 16).AtEnd()) {
            return {};
        }
        return FromRaw((static_cast<krm_ulong>(system) << 14U) | number, text);
    }

    RawSignal FromBytesInHex(std::string_view text) const {
        RawSignal found;
        for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
            krm_ulong byte = 0;
            if (!Scanner(text.substr(i, 2)).Number(byte, 16).AtEnd()) {
                return {};
            }
            found.bytes.push_back(static_cast<unsigned char>(byte));
        }
        CKRMCCommandDispData shown;
        if (ConvertSignal(m_converter, m_rule, found.bytes, &shown) != 0 || text != shown.m_strDataPhys.GetText()) {
            return {};
        }
        found.status = RawStatus::kFound;
        found.physical = shown.m_dDataPhys;
        return found;
    }

    const SignalRule& m_rule;
    unsigned char m_type;
    SignalConverter m_converter;
    unsigned m_bits;
    krm_ulong m_largestRaw;
};

/// Nothing is left of what was not near enough.
RawSignal OrNothing(RawSignal found) {
    if (found.status == RawStatus::kNone || found.status == RawStatus::kNoInverse) {
        return {.status = found.status};
    }
    return found;
}

}  // namespace

krm_ulong ConvertSignal(const SignalConverter& converter, const SignalRule& rule, krm_ulong raw,
                        CKRMCCommandDispData* display) {
    if (converter->IsBinaryDataType()) {
        return kNullArgument;
    }
    const CKRMCCommandConversionData& table = rule.conversion;
    return converter->ConvCommandDispData(display, raw, table.m_uchSigned, table.m_ushBitLength, table.m_lMul,
                                          table.m_lDiv, table.m_lOffset, rule.decPntCount, table.m_cDataMax.m_ulRawData,
                                          table.m_cDataMin.m_ulRawData, Patterns(rule), DefaultText(rule), 0);
}

krm_ulong ConvertSignal(const SignalConverter& converter, const SignalRule& rule, std::span<const unsigned char> bytes,
                        CKRMCCommandDispData* display) {
    if (display == nullptr || bytes.empty()) {
        return kNullArgument;
    }
    if (!converter->IsBinaryDataType()) {
        if (bytes.size() > sizeof(krm_ulong)) {
            return kNullArgument;
        }
        krm_ulong raw = 0;
        for (const unsigned char byte : bytes) {
            raw = (raw << 8U) | byte;
        }
        return ConvertSignal(converter, rule, raw, display);
    }
    const CKRMCCommandConversionData& table = rule.conversion;
    display->m_strDataPhys.Empty();  // type 104 appends
    display->m_ulDataStringId = 0;
    return converter->ConvCommandDispData(display, bytes.data(), static_cast<krm_ulong>(bytes.size()),
                                          table.m_uchSigned, table.m_ushBitLength, table.m_lMul, table.m_lDiv,
                                          table.m_lOffset, rule.decPntCount, table.m_cDataMax.m_ulRawData,
                                          table.m_cDataMin.m_ulRawData, Patterns(rule));
}

krm_ulong ConvertSignal(const SignalRule& rule, krm_ulong raw, CKRMCCommandDispData* display) {
    return ConvertSignal(SignalConverter(rule.conversionType), rule, raw, display);
}

krm_ulong ConvertSignal(const SignalRule& rule, std::span<const unsigned char> bytes, CKRMCCommandDispData* display) {
    return ConvertSignal(SignalConverter(rule.conversionType), rule, bytes, display);
}

krm_ulong ConvertSignalBack(const SignalRule& rule, double value, krm_ulong* raw) {
    const CKRMCCommandConversionData& table = rule.conversion;
    return SignalConverter(rule.conversionType)
        ->ConvLogicalValue(raw, value, table.m_uchSigned, table.m_ushBitLength, table.m_lMul, table.m_lDiv,
                           table.m_lOffset, rule.decPntCount, table.m_cDataMax.m_ulRawData,
                           table.m_cDataMin.m_ulRawData);
}

RawSignal RawFromPhysical(const SignalRule& rule, double value) {
    return OrNothing(Inverse(rule).FromValue(value));
}

RawSignal RawFromPhysical(const SignalRule& rule, std::string_view text) {
    return OrNothing(Inverse(rule).FromText(text));
}

}  // namespace krm
