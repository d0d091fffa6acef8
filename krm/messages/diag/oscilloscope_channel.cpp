#include "krm/messages/diag/oscilloscope_channel.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandOscInfo>;

void CKRMCCommandOscInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushChId=%d", m_ushChId);
    line("%s.m_ulVolId=%d", m_ulVolId);
}
