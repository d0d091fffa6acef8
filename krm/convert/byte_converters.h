// Converters that take an item's bytes instead of a raw value.
#ifndef KRM_CONVERT_BYTE_CONVERTERS_H_
#define KRM_CONVERT_BYTE_CONVERTERS_H_

#include "krm/convert/converter.h"

/// Conversion type 4: the first 255 bytes as text, up to a NUL; "-" when the first byte is 0.
class KRM_API CKRMCCommandConvSignalDataAscii : public CKRMCCommandConvSignalData {
public:
    using CKRMCCommandConvSignalData::ConvCommandDispData;
    bool IsBinaryDataType() override;
    krm_ulong ConvCommandDispData(CKRMCCommandDispData* record, const unsigned char* data, krm_ulong dataLen,
                                  unsigned char uchSigned, unsigned short ushBitLength, krm_long lMul, krm_long lDiv,
                                  krm_long lOffset, unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin,
                                  CKRMList<CKRMCCommandDispData>* patternList) override;
};

/// Conversion type 104: every byte as two upper-case hexadecimal digits, however many. They are appended to what the
/// record's text already holds: clear it first.
class KRM_API CKRMCCommandConvSignalDataArrayHex : public CKRMCCommandConvSignalData {
public:
    using CKRMCCommandConvSignalData::ConvCommandDispData;
    bool IsBinaryDataType() override;
    krm_ulong ConvCommandDispData(CKRMCCommandDispData* record, const unsigned char* data, krm_ulong dataLen,
                                  unsigned char uchSigned, unsigned short ushBitLength, krm_long lMul, krm_long lDiv,
                                  krm_long lOffset, unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin,
                                  CKRMList<CKRMCCommandDispData>* patternList) override;
};

#endif  // KRM_CONVERT_BYTE_CONVERTERS_H_
