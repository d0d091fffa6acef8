// The fields of the oscilloscope and memory records and messages, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_MEMORY_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_MEMORY_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/data_item.h"
#include "krm/messages/diag/memory.h"
#include "krm/messages/diag/oscilloscope.h"
#include "krm/messages/diag/oscilloscope_channel.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandOscInfo& it) {
    return std::tie(it.m_ushChId, it.m_ulVolId);
}

inline auto FieldsOf(CKRMCCommandOscData& it) {
    return std::tie(it.m_ulVolId, it.m_ulUnitPhysId, it.m_strUnitPhys, it.m_ulUnitId, it.m_strUnit, it.m_ulOscReserved,
                    it.m_uchDataType, it.m_uchDecPntCount, it.m_uchUnitConvDecPntCount, it.m_cConversionTbl,
                    it.m_cResolutionData);
}

inline auto FieldsOf(CKRMCCommandOscTimeInfo& it) {
    return std::tie(it.m_ushTimeId, it.m_ulSamplingHz, it.m_ulRecordTime, it.m_bSyncFlag);
}

inline auto FieldsOf(CKRMCCommandReadMemoryInfo& it) {
    return std::tie(it.m_ulAddress, it.m_uchData, it.m_ulErrorCode);
}

inline auto FieldsOf(CKRMCCommandWriteData& it) {
    return std::tie(it.m_ushId, it.m_uchType, it.m_ulData);
}

inline auto FieldsOf(CKRMCGetOscilloscopeListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetOscilloscopeListCmdAdaptDataRcv& it) {
    return std::tie(it.m_ushChList, it.m_cVolList, it.m_cTimeList);
}

inline auto FieldsOf(CKRMCReadMemoryCmdAdaptDataSnd& it) {
    return std::tie(it.m_ulAddressList);
}

inline auto FieldsOf(CKRMCReadMemoryCmdAdaptDataRcv& it) {
    return std::tie(it.m_cReadMemoryInfoList);
}

inline auto FieldsOf(CKRMCWriteMemoryCmdAdaptDataSnd& it) {
    return std::tie(it.m_ulAddress, it.m_uchData);
}

inline auto FieldsOf(CKRMCWriteMemoryCmdAdaptDataRcv& it) {
    return std::tie(it.m_ulErrorCode);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_MEMORY_FIELDS_H_
