// Converters with a notation of their own for a number.
#ifndef KRM_CONVERT_TEXT_CONVERTERS_H_
#define KRM_CONVERT_TEXT_CONVERTERS_H_

#include "krm/convert/converter.h"

/// Conversion type 3: hexadecimal with "0x".
class KRM_API CKRMCCommandConvSignalDataHex : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 112: hexadecimal without a prefix.
class KRM_API CKRMCCommandConvSignalDataHex2 : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 5: a trouble code, the letter P, C, B or U of bits 15 and 14 and four hexadecimal digits of the bits
/// below: 0x4123 is C0123. The physical value is the raw value.
class KRM_API CKRMCCommandConvSignalDataDiagCode : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 107: a latitude with four decimals behind N or S. Leaves `*stringId` alone.
class KRM_API CKRMCCommandConvSignalDataLatitude : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 108: a longitude with four decimals behind E or W. Leaves `*stringId` alone.
class KRM_API CKRMCCommandConvSignalDataLongitude : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 109: bits 8 to 15 and 0 to 7 of the raw value as a version: 0x0123 is 1.23.
class KRM_API CKRMCCommandConvSignalDataSoftwareVersion : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 113: the bits of the raw value, most significant first, one digit each. A bit length above 32 is
/// krm::kNullArgument.
class KRM_API CKRMCCommandConvSignalDataBin : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

#endif  // KRM_CONVERT_TEXT_CONVERTERS_H_
