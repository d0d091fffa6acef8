#include "krm/messages/diag/words.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandWordsData>;

void CKRMCCommandWordsData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulWordsId=%u", m_ulWordsId);
    line("%s.m_strWords=%s", m_strWords);
}
