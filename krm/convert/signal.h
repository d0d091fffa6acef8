// Signals converted by the rule that came with them: what an answer carries goes in as it is, instead of thirteen
// arguments, and a raw value comes back out of what is shown.
//
//     for (const CKRMCCommandFFDData& item : answer.Data) {
//         CKRMCCommandDispData shown;
//         krm::ConvertSignal(item, raw, &shown);                           // raw value to physical value and text
//         krm::RawSignal back = krm::RawFromPhysical(item, shown.m_dDataPhys);  // and back: back.raw
//
// Free functions and small types beside the converters of krm/convert/converter.h, which they call.
#ifndef KRM_CONVERT_SIGNAL_H_
#define KRM_CONVERT_SIGNAL_H_

#include <memory>
#include <new>
#include <span>
#include <string_view>
#include <vector>

#include "krm/convert/conversion_types.h"
#include "krm/convert/converter.h"

namespace krm {

/// Owns a converter and gives it back through DeleteConverter. Movable; one that was moved from may only be assigned to
/// or destroyed.
class SignalConverter {
public:
    /// The converter of a conversion type; an unknown type gives that of plain numbers. Throws std::bad_alloc where
    /// CreateConverter gives null.
    explicit SignalConverter(unsigned char conversionType)
        : m_converter(CKRMCCommandConvSignalData::CreateConverter(conversionType)) {
        if (m_converter == nullptr) {
            throw std::bad_alloc();
        }
    }

    CKRMCCommandConvSignalData& operator*() const { return *m_converter; }        ///< the converter
    CKRMCCommandConvSignalData* operator->() const { return m_converter.get(); }  ///< the converter's members

private:
    struct Delete {
        void operator()(CKRMCCommandConvSignalData* converter) const {
            CKRMCCommandConvSignalData::DeleteConverter(converter);
        }
    };
    std::unique_ptr<CKRMCCommandConvSignalData, Delete> m_converter;
};

/// How a signal is converted. Every record with `m_uchDataType`, `m_uchDecPntCount` and `m_cConversionTbl` turns into one by
/// itself: freeze-frame items, active tests, on-board monitors, oscilloscope channels.
///
/// Refers to the conversion record: don't keep it longer. The limits are the raw values of the record's `m_cDataMax` and
/// `m_cDataMin`, the patterns its own; the words ID of the default text, for which records have no room, is 0.
struct SignalRule {
    /// The rule of an item of conversion type `type` with `decimals` decimal places. `table` must live as long as the rule.
    SignalRule(unsigned char type, unsigned char decimals, const CKRMCCommandConversionData& table)
        : conversionType(type), decPntCount(decimals), conversion(table) {}
    /// The rule that `record` carries, which must live as long.
    template <class Record>
    requires requires(const Record& record) {
        record.m_uchDataType;
        record.m_uchDecPntCount;
        static_cast<const CKRMCCommandConversionData&>(record.m_cConversionTbl);
    }
    SignalRule(const Record& record)
        : SignalRule(record.m_uchDataType, record.m_uchDecPntCount, record.m_cConversionTbl) {}

    unsigned char conversionType;                  ///< as CreateConverter takes it
    unsigned char decPntCount;                     ///< decimal places of the physical value
    const CKRMCCommandConversionData& conversion;  ///< scaling, sign code, bit length, limits and patterns
};

/// Fills raw value, physical value, text and words ID of `*display` from a raw value, right-aligned. Types 4 and 104 take
/// bytes and refuse it. Returns 0, or krm::kNullArgument when `display` is null or when the signal is not of the kind that the
/// type takes; `*display` is unchanged then.
KRM_API krm_ulong ConvertSignal(const SignalRule& rule, krm_ulong raw, CKRMCCommandDispData* display);
/// The same from bytes. Types other than 4 and 104 read one to four of them as a raw value, most significant first, and refuse any
/// other number.
KRM_API krm_ulong ConvertSignal(const SignalRule& rule, std::span<const unsigned char> bytes,
                                CKRMCCommandDispData* display);
/// The same from a raw value by a converter that is made once for many signals.
/// REQUIRES: `converter` is one of the rule's type.
KRM_API krm_ulong ConvertSignal(const SignalConverter& converter, const SignalRule& rule, krm_ulong raw,
                                CKRMCCommandDispData* display);
/// The same from bytes by a converter that is made once for many signals.
/// REQUIRES: `converter` is one of the rule's type.
KRM_API krm_ulong ConvertSignal(const SignalConverter& converter, const SignalRule& rule,
                                std::span<const unsigned char> bytes, CKRMCCommandDispData* display);

/// The interface's way back, ConvLogicalValue with raw limits: undoes the scaling, truncates, and gives the raw limit at or
/// beyond a limit. Returns 0, or krm::kNullArgument for a null `raw`.
///
/// It undoes nothing but the scaling. Types 6 to 12, 15, 16, 19, 24, 101, 102, 110, 111 and 114 do more than scale, types 5,
/// 105 and 106 less: for these it gives, with status 0, another raw value than the one behind `value`. RawFromPhysical
/// undoes them, too.
KRM_API krm_ulong ConvertSignalBack(const SignalRule& rule, double value, krm_ulong* raw);

/// What RawFromPhysical has found.
enum class RawStatus : unsigned char {
    kFound,      ///< a raw value that is shown just so
    kNearest,    ///< none is; `raw` is the nearest, and `physical` what it gives instead
    kNone,       ///< nothing of the bit length comes near: out of range, NaN, or a text that the type never shows
    kNoInverse,  ///< many raw values that mean different things are shown so: which one it was can't be told
};

/// A raw value with what it stands for. True when it is shown just as it was asked for.
struct RawSignal {
    /// Whether a raw value was found that is shown just so.
    explicit operator bool() const { return status == RawStatus::kFound; }

    RawStatus status = RawStatus::kNone;    ///< decides what the others hold
    krm_ulong raw = 0;                      ///< right-aligned, within the bit length; 0 unless found or nearest
    double physical = 0;                    ///< the physical value of `raw`
    std::vector<unsigned char> bytes = {};  ///< instead of `raw`, for the type that takes bytes (104)
};

/// The raw value behind a physical value: the true inverse of the conversion, for all types but those of which IsInvertible
/// says no; these are kNoInverse. Equal counts what differs by the rounding of the last binary place, as a number that was
/// typed does. Type 104 needs the text.
///
/// What it finds has been converted again and compared. Where raw values that mean the same are shown alike, it gives the
/// plain one: zero without a sign, BCD digits of at most 9, no bits that the type doesn't read. Where a scaling gives several
/// numbers the same value, it gives one of them; a scaling that gives all the same, such as one with a multiplier of 0, is
/// kNoInverse. So are bit lengths that cut a digit or byte short: of BCD any but the multiples of 4 up to 32, of the byte
/// exchange (type 12) those below 16. Dates and times of types 15 and 16 are undone as far as each of their scaled parts fits
/// a byte.
///
/// The raw value fits the bit length; of types 7 to 11, which have a width of their own, that width. Bit lengths of 0 and
/// above 32 count as 32 bits for unsigned numbers, else as the converters take them. The limits play no part: what may be
/// sent to an ECU is the caller's to decide. Throws nothing but std::bad_alloc.
KRM_API RawSignal RawFromPhysical(const SignalRule& rule, double value);
/// The same from a display text, just as the type shows it; of types that show decimals any spelling of the number will do that
/// std::from_chars reads, with a point in every locale.
///
/// A pattern's text gives the first pattern of that text that is ever shown, a limit's text (type 13) the limit. Where a text
/// says less than the value (hours and minutes of type 115, two digits of a date), one without the rest if it can be.
/// kNoInverse are the default text, which stands for whatever has no pattern, and types 105 and 106: how the user's locale
/// writes a date can't be read back, two digits of the year being the least of it. Give these the physical value.
KRM_API RawSignal RawFromPhysical(const SignalRule& rule, std::string_view text);

}  // namespace krm

#endif  // KRM_CONVERT_SIGNAL_H_
