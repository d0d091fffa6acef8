// Converters with a physical value of their own, shown as a decimal number.
#ifndef KRM_CONVERT_NUMBER_CONVERTERS_H_
#define KRM_CONVERT_NUMBER_CONVERTERS_H_

#include "krm/convert/converter.h"

/// Conversion type 6: an illuminance from the period that its sensor reports, reciprocal in two pieces; the scaling plays no
/// part. Raw 0 gives 0.
class KRM_API CKRMCCommandConvSignalDataIlluminance : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
};

/// Conversion types 7 to 11: a value whose bits each byte holds in mirrored order, least significant byte first, scaled in
/// integers. With a sign flag the last bit is the sign of the magnitude before it.
class KRM_API CKRMCCommandConvSignalDataChassis : public CKRMCCommandConvSignalData {
public:
    /// `ulGroupWidth`: number of bits taken, 8, 10, 12 or 16 as the factory makes them; bits beyond the 32 of a raw value are
    /// 0. `bSigned`: whether the last of them is a sign.
    explicit CKRMCCommandConvSignalDataChassis(krm_ulong ulGroupWidth = 8, bool bSigned = false);

protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;

private:
    krm_ulong m_ulGroupWidth;
    bool m_bSigned;
};

/// Conversion type 12: the two low bytes of the raw value are exchanged before it is scaled.
class KRM_API CKRMCCommandConvSignalDataReversal : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
};

/// Conversion type 101: binary-coded decimal, most significant digit first, divided by 10^`uchDecPntCount`. A leading 0xF
/// marks a negative number; other digits above 9 count as 0.
class KRM_API CKRMCCommandConvSignalDataBcd : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
};

/// Conversion type 102: the slope in percent, within -100 ... 100, that an acceleration of `0.1 x physical value` m/s^2 along
/// it means: tan(asin(a / 9.8)). An acceleration above 9.8 m/s^2 gives NaN.
class KRM_API CKRMCCommandConvSignalDataIncline : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
};

/// Conversion type 110: 11.515 - 0.0338 x the scaled value.
class KRM_API CKRMCCommandConvSignalDataSpecial2 : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
};

/// Conversion type 114: degrees Celsius of a thermistor from the voltage code in the raw value, by the beta equation with
/// beta 3520 K and its reference at 20 degrees Celsius. The scaling plays no part.
class KRM_API CKRMCCommandConvSignalDataSpecial3 : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
};

#endif  // KRM_CONVERT_NUMBER_CONVERTERS_H_
