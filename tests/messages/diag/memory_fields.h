// The fields of the classes of krm/messages/diag/memory.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_MEMORY_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_MEMORY_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/memory.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandReadMemoryInfo& it) {
    return std::tie(it.m_ulAddress, it.m_uchData, it.m_ulErrorCode);
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

#endif  // KRM_TESTS_MESSAGES_DIAG_MEMORY_FIELDS_H_
