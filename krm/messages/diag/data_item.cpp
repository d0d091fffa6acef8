#include "krm/messages/diag/data_item.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandWriteData>;

void CKRMCCommandWriteData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushId=%d", m_ushId);
    line("%s.m_uchType=%d", m_uchType);
    line("%s.m_ulData=%d", m_ulData);
}

void CKRMCWriteDataItemCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushId=%d", item.m_ushId);
        itemLine("[%s] Data[%d].m_uchType=%d", item.m_uchType);
        itemLine("[%s] Data[%d].m_ulData=%d", item.m_ulData);
    });
}
