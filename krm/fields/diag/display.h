// The fields of the classes of krm/messages/diag/display.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_DISPLAY_H_
#define KRM_FIELDS_DIAG_DISPLAY_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/display.h"

template <>
struct krm::Fields<CKRMCCommandDataLayout>
    : krm::FieldList<&CKRMCCommandDataLayout::m_ulPidNo, &CKRMCCommandDataLayout::m_ulDataLen,
                     &CKRMCCommandDataLayout::m_uchEndian, &CKRMCCommandDataLayout::m_ulByteNum,
                     &CKRMCCommandDataLayout::m_ulBytePos, &CKRMCCommandDataLayout::m_ulBitMask> {};

template <>
struct krm::Fields<CKRMCCommandDispData>
    : krm::FieldList<&CKRMCCommandDispData::m_ulDataStringId, &CKRMCCommandDispData::m_strDataPhys,
                     &CKRMCCommandDispData::m_strData, &CKRMCCommandDispData::m_dDataPhys,
                     &CKRMCCommandDispData::m_dData, &CKRMCCommandDispData::m_ulRawData,
                     &CKRMCCommandDispData::m_ulDispReserved, &CKRMCCommandDispData::m_chIndex,
                     &CKRMCCommandDispData::m_lIndex, &CKRMCCommandDispData::m_ulDispDataType> {};

template <>
struct krm::Fields<CKRMCCommandDispVariableData>
    : krm::FieldList<&CKRMCCommandDispVariableData::m_ulDataStringId, &CKRMCCommandDispVariableData::m_strDataPhys,
                     &CKRMCCommandDispVariableData::m_strData, &CKRMCCommandDispVariableData::m_dDataPhys,
                     &CKRMCCommandDispVariableData::m_dData, &CKRMCCommandDispVariableData::m_uchRawDataList,
                     &CKRMCCommandDispVariableData::m_ulDispReserved, &CKRMCCommandDispVariableData::m_chIndex,
                     &CKRMCCommandDispVariableData::m_ulDispDataType> {};

template <>
struct krm::Fields<CKRMCCommandConversionData>
    : krm::FieldList<&CKRMCCommandConversionData::m_lMul, &CKRMCCommandConversionData::m_lDiv,
                     &CKRMCCommandConversionData::m_lOffset, &CKRMCCommandConversionData::m_ushGenreId,
                     &CKRMCCommandConversionData::m_uchSigned, &CKRMCCommandConversionData::m_ushBitLength,
                     &CKRMCCommandConversionData::m_ulConvReserved, &CKRMCCommandConversionData::m_strDefaultPattern,
                     &CKRMCCommandConversionData::m_cDataMax, &CKRMCCommandConversionData::m_cDataMin,
                     &CKRMCCommandConversionData::m_cGraphMax, &CKRMCCommandConversionData::m_cGraphMin,
                     &CKRMCCommandConversionData::m_cPatternDispList> {};

#endif  // KRM_FIELDS_DIAG_DISPLAY_H_
