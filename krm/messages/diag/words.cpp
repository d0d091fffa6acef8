#include "krm/messages/diag/words.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandWordsData>;
template class CKRMList<CKRMCCommandTranslationStringData>;

CKRMCCommandWordsData::~CKRMCCommandWordsData() = default;

void CKRMCCommandWordsData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulWordsId=%u", m_ulWordsId);
    line("%s.m_strWords=%s", m_strWords);
}

krm_long CKRMCGetTranslationStringCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetTranslationStringCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulIdList[%d]=%d", m_ulIdList);
    return 0;
}

krm_long CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetTranslationStringCmdAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(m_cTranslationStringDataList, [](const auto& itemLine, auto& item) {
        itemLine("[%s] m_cTranslationStringDataList[%d].ID=%d", item.m_ulId);
        itemLine("[%s] m_cTranslationStringDataList[%d].String=%s", item.m_strString);
    });
    return 0;
}
