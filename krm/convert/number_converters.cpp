#include "krm/convert/number_converters.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "krm/convert/internal/numbers.h"

using krm::kNullArgument;
using krm::convert::Divides;
using krm::convert::PowerOfTen;

krm_ulong CKRMCCommandConvSignalDataIlluminance::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                                 unsigned short, krm_long, krm_long, krm_long,
                                                                 unsigned char) {
    if (result == nullptr) {
        return kNullArgument;
    }
    krm_long illuminance = 0;
    if (ulRawData != 0) {
        const auto quotient = static_cast<krm_long>(30000 / ulRawData);
        illuminance = quotient >= 623 ? static_cast<krm_long>(240000 / ulRawData) - 4400 : quotient - 50;
    }
    *result = std::max(illuminance, krm_long{0});
    return 0;
}

CKRMCCommandConvSignalDataChassis::CKRMCCommandConvSignalDataChassis(krm_ulong ulGroupWidth, bool bSigned)
    : m_ulGroupWidth(ulGroupWidth), m_bSigned(bSigned) {}

krm_ulong CKRMCCommandConvSignalDataChassis::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                             unsigned short, krm_long lMul, krm_long lDiv,
                                                             krm_long lOffset, unsigned char uchDecPntCount) {
    if (result == nullptr) {
        return kNullArgument;
    }
    // A raw value has 32 bits; wider groups see zeros beyond them.
    const krm_ulong width = std::min(m_ulGroupWidth, krm_ulong{32});
    krm_int64 value = 0;
    bool lastBit = false;
    for (krm_ulong i = 0; i < width; ++i) {
        const krm_ulong position = i / 8 * 8 + (7 - i % 8);
        lastBit = ((ulRawData >> position) & 1U) != 0;
        value += static_cast<krm_int64>(lastBit) << i;
    }
    if (m_bSigned && lastBit && width == m_ulGroupWidth) {
        value = -(value - (krm_int64{1} << (width - 1)));  // the last bit is the sign of the magnitude before it
    }
    if (lMul != 1) {
        value *= lMul;
    }
    if (Divides(lDiv)) {
        value /= lDiv;
    }
    value += lOffset;
    *result = static_cast<double>(value) / PowerOfTen(uchDecPntCount);
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataReversal::ValueConversion(double* result, krm_ulong ulRawData,
                                                              unsigned char uchSigned, unsigned short ushBitLength,
                                                              krm_long lMul, krm_long lDiv, krm_long lOffset,
                                                              unsigned char uchDecPntCount) {
    const krm_ulong exchanged = (ulRawData & 0xFFFF0000U) | ((ulRawData & 0xFFU) << 8U) | ((ulRawData >> 8U) & 0xFFU);
    return PhysicalConversion(result, exchanged, uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount);
}

krm_ulong CKRMCCommandConvSignalDataBcd::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                         unsigned short ushBitLength, krm_long, krm_long, krm_long,
                                                         unsigned char uchDecPntCount) {
    if (result == nullptr) {
        return kNullArgument;
    }
    double number = 0;
    double sign = 1;
    int taken = 0;
    do {
        taken += 4;
        number *= 10;
        const krm_ulong digit = (ulRawData >> (static_cast<unsigned>(ushBitLength - taken) % 32)) & 0xFU;
        if (digit <= 9) {
            number += static_cast<double>(digit);
        } else if (digit == 0xF && number == 0) {
            sign = -1;
        }
    } while (taken < ushBitLength);
    if (number != 0) {
        number *= sign;
    }
    *result = number / PowerOfTen(uchDecPntCount);
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataIncline::ValueConversion(double* result, krm_ulong ulRawData,
                                                             unsigned char uchSigned, unsigned short ushBitLength,
                                                             krm_long lMul, krm_long lDiv, krm_long lOffset,
                                                             unsigned char uchDecPntCount) {
    if (result == nullptr) {
        return kNullArgument;
    }
    double physical = 0;
    const krm_ulong status =
        PhysicalConversion(&physical, ulRawData, uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount);
    if (status != 0) {
        return status;
    }
    const double sine = physical * 0.1 / 9.8;
    if (std::fabs(sine) > 1) {
        *result = std::numeric_limits<double>::quiet_NaN();  // an arcsine's NaN has another sign on each platform
        return 0;
    }
    const double slope = std::tan(std::asin(sine)) * 100;
    *result = std::clamp(slope, -100.0, 100.0);
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataSpecial2::ValueConversion(double* result, krm_ulong ulRawData,
                                                              unsigned char uchSigned, unsigned short ushBitLength,
                                                              krm_long lMul, krm_long lDiv, krm_long lOffset,
                                                              unsigned char uchDecPntCount) {
    if (result == nullptr) {
        return kNullArgument;
    }
    double physical = 0;
    const krm_ulong status =
        PhysicalConversion(&physical, ulRawData, uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount);
    if (status != 0) {
        return status;
    }
    *result = 11.515 - physical * 0.0338;
    return 0;
}

krm_ulong CKRMCCommandConvSignalDataSpecial3::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                              unsigned short, krm_long, krm_long, krm_long,
                                                              unsigned char) {
    if (result == nullptr) {
        return kNullArgument;
    }
    const krm_ulong code = std::clamp(ulRawData, krm_ulong{1}, krm_ulong{255});
    const double voltage = static_cast<double>(256 - code) * 0.01;
    const double resistanceRatio = 1.8 * voltage / (5.12 - 2 * voltage) / 2.5;
    constexpr double kBeta = 3520;                                 // kelvin
    constexpr double kReciprocalReference = 0.003411222923418046;  // 1 / 293.15 K
    constexpr double kZeroCelsius = 273.15;                        // kelvin
    *result = 1 / (std::log(resistanceRatio) / kBeta + kReciprocalReference) - kZeroCelsius;
    return 0;
}
