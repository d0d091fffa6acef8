// The fields of the classes of krm/messages/diag/memory.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_MEMORY_H_
#define KRM_FIELDS_DIAG_MEMORY_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/memory.h"

template <>
struct krm::Fields<CKRMCCommandReadMemoryInfo>
    : krm::FieldList<&CKRMCCommandReadMemoryInfo::m_ulAddress, &CKRMCCommandReadMemoryInfo::m_uchData,
                     &CKRMCCommandReadMemoryInfo::m_ulErrorCode> {};

template <>
struct krm::Fields<CKRMCReadMemoryCmdAdaptDataSnd> : krm::FieldList<&CKRMCReadMemoryCmdAdaptDataSnd::m_ulAddressList> {
};

template <>
struct krm::Fields<CKRMCReadMemoryCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCReadMemoryCmdAdaptDataRcv::m_cReadMemoryInfoList> {};

template <>
struct krm::Fields<CKRMCWriteMemoryCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCWriteMemoryCmdAdaptDataSnd::m_ulAddress, &CKRMCWriteMemoryCmdAdaptDataSnd::m_uchData> {};

template <>
struct krm::Fields<CKRMCWriteMemoryCmdAdaptDataRcv> : krm::FieldList<&CKRMCWriteMemoryCmdAdaptDataRcv::m_ulErrorCode> {
};

#endif  // KRM_FIELDS_DIAG_MEMORY_H_
