#include "krm/messages/diag/special_operation.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCSpGroup>;

void CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& group) {
        itemLine("[%s] Data[%d].m_ushGroupId=%d", group.m_ushGroupId);
        itemLine("[%s] Data[%d].m_ulGroupNameId=%d", group.m_ulGroupNameId);
        itemLine("[%s] Data[%d].m_strGroupName=%s", group.m_strGroupName);
    });
}

void CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushGroupId=%d", m_ushGroupId);
}

void CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_cSpOperateList[%d]", m_cSpOperateList);
}
