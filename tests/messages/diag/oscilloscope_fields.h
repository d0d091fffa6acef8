// The fields of the classes of krm/messages/diag/oscilloscope.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/oscilloscope.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandOscData& it) {
    return std::tie(it.m_ulVolId, it.m_ulUnitPhysId, it.m_strUnitPhys, it.m_ulUnitId, it.m_strUnit, it.m_ulOscReserved,
                    it.m_uchDataType, it.m_uchDecPntCount, it.m_uchUnitConvDecPntCount, it.m_cConversionTbl,
                    it.m_cResolutionData);
}

inline auto FieldsOf(CKRMCCommandOscTimeInfo& it) {
    return std::tie(it.m_ushTimeId, it.m_ulSamplingHz, it.m_ulRecordTime, it.m_bSyncFlag);
}

inline auto FieldsOf(CKRMCGetOscilloscopeListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetOscilloscopeListCmdAdaptDataRcv& it) {
    return std::tie(it.m_ushChList, it.m_cVolList, it.m_cTimeList);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_FIELDS_H_
