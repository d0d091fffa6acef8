#include "krm/convert/pattern_converters.h"

#include <optional>

#include "krm/convert/internal/numbers.h"
#include "krm/convert/internal/steps.h"

using krm::kNullArgument;
using krm::convert::BeginText;
using krm::convert::Steps;

namespace {

// Keys of the texts for values beyond the limits.
constexpr krm_ulong kLow = 0;
constexpr krm_ulong kHigh = 1;

/// Where a text and its words ID go. The ID may be null.
struct Place {
    CKRMString* text;
    krm_ulong* stringId;

    void Show(const CKRMString& shown, krm_ulong id) const {
        *text = shown;
        if (stringId != nullptr) {
            *stringId = id;
        }
    }
};

/// What every text from a pattern table starts with: false, and nothing done, without a result or a table.
template <class Pattern>
bool BeginText(Place place, const CKRMList<Pattern>* patterns) {
    return patterns != nullptr && BeginText(place.text, place.stringId);
}

krm_ulong KeyOf(const CKRMCCommandDispData& pattern) {
    return pattern.m_ulRawData;
}

/// The bytes as one big-endian number. Accumulated in double, as the physical value that it is compared with is one.
double KeyOf(const CKRMCCommandDispVariableData& pattern) {
    double key = 0;
    for (const unsigned char byte : pattern.m_uchRawDataList) {
        key = key * 256 + byte;
    }
    return key;
}

/// Shows the first pattern with `key`; false where there is none.
template <class Pattern, class Key>
bool ShowPattern(const CKRMList<Pattern>& patterns, Key key, Place place) {
    for (const Pattern& pattern : patterns) {
        if (KeyOf(pattern) == key) {
            place.Show(pattern.m_strDataPhys, pattern.m_ulDataStringId);
            return true;
        }
    }
    return false;
}

/// The default text of an item, and its words ID.
struct DefaultText {
    const CKRMString* text;
    krm_ulong stringId;
};

/// The text of `key`, without one the default text, and without that the value in hexadecimal.
template <class Pattern, class Key>
krm_ulong PatternOrDefault(CKRMCCommandConvSignalData& converter, Place place, const CKRMList<Pattern>* patterns,
                           Key key, DefaultText otherwise, double physical, unsigned short bitLength) {
    if (!BeginText(place, patterns)) {
        return kNullArgument;
    }
    if (ShowPattern(*patterns, key, place)) {
        return 0;
    }
    if (otherwise.text != nullptr && otherwise.text->GetLength() != 0) {
        place.Show(*otherwise.text, otherwise.stringId);
        return 0;
    }
    return Steps::Hexadecimal(converter, place.text, physical, bitLength);
}

/// The text of `key`; without a key or a pattern that has it, the value in decimal.
krm_ulong PatternOrDecimal(CKRMCCommandConvSignalData& converter, Place place,
                           const CKRMList<CKRMCCommandDispData>& patterns, std::optional<krm_ulong> key,
                           double physical, unsigned char decimals) {
    if (key && ShowPattern(patterns, *key, place)) {
        return 0;
    }
    return Steps::Decimal(converter, place.text, physical, decimals);
}

}  // namespace

krm_ulong CKRMCCommandConvSignalDataStringPattern::StringConversion(
    CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong, unsigned char, unsigned short ushBitLength,
    unsigned char, krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>* patternList, CKRMString* defaultPattern,
    krm_ulong ulDefaultStringId) {
    return PatternOrDefault(*this, {result, stringId}, patternList, krm::convert::TruncateToLow32(dPhys),
                            {defaultPattern, ulDefaultStringId}, dPhys, ushBitLength);
}

krm_ulong CKRMCCommandConvSignalDataStringPattern::StringVariableConversion(
    CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong, unsigned char, unsigned short ushBitLength,
    unsigned char, krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispVariableData>* patternList,
    CKRMString* defaultPattern, krm_ulong ulDefaultStringId) {
    return PatternOrDefault(*this, {result, stringId}, patternList, dPhys, {defaultPattern, ulDefaultStringId}, dPhys,
                            ushBitLength);
}

krm_ulong CKRMCCommandConvSignalDataMinMax::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                             krm_ulong ulRawData, unsigned char uchSigned,
                                                             unsigned short ushBitLength, unsigned char uchDecPntCount,
                                                             krm_ulong ulMax, krm_ulong ulMin,
                                                             CKRMList<CKRMCCommandDispData>* patternList, CKRMString*,
                                                             krm_ulong) {
    const Place place = {result, stringId};
    if (!BeginText(place, patternList)) {
        return kNullArgument;
    }
    krm_int64 value = 0;
    krm_int64 most = 0;
    krm_int64 least = 0;
    krm_ulong status = SignedConversion(&value, ulRawData, uchSigned, ushBitLength);
    if (status == 0) {
        status = SignedConversion(&most, ulMax, uchSigned, ushBitLength);
    }
    if (status == 0) {
        status = SignedConversion(&least, ulMin, uchSigned, ushBitLength);
    }
    if (status != 0) {
        return status;
    }
    std::optional<krm_ulong> key;
    if (value <= least) {
        key = kLow;
    } else if (value >= most) {
        key = kHigh;
    }
    return PatternOrDecimal(*this, place, *patternList, key, dPhys, uchDecPntCount);
}

krm_ulong CKRMCCommandConvSignalDataIlluminanceMinMax::ValueConversion(double* result, krm_ulong ulRawData,
                                                                       unsigned char, unsigned short, krm_long,
                                                                       krm_long, krm_long, unsigned char) {
    // Wraps in 32 bits far above the sensor's range.
    return krm::convert::AssignValue(
        result, ulRawData > 3000 ? static_cast<krm_ulong>(ulRawData * 8 - 22500) : ulRawData >> 1U);
}

krm_ulong CKRMCCommandConvSignalDataIlluminanceMinMax::StringConversion(
    CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData, unsigned char, unsigned short,
    unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
    CKRMString*, krm_ulong) {
    const Place place = {result, stringId};
    if (!BeginText(place, patternList)) {
        return kNullArgument;
    }
    std::optional<krm_ulong> key;
    if (ulRawData <= ulMin) {
        key = kLow;
    } else if (ulRawData >= ulMax) {
        key = kHigh;
    }
    return PatternOrDecimal(*this, place, *patternList, key, dPhys, uchDecPntCount);
}

krm_ulong CKRMCCommandConvSignalDataLsbPattern::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                                 krm_ulong ulRawData, unsigned char, unsigned short,
                                                                 unsigned char uchDecPntCount, krm_ulong, krm_ulong,
                                                                 CKRMList<CKRMCCommandDispData>* patternList,
                                                                 CKRMString*, krm_ulong) {
    const Place place = {result, stringId};
    if (!BeginText(place, patternList)) {
        return kNullArgument;
    }
    return PatternOrDecimal(*this, place, *patternList, ulRawData, dPhys, uchDecPntCount);
}
