// Converters that show a text of the item's pattern table.
#ifndef KRM_CONVERT_PATTERN_CONVERTERS_H_
#define KRM_CONVERT_PATTERN_CONVERTERS_H_

#include "krm/convert/converter.h"

/// Conversion types 1, 20 and 22: the text of the first pattern whose key is the truncated physical value; without one the
/// default text, and without that the value in hexadecimal. With patterns of bytes the key must equal the physical value
/// exactly. A null pattern list is krm::kNullArgument.
class KRM_API CKRMCCommandConvSignalDataStringPattern : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
    krm_ulong StringVariableConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                                       unsigned char uchSigned, unsigned short ushBitLength,
                                       unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin,
                                       CKRMList<CKRMCCommandDispVariableData>* patternList, CKRMString* defaultPattern,
                                       krm_ulong ulDefaultStringId) override;
};

/// Conversion type 13: at or below the lower limit the text of the first pattern with key 0, at or above the upper limit that
/// with key 1, decimal between them or without such a pattern. A null pattern list is krm::kNullArgument.
class KRM_API CKRMCCommandConvSignalDataMinMax : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 24: an illuminance, linear in two pieces: half the raw value up to 3000, 8 x raw - 22500 above. Outside
/// the limits, which are compared with the raw value, the text of the first pattern with key 0 (low) or 1 (high).
class KRM_API CKRMCCommandConvSignalDataIlluminanceMinMax : public CKRMCCommandConvSignalData {
protected:
    krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned, unsigned short ushBitLength,
                              krm_long lMul, krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount) override;
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

/// Conversion type 103: the text of the first pattern whose key is the raw value, decimal without one; the default text plays
/// no part. A null pattern list is krm::kNullArgument.
class KRM_API CKRMCCommandConvSignalDataLsbPattern : public CKRMCCommandConvSignalData {
protected:
    krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                               unsigned char uchSigned, unsigned short ushBitLength, unsigned char uchDecPntCount,
                               krm_ulong ulMax, krm_ulong ulMin, CKRMList<CKRMCCommandDispData>* patternList,
                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId) override;
};

#endif  // KRM_CONVERT_PATTERN_CONVERTERS_H_
