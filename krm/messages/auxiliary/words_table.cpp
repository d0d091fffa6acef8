#include "krm/messages/auxiliary/words_table.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCDiagWordsTableCreationData>;
template class CKRMList<CKRMCDiagWordsTableTranslationStringData>;

CKRMCDiagWordsTableCreationData::~CKRMCDiagWordsTableCreationData() = default;
CKRMCDiagWordsTableTranslationStringData::~CKRMCDiagWordsTableTranslationStringData() = default;

void CKRMCCreateDiagWordsTableDwtAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushIdType=%d", item.m_ushIdType);
        itemLine("[%s] Data[%d].m_strValue=%s", item.m_strValue);
    });
}

void CKRMCGetTranslationStringDwtAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulIdList[%d]=%d", m_ulIdList);
}

void CKRMCGetTranslationStringDwtAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line.ForEach(m_cTranslationStringDataList, [](const auto& itemLine, auto& item) {
        itemLine("[%s] m_cTranslationStringDataList[%d].ID=%d", item.m_ulId);
        itemLine("[%s] m_cTranslationStringDataList[%d].String=%s", item.m_strString);
    });
}
