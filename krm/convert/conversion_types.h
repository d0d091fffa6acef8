// The table of all conversion types: which converter each code leads to, and what that shows.
// CKRMCCommandConvSignalData::CreateConverter is made from it.
#ifndef KRM_CONVERT_CONVERSION_TYPES_H_
#define KRM_CONVERT_CONVERSION_TYPES_H_

#include "krm/core/types.h"

namespace krm {

/// An item of a conversion type, a raw value of it, and what the converter makes of that. What isn't named here is as for
/// a plain number: unsigned, multiplied and divided by 1, offset 0, lower limit 0, no default text.
struct ConversionExample {
    /// The raw value. Where the type takes bytes, `bitLength` / 8 of them, the first one being the highest of the number.
    krm_ulong raw = 0;
    unsigned short bitLength = 8;  ///< of the raw value: 1 to 32
    unsigned char decimals = 0;    ///< decimal places of the physical value
    krm_ulong max = 0xFFFFFFFFU;   ///< upper limit, as a raw value
    /// The only pattern of the item: its key and its text. No pattern where the text is null.
    krm_ulong patternKey = 0;
    const char* patternText = nullptr;  ///< null for no pattern
    const char* text = "";              ///< what the converter shows; in the C locale where the type follows the user's
};

/// One conversion type.
struct ConversionType {
    unsigned char code;     ///< what CreateConverter takes
    const char* name;       ///< a few words; types with the same name convert alike
    const char* className;  ///< the converter's class
    const char* shows;      ///< what its physical value and its text are
    /// What IsBinaryDataType of the converter returns: whether the item's bytes are converted, not its raw value.
    bool takesBytes = false;
    /// Whether a raw value can be found again from what is shown (krm::RawFromPhysical). Where it can't, different raw
    /// values are shown alike.
    bool invertible = true;
    /// Whether the text is written as the locale of the user asks, and so differs from one computer to another.
    bool followsLocale = false;
    /// The arguments of CKRMCCommandConvSignalDataChassis: the number of bits, and whether the last of them is a sign. 0
    /// and false for every other class.
    krm_ulong groupWidth = 0;
    bool lastBitIsSign = false;  ///< the second of these arguments
    ConversionExample example;   ///< an item of this type, and what is shown of it
};

/// All types that have a converter of their own, by code. Any other code is one of kPlainNumber. Walk it to list or name
/// conversion types in a tool.
inline constexpr ConversionType kConversionTypes[] = {
    {.code = 1,
     .name = "pattern",
     .className = "CKRMCCommandConvSignalDataStringPattern",
     .shows = "the text of the pattern for the physical value, else the default text, else hexadecimal",
     .example = {.raw = 1, .patternKey = 1, .patternText = "On", .text = "On"}},
    {.code = 3,
     .name = "hexadecimal with prefix",
     .className = "CKRMCCommandConvSignalDataHex",
     .shows = "the scaled value in hexadecimal behind 0x, a digit per four bits",
     .example = {.raw = 0xAB, .bitLength = 12, .text = "0x0AB"}},
    {.code = 4,
     .name = "characters",
     .className = "CKRMCCommandConvSignalDataAscii",
     .shows = "up to 255 bytes as text, - where the first is 0",
     .takesBytes = true,
     .invertible = false,
     .example = {.raw = 0x4F4B, .bitLength = 16, .text = "OK"}},
    {.code = 5,
     .name = "trouble code",
     .className = "CKRMCCommandConvSignalDataDiagCode",
     .shows = "the letter P, C, B or U of the two highest bits of 16, and four hexadecimal digits of the others",
     .example = {.raw = 0x4123, .bitLength = 16, .text = "C0123"}},
    {.code = 6,
     .name = "illuminance from a period",
     .className = "CKRMCCommandConvSignalDataIlluminance",
     .shows = "an illuminance, reciprocal to the raw value in two pieces; without scaling",
     .invertible = false,
     .example = {.raw = 48, .text = "600"}},
    {.code = 7,
     .name = "10 mirrored bits with sign",
     .className = "CKRMCCommandConvSignalDataChassis",
     .shows = "9 bits, each byte in mirrored order, and a sign, scaled in integers",
     .groupWidth = 10,
     .lastBitIsSign = true,
     .example = {.raw = 0x40C0, .bitLength = 10, .text = "-3"}},
    {.code = 8,
     .name = "12 mirrored bits with sign",
     .className = "CKRMCCommandConvSignalDataChassis",
     .shows = "11 bits, each byte in mirrored order, and a sign, scaled in integers",
     .groupWidth = 12,
     .lastBitIsSign = true,
     .example = {.raw = 0x10C0, .bitLength = 12, .text = "-3"}},
    {.code = 9,
     .name = "10 mirrored bits",
     .className = "CKRMCCommandConvSignalDataChassis",
     .shows = "10 bits, each byte in mirrored order, scaled in integers",
     .groupWidth = 10,
     .example = {.raw = 0x40C0, .bitLength = 10, .text = "515"}},
    {.code = 10,
     .name = "8 mirrored bits with sign",
     .className = "CKRMCCommandConvSignalDataChassis",
     .shows = "7 bits in mirrored order and a sign, scaled in integers",
     .groupWidth = 8,
     .lastBitIsSign = true,
     .example = {.raw = 0xC1, .text = "-3"}},
    {.code = 11,
     .name = "16 mirrored bits",
     .className = "CKRMCCommandConvSignalDataChassis",
     .shows = "16 bits, each byte in mirrored order, scaled in integers",
     .groupWidth = 16,
     .example = {.raw = 0x01C0, .bitLength = 16, .text = "32771"}},
    {.code = 12,
     .name = "exchanged bytes",
     .className = "CKRMCCommandConvSignalDataReversal",
     .shows = "the scaled value of the raw value with its two low bytes exchanged",
     .example = {.raw = 0x3412, .bitLength = 16, .text = "4660"}},
    {.code = 13,
     .name = "number with texts for its limits",
     .className = "CKRMCCommandConvSignalDataMinMax",
     .shows = "the scaled value; at or below the lower limit the text of pattern 0, at or above the upper that of 1",
     .example = {.raw = 250, .max = 250, .patternKey = 1, .patternText = "High", .text = "High"}},
    {.code = 15,
     .name = "date of three bytes",
     .className = "CKRMCCommandConvSignalDataDate",
     .shows = "three bytes, each scaled by itself, with two digits each and points between them",
     .example = {.raw = 0x170C1F, .bitLength = 24, .text = "23.12.31"}},
    {.code = 16,
     .name = "time of three bytes",
     .className = "CKRMCCommandConvSignalDataTime",
     .shows = "three bytes, each scaled by itself, with two digits each and points between them",
     .example = {.raw = 0x0D071E, .bitLength = 24, .text = "13.07.30"}},
    {.code = 19,
     .name = "minutes as a time",
     .className = "CKRMCCommandConvSignalDataTimeHHMM",
     .shows = "a count of minutes as hours and minutes",
     .example = {.raw = 135, .text = "02:15"}},
    {.code = 20,
     .name = "pattern",
     .className = "CKRMCCommandConvSignalDataStringPattern",
     .shows = "the text of the pattern for the physical value, else the default text, else hexadecimal",
     .example = {.raw = 1, .patternKey = 1, .patternText = "On", .text = "On"}},
    {.code = 22,
     .name = "pattern",
     .className = "CKRMCCommandConvSignalDataStringPattern",
     .shows = "the text of the pattern for the physical value, else the default text, else hexadecimal",
     .example = {.raw = 1, .patternKey = 1, .patternText = "On", .text = "On"}},
    {.code = 24,
     .name = "illuminance with texts for its limits",
     .className = "CKRMCCommandConvSignalDataIlluminanceMinMax",
     .shows = "an illuminance, linear in two pieces, without scaling; at a limit or beyond the text of pattern 0 or 1",
     .invertible = false,
     .example =
         {.raw = 4000, .bitLength = 16, .max = 3500, .patternKey = 1, .patternText = "Bright", .text = "Bright"}},
    {.code = 101,
     .name = "binary-coded decimal",
     .className = "CKRMCCommandConvSignalDataBcd",
     .shows = "the number that the raw value has in decimal digits of four bits, negative behind a digit F",
     .example = {.raw = 0x1234, .bitLength = 16, .decimals = 2, .text = "12.34"}},
    {.code = 102,
     .name = "slope",
     .className = "CKRMCCommandConvSignalDataIncline",
     .shows = "the slope in percent that an acceleration along it means",
     .example = {.raw = 490, .bitLength = 16, .decimals = 1, .text = "57.7"}},
    {.code = 103,
     .name = "pattern of the raw value",
     .className = "CKRMCCommandConvSignalDataLsbPattern",
     .shows = "the text of the pattern for the raw value, else the scaled value",
     .example = {.raw = 3, .patternKey = 3, .patternText = "Neutral", .text = "Neutral"}},
    {.code = 104,
     .name = "bytes in hexadecimal",
     .className = "CKRMCCommandConvSignalDataArrayHex",
     .shows = "two hexadecimal digits per byte, behind the text that the record already holds",
     .takesBytes = true,
     .example = {.raw = 0x01AB, .bitLength = 16, .text = "01AB"}},
    {.code = 105,
     .name = "date",
     .className = "CKRMCCommandConvSignalDataDate2",
     .shows = "a year of 16 bits, a month and a day as the user's locale writes a date, - where it is none",
     .followsLocale = true,
     .example = {.raw = 0x07E70C1F, .bitLength = 32, .text = "12/31/23"}},
    {.code = 106,
     .name = "time of day",
     .className = "CKRMCCommandConvSignalDataTime2",
     .shows = "hour, minute and second of the three high bytes as the user's locale writes a time, else nothing",
     .followsLocale = true,
     .example = {.raw = 0x0D071E00, .bitLength = 32, .text = "13:07:30"}},
    {.code = 107,
     .name = "latitude",
     .className = "CKRMCCommandConvSignalDataLatitude",
     .shows = "degrees with four decimals behind N or S",
     .example = {.raw = 355000, .bitLength = 32, .decimals = 4, .text = "N35.5000"}},
    {.code = 108,
     .name = "longitude",
     .className = "CKRMCCommandConvSignalDataLongitude",
     .shows = "degrees with four decimals behind E or W",
     .example = {.raw = 1397500, .bitLength = 32, .decimals = 4, .text = "E139.7500"}},
    {.code = 109,
     .name = "software version",
     .className = "CKRMCCommandConvSignalDataSoftwareVersion",
     .shows = "the two low bytes of the raw value in hexadecimal with a point between them",
     .example = {.raw = 0x0123, .bitLength = 16, .text = "1.23"}},
    {.code = 110,
     .name = "linear with fixed coefficients",
     .className = "CKRMCCommandConvSignalDataSpecial2",
     .shows = "11.515 less 0.0338 times the scaled value",
     .example = {.raw = 1000, .bitLength = 16, .decimals = 1, .text = "8.1"}},
    {.code = 111,
     .name = "minutes in words",
     .className = "CKRMCCommandConvSignalDataTimeHHMM2",
     .shows = "a count of minutes as hours and minutes, with their units",
     .example = {.raw = 135, .text = "2hrs,15min"}},
    {.code = 112,
     .name = "hexadecimal",
     .className = "CKRMCCommandConvSignalDataHex2",
     .shows = "the scaled value in hexadecimal, a digit per four bits",
     .example = {.raw = 0xAB, .bitLength = 12, .text = "0AB"}},
    {.code = 113,
     .name = "bits",
     .className = "CKRMCCommandConvSignalDataBin",
     .shows = "the bits of the raw value, a digit each, the highest first",
     .example = {.raw = 5, .bitLength = 4, .text = "0101"}},
    {.code = 114,
     .name = "thermistor temperature",
     .className = "CKRMCCommandConvSignalDataSpecial3",
     .shows = "degrees Celsius of a thermistor from the code of its voltage, without scaling",
     .example = {.raw = 100, .decimals = 1, .text = "34.8"}},
    {.code = 115,
     .name = "seconds in words",
     .className = "CKRMCCommandConvSignalDataTimeHHMM3",
     .shows = "a count of seconds as hours and minutes, with their units",
     .example = {.raw = 8100, .bitLength = 16, .text = "2hrs,15min"}},
};

/// The type of every code that kConversionTypes doesn't have: an unknown code is no error. Its own code, 0, stands for all
/// of them.
inline constexpr ConversionType kPlainNumber = {
    .code = 0,
    .name = "number",
    .className = "CKRMCCommandConvSignalData",
    .shows = "the scaled value in decimal",
    .example = {.raw = 4000, .bitLength = 16, .decimals = 1, .text = "400.0"}};

/// The type of a code; kPlainNumber where the code has no converter of its own.
constexpr const ConversionType& ConversionTypeOf(unsigned char code) {
    for (const ConversionType& type : kConversionTypes) {
        if (type.code == code) {
            return type;
        }
    }
    return kPlainNumber;
}

/// Whether a conversion type tells its raw values apart: krm::RawFromPhysical (krm/convert/signal.h) finds the raw value
/// behind what such a type shows.
///
/// Not so are the texts of type 4, which end at a NUL, and the illuminances of types 6 and 24, which many raw values share.
/// What the others show alike means the same: a negative zero, a BCD digit above 9, bits that the type doesn't read, the
/// ends at which types 102 and 114 stay. A scaling that loses something is the rule's doing and not asked here.
///
/// The interface's ConvLogicalValue undoes the scaling alone: of most types that do more than scale it gives another raw
/// value, with status 0.
constexpr bool IsInvertible(unsigned char code) {
    return ConversionTypeOf(code).invertible;
}

}  // namespace krm

#endif  // KRM_CONVERT_CONVERSION_TYPES_H_
