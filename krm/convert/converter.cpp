#include "krm/convert/converter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "krm/convert/internal/extended.h"
#include "krm/convert/internal/numbers.h"
#include "krm/convert/internal/quick_scaling.h"
#include "krm/convert/internal/steps.h"

using krm::kNullArgument;
using krm::convert::DecimalText;
using krm::convert::Divides;
using krm::convert::Extended;
using krm::convert::Low32;
using krm::convert::PowerOfTen;
using krm::convert::Scaling;
using krm::convert::Signal;
using krm::convert::Truncate;

namespace {

krm_ulong ShowText(CKRMCCommandConvSignalData& converter, CKRMCCommandDispData& record, krm_ulong raw,
                   const Signal<CKRMCCommandDispData>& signal) {
    return converter.StringConversion(&record.m_strDataPhys, &record.m_ulDataStringId, record.m_dDataPhys, raw,
                                      signal.scaling.signCode, signal.scaling.bitLength, signal.scaling.decimals,
                                      signal.max, signal.min, signal.patterns, signal.defaultText,
                                      signal.defaultStringId);
}

krm_ulong ShowText(CKRMCCommandConvSignalData& converter, CKRMCCommandDispData& record, krm_ulong raw,
                   const Signal<CKRMCCommandDispVariableData>& signal) {
    return converter.StringVariableConversion(&record.m_strDataPhys, &record.m_ulDataStringId, record.m_dDataPhys, raw,
                                              signal.scaling.signCode, signal.scaling.bitLength,
                                              signal.scaling.decimals, signal.max, signal.min, signal.patterns,
                                              signal.defaultText, signal.defaultStringId);
}

/// Both entries of a raw value: its physical value, and from that its text.
template <class Pattern>
krm_ulong Show(CKRMCCommandConvSignalData& converter, CKRMCCommandDispData* record, krm_ulong raw,
               const Signal<Pattern>& signal) {
    if (record == nullptr) {
        return kNullArgument;
    }
    record->m_ulRawData = raw;
    const Scaling& scaling = signal.scaling;
    const krm_ulong status = converter.ValueConversion(&record->m_dDataPhys, raw, scaling.signCode, scaling.bitLength,
                                                       scaling.mul, scaling.div, scaling.offset, scaling.decimals);
    return status != 0 ? status : ShowText(converter, *record, raw, signal);
}

/// Undoes PhysicalConversion's scaling, in plain double.
inline double Unscaled(double value, const Scaling& scaling) {
    double unscaled = value * PowerOfTen(scaling.decimals) - scaling.offset;
    if (scaling.mul != 1) {
        // No value has a multiplier of 0 undone; NaN ends where the infinity of a division would.
        unscaled = scaling.mul != 0 ? unscaled / scaling.mul : std::numeric_limits<double>::quiet_NaN();
    }
    if (Divides(scaling.div)) {
        unscaled *= scaling.div;
    }
    return unscaled;
}

/// 2^`exponent`, or the largest integer where 64 bits can't hold it or the exponent is negative: no value exceeds that,
/// so nothing is clamped to it.
krm_int64 PowerOfTwo(int exponent) {
    return exponent >= 0 && exponent < 63 ? krm_int64{1} << exponent : std::numeric_limits<krm_int64>::max();
}

/// The largest value of `exponent` bits, 2^`exponent` - 1, with the same reservation.
krm_int64 LargestOf(int exponent) {
    const krm_int64 power = PowerOfTwo(exponent);
    return power == std::numeric_limits<krm_int64>::max() ? power : power - 1;
}

/// Sign and magnitude: the magnitude, clamped. Only what no conversion could hold is still negative then and gets the
/// sign bit; an ordinary negative value loses its sign.
krm_ulong Magnitude(krm_int64 value, unsigned short bitLength) {
    if (value == std::numeric_limits<krm_int64>::min()) {
        return bitLength >= 1 && bitLength <= 32 ? Low32(krm_int64{1} << (bitLength - 1)) : 0;
    }
    return Low32(std::min(value < 0 ? -value : value, LargestOf(bitLength - 1)));
}

}  // namespace

CKRMCCommandConvSignalData::~CKRMCCommandConvSignalData() = default;

void CKRMCCommandConvSignalData::DeleteConverter(CKRMCCommandConvSignalData* converter) {
    delete converter;
}

bool CKRMCCommandConvSignalData::IsBinaryDataType() {
    return false;
}

krm_ulong CKRMCCommandConvSignalData::ConvCommandDispData(CKRMCCommandDispData* record, const unsigned char* data,
                                                          krm_ulong dataLen, unsigned char, unsigned short, krm_long,
                                                          krm_long, krm_long, unsigned char, krm_ulong, krm_ulong,
                                                          CKRMList<CKRMCCommandDispData>*) {
    if (!krm::convert::TakeFirstByte(record, data, dataLen)) {
        return kNullArgument;
    }
    krm::convert::AssignBytesAsText(record->m_strDataPhys, data, dataLen);
    return 0;
}

krm_ulong CKRMCCommandConvSignalData::ConvCommandDispData(CKRMCCommandDispData* record, krm_ulong ulRawData,
                                                          unsigned char uchSigned, unsigned short ushBitLength,
                                                          krm_long lMul, krm_long lDiv, krm_long lOffset,
                                                          unsigned char uchDecPntCount, krm_ulong ulMax,
                                                          krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                                                          CKRMString* defaultPattern, krm_ulong ulDefaultStringId) {
    return Show<CKRMCCommandDispData>(*this, record, ulRawData,
                                      {{uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount},
                                       ulMax,
                                       ulMin,
                                       patternList,
                                       defaultPattern,
                                       ulDefaultStringId});
}

krm_ulong CKRMCCommandConvSignalData::ConvCommandDispVariableData(
    CKRMCCommandDispData* record, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
    krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin,
    CKRMList<CKRMCCommandDispVariableData>* patternList, CKRMString* defaultPattern, krm_ulong ulDefaultStringId) {
    return Show<CKRMCCommandDispVariableData>(*this, record, ulRawData,
                                              {{uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount},
                                               ulMax,
                                               ulMin,
                                               patternList,
                                               defaultPattern,
                                               ulDefaultStringId});
}

krm_ulong CKRMCCommandConvSignalData::ConvLogicalValue(krm_ulong* result, double value, unsigned char uchSigned,
                                                       unsigned short ushBitLength, krm_long lMul, krm_long lDiv,
                                                       krm_long lOffset, unsigned char uchDecPntCount, double dMax,
                                                       double dMin) {
    if (result == nullptr) {
        return kNullArgument;
    }
    double clamped = value;
    if (dMax < value) {
        clamped = dMax;
    } else if (dMax >= value && dMin > value) {
        clamped = dMin;
    }
    const double unscaled = Unscaled(clamped, {uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount});
    const krm_int64 x = Truncate(unscaled >= 0 ? unscaled + 0.5 : unscaled - 0.5);
    switch (uchSigned) {
        case 0:
            *result = Low32(std::clamp(x, krm_int64{0}, LargestOf(ushBitLength)));
            break;
        case 1: {
            const krm_int64 largest = LargestOf(ushBitLength - 1);
            *result = Low32(std::clamp(x, -largest - 1, largest));
            break;
        }
        case 3:
            *result = Magnitude(x, ushBitLength);
            break;
        default:
            *result = Low32(x);
            break;
    }
    return 0;
}

krm_ulong CKRMCCommandConvSignalData::ConvLogicalValue(krm_ulong* result, double value, unsigned char uchSigned,
                                                       unsigned short ushBitLength, krm_long lMul, krm_long lDiv,
                                                       krm_long lOffset, unsigned char uchDecPntCount, krm_ulong ulMax,
                                                       krm_ulong ulMin) {
    if (result == nullptr) {
        return kNullArgument;
    }
    const krm_int64 x = Truncate(Unscaled(value, {uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount}));
    krm_int64 most = 0;
    krm_int64 least = 0;
    if (const krm_ulong status = SignedConversion(&most, ulMax, uchSigned, ushBitLength); status != 0) {
        return status;
    }
    if (const krm_ulong status = SignedConversion(&least, ulMin, uchSigned, ushBitLength); status != 0) {
        return status;
    }
    if (x >= most) {
        *result = ulMax;
    } else if (x <= least) {
        *result = ulMin;
    } else if (uchSigned == 3) {
        *result = Magnitude(x, ushBitLength);
    } else {
        *result = Low32(x);
    }
    return 0;
}

krm_ulong CKRMCCommandConvSignalData::ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                                      unsigned short ushBitLength, krm_long lMul, krm_long lDiv,
                                                      krm_long lOffset, unsigned char uchDecPntCount) {
    return PhysicalConversion(result, ulRawData, uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount);
}

krm_ulong CKRMCCommandConvSignalData::StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong,
                                                       unsigned char, unsigned short, unsigned char uchDecPntCount,
                                                       krm_ulong, krm_ulong, CKRMList<CKRMCCommandDispData>*,
                                                       CKRMString*, krm_ulong) {
    krm::convert::ResetStringId(stringId);
    return DecStringConversion(result, dPhys, uchDecPntCount);
}

krm_ulong CKRMCCommandConvSignalData::StringVariableConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                                               krm_ulong, unsigned char, unsigned short,
                                                               unsigned char uchDecPntCount, krm_ulong, krm_ulong,
                                                               CKRMList<CKRMCCommandDispVariableData>*, CKRMString*,
                                                               krm_ulong) {
    krm::convert::ResetStringId(stringId);
    return DecStringConversion(result, dPhys, uchDecPntCount);
}

krm_ulong CKRMCCommandConvSignalData::PhysicalConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                                         unsigned short ushBitLength, krm_long lMul, krm_long lDiv,
                                                         krm_long lOffset, unsigned char uchDecPntCount) {
    if (result == nullptr) {
        return kNullArgument;
    }
    krm_int64 number = 0;
    const krm_ulong status = SignedConversion(&number, ulRawData, uchSigned, ushBitLength);
    if (status != 0) {
        return status;
    }
    // More than the bits of a raw value is only what a converter of a user's own makes of them.
    constexpr krm_int64 kMost = 0xFFFFFFFF;
    if (number >= -kMost && number <= kMost) {
        if (!Divides(lDiv) && uchDecPntCount == 0) {
            *result = static_cast<double>(number * lMul + lOffset);  // 64 bits hold it, as 80-bit arithmetic does
            return 0;
        }
        if constexpr (!std::is_floating_point_v<Extended>) {
            if (const auto quick = krm::convert::QuickScaling(number, lMul, lDiv, lOffset, uchDecPntCount)) {
                *result = *quick;
                return 0;
            }
        }
    }
    *result = krm::convert::InExtendedPrecision(number, [&](krm_int64 signedValue) {
        auto scaled = static_cast<Extended>(signedValue);
        if (lMul != 1) {
            scaled = scaled * static_cast<Extended>(krm_int64{lMul});
        }
        if (Divides(lDiv)) {
            scaled = scaled / static_cast<Extended>(krm_int64{lDiv});
        }
        scaled = scaled + static_cast<Extended>(krm_int64{lOffset});
        if (uchDecPntCount != 0) {  // a division by 1 changes nothing and takes as long as any
            scaled = scaled / static_cast<Extended>(PowerOfTen(uchDecPntCount));
        }
        return static_cast<double>(scaled);
    });
    return 0;
}

krm_ulong CKRMCCommandConvSignalData::SignedConversion(krm_int64* result, krm_ulong ulRawData, unsigned char uchSigned,
                                                       unsigned short ushBitLength) {
    if (result == nullptr) {
        return kNullArgument;
    }
    const unsigned shift = static_cast<unsigned>(ushBitLength - 1) % 32;
    const auto mask = static_cast<std::uint32_t>(0xFFFFFFFFU << shift);
    const auto raw = static_cast<std::uint32_t>(ulRawData);
    const bool signBit = ((raw >> shift) & 1U) != 0;
    if (signBit && uchSigned == 1) {
        *result = static_cast<std::int32_t>(mask | raw);
    } else if (signBit && uchSigned == 3) {
        *result = -krm_int64{raw & ~mask};
    } else {
        *result = raw;
    }
    return 0;
}

krm_ulong CKRMCCommandConvSignalData::DecStringConversion(CKRMString* result, double value,
                                                          unsigned char uchDecPntCount) {
    if (result == nullptr) {
        return kNullArgument;
    }
    DecimalText decimal(value, uchDecPntCount);
    const char* text = decimal.Text();
    if (value < 0 && std::strspn(text, "-0.") == std::strlen(text)) {
        ++text;  // what rounds to zero is shown as zero: without its sign
    }
    *result = text;
    return 0;
}

krm_ulong CKRMCCommandConvSignalData::HexStringConversion(CKRMString* result, double value,
                                                          unsigned short ushBitLength) {
    return krm::convert::AssignHex(result, "0x", value, ushBitLength);
}

krm_ulong CKRMCCommandConvSignalData::HexStringConversion2(CKRMString* result, double value,
                                                           unsigned short ushBitLength) {
    return krm::convert::AssignHex(result, "", value, ushBitLength);
}
