// The fields of the classes of krm/messages/diag/special_operation.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_SPECIAL_OPERATION_H_
#define KRM_FIELDS_DIAG_SPECIAL_OPERATION_H_

#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/special_operation.h"

template <>
struct krm::Fields<CKRMCSpGroup>
    : krm::FieldList<&CKRMCSpGroup::m_ushGroupId, &CKRMCSpGroup::m_ulGroupNameId, &CKRMCSpGroup::m_strGroupName> {};

template <>
struct krm::Fields<CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd::m_ushGroupId> {};

template <>
struct krm::Fields<CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv::m_cSpOperateList> {};

#endif  // KRM_FIELDS_DIAG_SPECIAL_OPERATION_H_
