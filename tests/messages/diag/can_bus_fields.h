// The fields of the classes of krm/messages/diag/can_bus.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_CAN_BUS_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_CAN_BUS_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/can_bus.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandCanBusCategoryInfo& it) {
    return std::tie(it.m_ulEcuId, it.m_ulEcuNameId, it.m_strEcuName, it.m_ulCategoryId, it.m_uchHistPidSupport);
}

inline auto FieldsOf(CKRMCCommandCanBusCategoryListData& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCanBusCategoryListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetCanBusCategoryListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCanBusCheckListCmdAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetCanBusCheckListCmdAdaptDataRcv& it) {
    return std::tie(it.Info, it.Hist);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_CAN_BUS_FIELDS_H_
