// The fields of the classes of krm/messages/diag/display.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_DISPLAY_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_DISPLAY_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/display.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandDataLayout& it) {
    return std::tie(it.m_ulPidNo, it.m_ulDataLen, it.m_uchEndian, it.m_ulByteNum, it.m_ulBytePos, it.m_ulBitMask);
}

inline auto FieldsOf(CKRMCCommandDispData& it) {
    return std::tie(it.m_ulDataStringId, it.m_strDataPhys, it.m_strData, it.m_dDataPhys, it.m_dData, it.m_ulRawData,
                    it.m_ulDispReserved, it.m_chIndex, it.m_lIndex, it.m_ulDispDataType);
}

inline auto FieldsOf(CKRMCCommandDispVariableData& it) {
    return std::tie(it.m_ulDataStringId, it.m_strDataPhys, it.m_strData, it.m_dDataPhys, it.m_dData,
                    it.m_uchRawDataList, it.m_ulDispReserved, it.m_chIndex, it.m_ulDispDataType);
}

inline auto FieldsOf(CKRMCCommandConversionData& it) {
    return std::tie(it.m_lMul, it.m_lDiv, it.m_lOffset, it.m_ushGenreId, it.m_uchSigned, it.m_ushBitLength,
                    it.m_ulConvReserved, it.m_strDefaultPattern, it.m_cDataMax, it.m_cDataMin, it.m_cGraphMax,
                    it.m_cGraphMin, it.m_cPatternDispList);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_DISPLAY_FIELDS_H_
