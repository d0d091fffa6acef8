#include "krm/convert/pattern_converters.h"

#include "krm/convert/internal/numbers.h"

using krm::kNullArgument;
using krm::convert::ResetStringId;

namespace {

/// The text and words ID of the first pattern that `matches`; false where there is none.
template <class Pattern, class Matches>
bool ShowPattern(const CKRMList<Pattern>& patterns, Matches matches, CKRMString* result, krm_ulong* stringId) {
    for (const Pattern& pattern : patterns) {
        if (matches(pattern)) {
            *result = pattern.m_strDataPhys;
            if (stringId != nullptr) {
                *stringId = pattern.m_ulDataStringId;
            }
            return true;
        }
    }
    return false;
}

bool ShowPattern(const CKRMList<CKRMCCommandDispData>& patterns, krm_ulong key, CKRMString* result,
                 krm_ulong* stringId) {
    return ShowPattern(
        patterns, [key](const CKRMCCommandDispData& pattern) { return pattern.m_ulRawData == key; }, result, stringId);
}

/// The default text and its words ID; false where there is none to show.
bool ShowDefault(const CKRMString* defaultPattern, krm_ulong defaultStringId, CKRMString* result, krm_ulong* stringId) {
    if (defaultPattern == nullptr || defaultPattern->GetLength() == 0) {
        return false;
    }
    *result = *defaultPattern;
    if (stringId != nullptr) {
        *stringId = defaultStringId;
    }
    return true;
}

/// The bytes as one big-endian number. Accumulated in double, as the physical value that it is compared with is one.
double KeyOf(const CKRMCCommandDispVariableData& pattern) {
    double key = 0;
    for (const unsigned char byte : pattern.m_uchRawDataList) {
        key = key * 256 + byte;
    }
    return key;
}

}  // namespace

krm_ulong CKRMCCommandConvSignalDataStringPattern::StringConversion(
    CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong, unsigned char, unsigned short ushBitLength,
    unsigned char, krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>* patternList, CKRMString* defaultPattern,
    krm_ulong ulDefaultStringId) {
    if (result == nullptr || patternList == nullptr) {
        return kNullArgument;
    }
    ResetStringId(stringId);
    if (ShowPattern(*patternList, krm::convert::TruncateToLow32(dPhys), result, stringId) ||
        ShowDefault(defaultPattern, ulDefaultStringId, result, stringId)) {
        return 0;
    }
    return HexStringConversion(result, dPhys, ushBitLength);
}

krm_ulong CKRMCCommandConvSignalDataStringPattern::StringVariableConversion(
    CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong, unsigned char, unsigned short ushBitLength,
    unsigned char, krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispVariableData>* patternList,
    CKRMString* defaultPattern, krm_ulong ulDefaultStringId) {
    if (result == nullptr || patternList == nullptr) {
        return kNullArgument;
    }
    ResetStringId(stringId);
    const auto matches = [dPhys](const CKRMCCommandDispVariableData& pattern) { return KeyOf(pattern) == dPhys; };
    if (ShowPattern(*patternList, matches, result, stringId) ||
        ShowDefault(defaultPattern, ulDefaultStringId, result, stringId)) {
        return 0;
    }
    return HexStringConversion(result, dPhys, ushBitLength);
}

krm_ulong CKRMCCommandConvSignalDataMinMax::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                             krm_ulong ulRawData, unsigned char uchSigned,
                                                             unsigned short ushBitLength, unsigned char uchDecPntCount,
                                                             krm_ulong ulMax, krm_ulong ulMin,
                                                             CKRMList<CKRMCCommandDispData>* patternList, CKRMString*,
                                                             krm_ulong) {
    if (result == nullptr || patternList == nullptr) {
        return kNullArgument;
    }
    ResetStringId(stringId);
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
    constexpr krm_ulong kLow = 0;
    constexpr krm_ulong kHigh = 1;
    if ((value <= least || value >= most) &&
        ShowPattern(*patternList, value <= least ? kLow : kHigh, result, stringId)) {
        return 0;
    }
    return DecStringConversion(result, dPhys, uchDecPntCount);
}

krm_ulong CKRMCCommandConvSignalDataIlluminanceMinMax::ValueConversion(double* result, krm_ulong ulRawData,
                                                                       unsigned char, unsigned short, krm_long,
                                                                       krm_long, krm_long, unsigned char) {
    if (result == nullptr) {
        return kNullArgument;
    }
    // Unsigned 32-bit arithmetic, wrapping: a raw value far above the sensor's range gives what it always gave.
    *result = ulRawData > 3000 ? static_cast<krm_ulong>(ulRawData * 8 - 22500) : ulRawData >> 1U;
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataIlluminanceMinMax::StringConversion(
    CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData, unsigned char, unsigned short,
    unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
    CKRMString*, krm_ulong) {
    if (result == nullptr || patternList == nullptr) {
        return kNullArgument;
    }
    ResetStringId(stringId);
    const bool between = ulMin < ulRawData && ulRawData < ulMax;
    constexpr krm_ulong kLow = 0;
    constexpr krm_ulong kHigh = 1;
    if (!between && ShowPattern(*patternList, ulRawData > ulMin ? kHigh : kLow, result, stringId)) {
        return 0;
    }
    return DecStringConversion(result, dPhys, uchDecPntCount);
}

krm_ulong CKRMCCommandConvSignalDataLsbPattern::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                                 krm_ulong ulRawData, unsigned char, unsigned short,
                                                                 unsigned char uchDecPntCount, krm_ulong, krm_ulong,
                                                                 CKRMList<CKRMCCommandDispData>* patternList,
                                                                 CKRMString*, krm_ulong) {
    if (result == nullptr || patternList == nullptr) {
        return kNullArgument;
    }
    ResetStringId(stringId);
    if (ShowPattern(*patternList, ulRawData, result, stringId)) {
        return 0;
    }
    return DecStringConversion(result, dPhys, uchDecPntCount);
}
