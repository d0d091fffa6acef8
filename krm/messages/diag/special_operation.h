// Special operation control records and their groups.
#ifndef KRM_MESSAGES_DIAG_SPECIAL_OPERATION_H_
#define KRM_MESSAGES_DIAG_SPECIAL_OPERATION_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/platform/platform.h"

/// A group of special operation control records. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCSpGroup {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCSpGroup(); }

    unsigned short m_ushGroupId = 0;  ///< ID of the group, as GetSpOperateCtrlRecord carries it
    krm_ulong m_ulGroupNameId = 0;    ///< words ID of the group's name
    CKRMString m_strGroupName;        ///< text of the group's name
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCSpGroup> = true;
extern template class CKRMList<CKRMCSpGroup>;

/// GetSpOperateCtrlRecordGroup asks for the groups of special operation control records.
class KRM_API CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetSpOperateCtrlRecordGroup"> {};

/// Answers GetSpOperateCtrlRecordGroup with the groups.
class KRM_API CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetSpOperateCtrlRecordGroup"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCSpGroup> Data;  ///< groups, without their records
};

/// GetSpOperateCtrlRecord asks for the special operation control records of a group.
class KRM_API CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetSpOperateCtrlRecord"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushGroupId = 0;  ///< group whose records are asked for
};

/// Answers GetSpOperateCtrlRecord with the records.
class KRM_API CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetSpOperateCtrlRecord"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandFFDData> m_cSpOperateList;  ///< records, in the form of freeze-frame items
};

#endif  // KRM_MESSAGES_DIAG_SPECIAL_OPERATION_H_
