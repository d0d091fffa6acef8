#include "krm/convert/number_converters.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "krm/convert/internal/extended.h"
#include "krm/convert/internal/numbers.h"
#include "krm/convert/internal/steps.h"

using krm::convert::AssignValue;
using krm::convert::Divides;
using krm::convert::PowerOfTen;
using krm::convert::ShapedValue;

namespace {

krm_long Illuminance(krm_ulong raw) {
    if (raw == 0) {
        return 0;
    }
    const auto quotient = static_cast<krm_long>(30000 / raw);
    const krm_long illuminance = quotient >= 623 ? static_cast<krm_long>(240000 / raw) - 4400 : quotient - 50;
    return std::max(illuminance, krm_long{0});
}

/// The bits of `raw` in groups of 8 from the lowest up, each group mirrored.
krm_int64 MirroredBits(krm_ulong raw, krm_ulong width, bool lastIsSign) {
    // A raw value has 32 bits; wider groups see zeros beyond them.
    const krm_ulong taken = std::min(width, krm_ulong{32});
    krm_int64 value = 0;
    bool lastBit = false;
    for (krm_ulong i = 0; i < taken; ++i) {
        const krm_ulong position = i / 8 * 8 + (7 - i % 8);
        lastBit = ((raw >> position) & 1U) != 0;
        value += static_cast<krm_int64>(lastBit) << i;
    }
    if (lastIsSign && lastBit && taken == width) {
        value = -(value - (krm_int64{1} << (width - 1)));  // the last bit is the sign of the magnitude before it
    }
    return value;
}

/// Binary-coded decimal, most significant digit first.
double BcdNumber(krm_ulong raw, unsigned short bitLength) {
    double number = 0;
    double sign = 1;
    int taken = 0;
    do {
        taken += 4;
        number *= 10;
        const krm_ulong digit = (raw >> (static_cast<unsigned>(bitLength - taken) % 32)) & 0xFU;
        if (digit <= 9) {
            number += static_cast<double>(digit);
        } else if (digit == 0xF && number == 0) {
            sign = -1;
        }
    } while (taken < bitLength);
    return number != 0 ? number * sign : number;
}

/// The slope in percent along which gravity gives a tenth of `physical` in m/s^2.
double SlopeOf(double physical) {
    const double sine = physical * 0.1 / 9.8;
    if (std::fabs(sine) > 1) {
        return std::numeric_limits<double>::quiet_NaN();  // an arcsine's NaN has another sign on each platform
    }
    return std::clamp(krm::convert::InExtendedPrecision(sine, [](double of) { return std::tan(std::asin(of)) * 100; }),
                      -100.0, 100.0);
}

/// Degrees Celsius of a thermistor.
double TemperatureOf(krm_ulong raw) {
    const krm_ulong code = std::clamp(raw, krm_ulong{1}, krm_ulong{255});
    const double voltage = static_cast<double>(256 - code) * 0.01;
    const double resistanceRatio = 1.8 * voltage / (5.12 - 2 * voltage) / 2.5;
    constexpr double kBeta = 3520;                                 // kelvin
    constexpr double kReciprocalReference = 0.003411222923418046;  // 1 / 293.15 K
    constexpr double kZeroCelsius = 273.15;                        // kelvin
    return 1 / (krm::convert::InExtendedPrecision(resistanceRatio, [](double of) { return std::log(of); }) / kBeta +
                kReciprocalReference) -
           kZeroCelsius;
}

}  // namespace

krm_ulong CKRMCCommandConvSignalDataIlluminance::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                                 unsigned short, krm_long, krm_long, krm_long,
                                                                 unsigned char) {
    return AssignValue(result, Illuminance(ulRawData));
}

CKRMCCommandConvSignalDataChassis::CKRMCCommandConvSignalDataChassis(krm_ulong ulGroupWidth, bool bSigned)
    : m_ulGroupWidth(ulGroupWidth), m_bSigned(bSigned) {}

krm_ulong CKRMCCommandConvSignalDataChassis::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                             unsigned short, krm_long lMul, krm_long lDiv,
                                                             krm_long lOffset, unsigned char uchDecPntCount) {
    krm_int64 value = MirroredBits(ulRawData, m_ulGroupWidth, m_bSigned);
    if (lMul != 1) {
        value *= lMul;
    }
    if (Divides(lDiv)) {
        value /= lDiv;
    }
    value += lOffset;
    return AssignValue(result, static_cast<double>(value) / PowerOfTen(uchDecPntCount));
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
    return AssignValue(result, BcdNumber(ulRawData, ushBitLength) / PowerOfTen(uchDecPntCount));
}

krm_ulong CKRMCCommandConvSignalDataIncline::ValueConversion(double* result, krm_ulong ulRawData,
                                                             unsigned char uchSigned, unsigned short ushBitLength,
                                                             krm_long lMul, krm_long lDiv, krm_long lOffset,
                                                             unsigned char uchDecPntCount) {
    return ShapedValue(*this, result, ulRawData, {uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount},
                       SlopeOf);
}

krm_ulong CKRMCCommandConvSignalDataSpecial2::ValueConversion(double* result, krm_ulong ulRawData,
                                                              unsigned char uchSigned, unsigned short ushBitLength,
                                                              krm_long lMul, krm_long lDiv, krm_long lOffset,
                                                              unsigned char uchDecPntCount) {
    return ShapedValue(*this, result, ulRawData, {uchSigned, ushBitLength, lMul, lDiv, lOffset, uchDecPntCount},
                       [](double physical) { return 11.515 - physical * 0.0338; });
}

krm_ulong CKRMCCommandConvSignalDataSpecial3::ValueConversion(double* result, krm_ulong ulRawData, unsigned char,
                                                              unsigned short, krm_long, krm_long, krm_long,
                                                              unsigned char) {
    return AssignValue(result, TemperatureOf(ulRawData));
}
