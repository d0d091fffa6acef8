// Signal value converters: raw ECU values to physical values and display text, and back.
//
//     CKRMCCommandConvSignalData* const converter = CKRMCCommandConvSignalData::CreateConverter(conversionType);
//     converter->ConvCommandDispData(&display, rawValue, ...);   // raw value, physical value, text and words ID
//     CKRMCCommandConvSignalData::DeleteConverter(converter);
//
// This header has the base with its general rules and the factory; krm/convert/conversion_types.h lists the conversion
// types, and krm/convert/specialised.h has the classes for special signals, which a caller rarely names.
// krm/convert/signal.h takes a record's rule instead of all these arguments, and finds the raw value of every type that
// has an inverse.
#ifndef KRM_CONVERT_CONVERTER_H_
#define KRM_CONVERT_CONVERTER_H_

#include "krm/core/error_codes.h"
#include "krm/core/list.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

namespace krm::convert {
struct Steps;
}

/// Base of all converters, and the converter of plain numbers: scaling to a physical value, decimal text.
///
/// A converter keeps nothing between calls; distinct converters may be used by different threads. Operations return 0, or
/// krm::kNullArgument; a composite operation returns the first code that a step of it returned and skips the steps behind.
/// Every step is a virtual call, so that a class that overrides one changes all that use it. The order of the virtual
/// operations is part of the interface. Nothing throws but a std::bad_alloc of a text that is assigned.
///
/// Arguments that mean the same everywhere:
///  - `ulRawData`: the raw value, cut out of the response and right-aligned.
///  - `uchSigned`: sign code: 0 unsigned, 1 two's complement, 3 sign and magnitude; any other is taken as unsigned.
///  - `ushBitLength`: number of significant bits of the raw value.
///  - `lMul`, `lDiv`, `lOffset`: scaling. `lMul` 1 doesn't multiply; `lDiv` 0 and 1 don't divide; `lOffset` counts in units
///    of the last decimal place.
///  - `uchDecPntCount`: decimal places of the physical value, also the power of ten that the scaled value is divided by.
///  - `ulMax`, `ulMin`: limits, as raw values.
///  - `patternList`: raw value (`m_ulRawData`, or the bytes of `m_uchRawDataList`) to text (`m_strDataPhys`) and words ID
///    (`m_ulDataStringId`). Only read.
///  - `defaultPattern`, `ulDefaultStringId`: text and words ID shown when no pattern matches; the text may be null.
///  - `stringId`: receives the words ID of the pattern chosen, or 0; may be null.
class KRM_API CKRMCCommandConvSignalData {
public:
    /// A converter has nothing of its own: there is nothing to set or to copy.
    CKRMCCommandConvSignalData() = default;
    CKRMCCommandConvSignalData(const CKRMCCommandConvSignalData&) = default;             ///< copies nothing
    CKRMCCommandConvSignalData& operator=(const CKRMCCommandConvSignalData&) = default;  ///< copies nothing
    /// For DeleteConverter, which destroys a converter of any class.
    virtual ~CKRMCCommandConvSignalData();

    /// Creates the converter of a conversion type, as krm::kConversionTypes lists them; an unknown type gives the base.
    /// Null only when memory runs out. The caller owns the converter and gives it back through DeleteConverter.
    static CKRMCCommandConvSignalData* CreateConverter(unsigned char uchConvType);
    /// Destroys a converter; null is ignored.
    static void DeleteConverter(CKRMCCommandConvSignalData* converter);

    /// True when the item's bytes go to the first ConvCommandDispData, false when its raw value goes to the second or to
    /// ConvCommandDispVariableData.
    virtual bool IsBinaryDataType();

    KRM_OVERLOADS_2(
        /// Takes `dataLen` bytes as text: raw and physical value of `*record` become the first byte, its text the first
        /// 255 bytes up to a NUL. The words ID and the numeric arguments play no part.
        virtual krm_ulong ConvCommandDispData(CKRMCCommandDispData* record, const unsigned char* data,
                                              krm_ulong dataLen, unsigned char uchSigned, unsigned short ushBitLength,
                                              krm_long lMul, krm_long lDiv, krm_long lOffset,
                                              unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin,
                                              CKRMList<CKRMCCommandDispData>* patternList),
        /// Fills raw value, physical value, text and words ID of `*record` by ValueConversion and StringConversion.
        /// When the former fails the record keeps the raw value and nothing else is done. `m_strData` and `m_dData` are
        /// not touched.
        virtual krm_ulong ConvCommandDispData(CKRMCCommandDispData* record, krm_ulong ulRawData,
                                              unsigned char uchSigned, unsigned short ushBitLength, krm_long lMul,
                                              krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount,
                                              krm_ulong ulMax, krm_ulong ulMin,
                                              CKRMList<CKRMCCommandDispData>* patternList, CKRMString* defaultPattern,
                                              krm_ulong ulDefaultStringId));
    /// The same by StringVariableConversion, for items whose patterns are strings of bytes.
    virtual krm_ulong ConvCommandDispVariableData(CKRMCCommandDispData* record, krm_ulong ulRawData,
                                                  unsigned char uchSigned, unsigned short ushBitLength, krm_long lMul,
                                                  krm_long lDiv, krm_long lOffset, unsigned char uchDecPntCount,
                                                  krm_ulong ulMax, krm_ulong ulMin,
                                                  CKRMList<CKRMCCommandDispVariableData>* patternList,
                                                  CKRMString* defaultPattern, krm_ulong ulDefaultStringId);

    KRM_OVERLOADS_2(
        /// Physical value to raw value: clamps to `dMin` ... `dMax`, undoes the scaling, rounds half away from zero and
        /// clamps to what the bit length holds under the sign code. A negative value of two's complement is
        /// sign-extended to 32 bits; one of sign and magnitude loses its sign. No class overrides this:
        /// what it does besides scaling is not undone, which krm::RawFromPhysical does.
        virtual krm_ulong ConvLogicalValue(krm_ulong* result, double value, unsigned char uchSigned,
                                           unsigned short ushBitLength, krm_long lMul, krm_long lDiv, krm_long lOffset,
                                           unsigned char uchDecPntCount, double dMax, double dMin),
        /// Physical value to raw value: undoes the scaling and truncates; at or beyond a limit gives just that raw
        /// limit.
        virtual krm_ulong ConvLogicalValue(krm_ulong* result, double value, unsigned char uchSigned,
                                           unsigned short ushBitLength, krm_long lMul, krm_long lDiv, krm_long lOffset,
                                           unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin));

    /// Raw value to physical value. The base: PhysicalConversion.
    virtual krm_ulong ValueConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                      unsigned short ushBitLength, krm_long lMul, krm_long lDiv, krm_long lOffset,
                                      unsigned char uchDecPntCount);
    /// Physical value to display text. The base: `*stringId` 0, then DecStringConversion.
    virtual krm_ulong StringConversion(CKRMString* result, krm_ulong* stringId, double dPhys, krm_ulong ulRawData,
                                       unsigned char uchSigned, unsigned short ushBitLength,
                                       unsigned char uchDecPntCount, krm_ulong ulMax, krm_ulong ulMin,
                                       CKRMList<CKRMCCommandDispData>* patternList, CKRMString* defaultPattern,
                                       krm_ulong ulDefaultStringId);
    /// The same for patterns of bytes. Classes that override StringConversion alone keep the decimal text here.
    virtual krm_ulong StringVariableConversion(CKRMString* result, krm_ulong* stringId, double dPhys,
                                               krm_ulong ulRawData, unsigned char uchSigned,
                                               unsigned short ushBitLength, unsigned char uchDecPntCount,
                                               krm_ulong ulMax, krm_ulong ulMin,
                                               CKRMList<CKRMCCommandDispVariableData>* patternList,
                                               CKRMString* defaultPattern, krm_ulong ulDefaultStringId);

protected:
    /// (signed raw value x `lMul` / `lDiv` + `lOffset`) / 10^`uchDecPntCount`, each step in 80-bit extended precision.
    virtual krm_ulong PhysicalConversion(double* result, krm_ulong ulRawData, unsigned char uchSigned,
                                         unsigned short ushBitLength, krm_long lMul, krm_long lDiv, krm_long lOffset,
                                         unsigned char uchDecPntCount);
    /// The raw bits as a number under the sign code. Bits above the bit length stay where the sign bit is clear.
    virtual krm_ulong SignedConversion(krm_int64* result, krm_ulong ulRawData, unsigned char uchSigned,
                                       unsigned short ushBitLength);
    /// "%.*f" of the value; what rounds to zero from below shows no minus sign.
    virtual krm_ulong DecStringConversion(CKRMString* result, double value, unsigned char uchDecPntCount);
    /// "0x" and the low 32 bits of the truncated value in upper-case hexadecimal, at least a digit per four bits.
    virtual krm_ulong HexStringConversion(CKRMString* result, double value, unsigned short ushBitLength);
    /// The same without "0x".
    virtual krm_ulong HexStringConversion2(CKRMString* result, double value, unsigned short ushBitLength);

private:
    friend struct krm::convert::Steps;
};

#endif  // KRM_CONVERT_CONVERTER_H_
