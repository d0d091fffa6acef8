// Where one ECU value lies in a response, how it is converted and how it is shown.
//
// These records are what the converters (krm/convert/) read and fill, and what freeze-frame items, active tests,
// trigger items, on-board monitor results and voltage ranges of the oscilloscope embed.
#ifndef KRM_MESSAGES_DIAG_DISPLAY_H_
#define KRM_MESSAGES_DIAG_DISPLAY_H_

#include "krm/core/list.h"
#include "krm/framework/record.h"
#include "krm/platform/platform.h"

/// Where a value lies in the ECU's response. Cutting it out is the caller's business.
class KRM_API CKRMCCommandDataLayout : public krm::RecordOf<CKRMCCommandDataLayout> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulPidNo = 0;        ///< parameter ID (PID) that the value comes from; logged in hexadecimal
    krm_ulong m_ulDataLen = 0;      ///< data length in bytes; logged unsigned
    unsigned char m_uchEndian = 0;  ///< byte order of the value; the codes are the engine's; logged unsigned
    krm_ulong m_ulByteNum = 0;      ///< number of bytes of the value; logged unsigned
    krm_ulong m_ulBytePos = 0;      ///< position of the value's first byte; logged unsigned
    krm_ulong m_ulBitMask = 0;      ///< mask applied to the assembled value; logged in hexadecimal
};
extern template class CKRMList<CKRMCCommandDataLayout>;

/// One display value, or one entry of a pattern table, which maps a raw value to a text.
class KRM_API CKRMCCommandDispData : public krm::RecordOf<CKRMCCommandDispData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulDataStringId = 0;  ///< words ID of the display text, 0 where the text was formatted
    CKRMString m_strDataPhys;        ///< text of the physical value; in a pattern table the pattern's text
    CKRMString m_strData;            ///< text of the value after unit conversion; no converter writes it
    double m_dDataPhys = 0;          ///< physical value
    double m_dData = 0;              ///< value after unit conversion; no converter writes it
    krm_ulong m_ulRawData = 0;       ///< raw value; in a pattern table the key
    krm_ulong m_ulDispReserved = 0;  ///< stored, copied and cleared only; not logged
    signed char m_chIndex = 0;       ///< index marker; its meaning is the engine's
    krm_long m_lIndex = 0;           ///< index; its meaning is the engine's
    krm_ulong m_ulDispDataType = 0;  ///< kind of display value; the codes are the engine's
};
extern template class CKRMList<CKRMCCommandDispData>;

/// A display value, or a pattern, whose raw data is a byte string.
class KRM_API CKRMCCommandDispVariableData : public krm::RecordOf<CKRMCCommandDispVariableData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulDataStringId = 0;  ///< words ID of the display text
    CKRMString m_strDataPhys;        ///< text of the physical value; in a pattern table the pattern's text
    CKRMString m_strData;            ///< text of the value after unit conversion; no converter writes it
    double m_dDataPhys = 0;          ///< physical value
    double m_dData = 0;              ///< value after unit conversion; no converter writes it
    CKRMList<unsigned char>
        m_uchRawDataList;  ///< raw bytes, most significant first; in a pattern table the key; logged in hexadecimal
    krm_ulong m_ulDispReserved = 0;  ///< stored, copied and cleared only; not logged
    signed char m_chIndex = 0;       ///< index marker; its meaning is the engine's
    krm_ulong m_ulDispDataType = 0;  ///< kind of display value; the codes are the engine's
};
extern template class CKRMList<CKRMCCommandDispVariableData>;

/// The conversion rule of a value: scaling, sign, bit length, limits and pattern table, as the converters take them.
///
/// A new record has a multiplier of 0 and a divisor of 0, not 1: whoever fills it sets both.
class KRM_API CKRMCCommandConversionData : public krm::RecordOf<CKRMCCommandConversionData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_long m_lMul = 0;                ///< multiplier; 0 makes every value 0
    krm_long m_lDiv = 0;                ///< divisor; 0 and 1 don't divide
    krm_long m_lOffset = 0;             ///< added after scaling, in units of the last decimal place
    unsigned short m_ushGenreId = 0;    ///< genre: kind of quantity, as in unit conversion
    unsigned char m_uchSigned = 0;      ///< sign code: 0 unsigned, 1 two's complement, 3 sign and magnitude
    unsigned short m_ushBitLength = 0;  ///< number of significant bits of the raw value
    krm_ulong m_ulConvReserved = 0;     ///< stored, copied and cleared only; not logged
    CKRMString m_strDefaultPattern;     ///< text shown when no pattern matches
    CKRMCCommandDispData m_cDataMax;    ///< highest value
    CKRMCCommandDispData m_cDataMin;    ///< lowest value
    CKRMCCommandDispData m_cGraphMax;   ///< upper bound of the graph
    CKRMCCommandDispData m_cGraphMin;   ///< lower bound of the graph
    CKRMList<CKRMCCommandDispData> m_cPatternDispList;  ///< pattern table: raw value to text
};
extern template class CKRMList<CKRMCCommandConversionData>;

#endif  // KRM_MESSAGES_DIAG_DISPLAY_H_
