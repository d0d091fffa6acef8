#include "krm/messages/diag/translation.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandTranslationStringData>;

void CKRMCGetTranslationStringCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulIdList[%d]=%d", m_ulIdList);
}

void CKRMCGetTranslationStringCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(m_cTranslationStringDataList, [](const auto& itemLine, auto& item) {
        itemLine("[%s] m_cTranslationStringDataList[%d].ID=%d", item.m_ulId);
        itemLine("[%s] m_cTranslationStringDataList[%d].String=%s", item.m_strString);
    });
}
