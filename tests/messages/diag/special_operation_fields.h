// The fields of the classes of krm/messages/diag/special_operation.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_SPECIAL_OPERATION_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_SPECIAL_OPERATION_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/special_operation.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCSpGroup& it) {
    return std::tie(it.m_ushGroupId, it.m_ulGroupNameId, it.m_strGroupName);
}

inline auto FieldsOf(CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushGroupId);
}

inline auto FieldsOf(CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv& it) {
    return std::tie(it.m_cSpOperateList);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_SPECIAL_OPERATION_FIELDS_H_
