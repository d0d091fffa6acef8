#include "krm/convert/text_converters.h"

#include <array>
#include <cstddef>

#include "krm/convert/internal/numbers.h"
#include "krm/convert/internal/short_text.h"
#include "krm/core/internal/digits.h"

using krm::kNullArgument;
using krm::convert::BeginText;
using krm::convert::ShortText;

namespace {

/// Degrees behind the letter of their half of the globe. NaN counts as north and east.
krm_ulong ShowDegrees(CKRMString* result, double degrees, char positive, char negative) {
    if (result == nullptr) {
        return kNullArgument;
    }
    constexpr unsigned char kDecimals = 4;
    const bool below = degrees < 0;
    // Whole before it is assigned: where memory runs out, the result stays as it was.
    *result = krm::convert::DecimalText(below ? -degrees : degrees, kDecimals).TextBehind(below ? negative : positive);
    return 0;
}

}  // namespace

krm_ulong CKRMCCommandConvSignalDataHex::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                          krm_ulong, unsigned char, unsigned short ushBitLength,
                                                          unsigned char, krm_ulong, krm_ulong,
                                                          CKRMList<CKRMCCommandDispData>*, CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    return HexStringConversion(result, dPhys, ushBitLength);
}

krm_ulong CKRMCCommandConvSignalDataHex2::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                           krm_ulong, unsigned char, unsigned short ushBitLength,
                                                           unsigned char, krm_ulong, krm_ulong,
                                                           CKRMList<CKRMCCommandDispData>*, CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    return HexStringConversion2(result, dPhys, ushBitLength);
}

krm_ulong CKRMCCommandConvSignalDataDiagCode::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                              unsigned short, krm_long, krm_long, krm_long,
                                                              unsigned char) {
    return krm::convert::AssignValue(result, ulRawData);
}

krm_ulong CKRMCCommandConvSignalDataDiagCode::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                               krm_ulong, unsigned char, unsigned short, unsigned char,
                                                               krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                               CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    const krm_ulong code = krm::convert::TruncateToLow32(dPhys);
    constexpr std::array<char, 4> kSystems = {'P', 'C', 'B', 'U'};  // powertrain, chassis, body, network
    ShortText().Character(kSystems[(code >> 14U) & 3U]).Hexadecimal(code & 0x3FFFU, 4).AssignTo(*result);
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataLatitude::StringConversion(CKRMString* result, krm_ulong*, double dPhys, krm_ulong,
                                                               unsigned char, unsigned short, unsigned char, krm_ulong,
                                                               krm_ulong, CKRMList<CKRMCCommandDispData>*, CKRMString*,
                                                               krm_ulong) {
    return ShowDegrees(result, dPhys, 'N', 'S');
}

krm_ulong CKRMCCommandConvSignalDataLongitude::StringConversion(CKRMString* result, krm_ulong*, double dPhys, krm_ulong,
                                                                unsigned char, unsigned short, unsigned char, krm_ulong,
                                                                krm_ulong, CKRMList<CKRMCCommandDispData>*, CKRMString*,
                                                                krm_ulong) {
    return ShowDegrees(result, dPhys, 'E', 'W');
}

krm_ulong CKRMCCommandConvSignalDataSoftwareVersion::StringConversion(CKRMString* result, krm_ulong* stringId, double,
                                                                      krm_ulong ulRawData, unsigned char,
                                                                      unsigned short, unsigned char, krm_ulong,
                                                                      krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                                      CKRMString*, krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    ShortText()
        .Hexadecimal((ulRawData >> 8U) & 0xFFU)
        .Character('.')
        .Hexadecimal(ulRawData & 0xFFU, 2)
        .AssignTo(*result);
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataBin::StringConversion(CKRMString* result, krm_ulong* stringId, double,
                                                          krm_ulong ulRawData, unsigned char,
                                                          unsigned short ushBitLength, unsigned char, krm_ulong,
                                                          krm_ulong, CKRMList<CKRMCCommandDispData>*, CKRMString*,
                                                          krm_ulong) {
    if (!BeginText(result, stringId)) {
        return kNullArgument;
    }
    constexpr std::size_t kMostBits = 32;
    if (ushBitLength > kMostBits) {
        return kNullArgument;
    }
    std::array<char, kMostBits + 1> digits;
    char* end = digits.data();
    if (ushBitLength != 0) {
        const krm_ulong bits = ulRawData & (0xFFFFFFFFU >> (kMostBits - ushBitLength));
        end = krm::core::WriteBits<1>(end, bits, ushBitLength);
    }
    *end = '\0';
    *result = digits.data();
    return 0;
}
