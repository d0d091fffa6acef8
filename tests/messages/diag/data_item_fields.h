// The fields of the classes of krm/messages/diag/data_item.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_DATA_ITEM_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_DATA_ITEM_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/data_item.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandWriteData& it) {
    return std::tie(it.m_ushId, it.m_uchType, it.m_ulData);
}

inline auto FieldsOf(CKRMCWriteDataItemCmdAdaptDataSnd& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCWriteDataItemCmdAdaptDataRcv&) {
    return std::tie();
}

#endif  // KRM_TESTS_MESSAGES_DIAG_DATA_ITEM_FIELDS_H_
