#include "krm/messages/auxiliary/words_table.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCDiagWordsTableCreationData>;
template class CKRMList<CKRMCDiagWordsTableTranslationStringData>;

CKRMCDiagWordsTableCreationData::~CKRMCDiagWordsTableCreationData() = default;
CKRMCDiagWordsTableTranslationStringData::~CKRMCDiagWordsTableTranslationStringData() = default;
CKRMCCreateDiagWordsTableDwtAdaptDataRcv::~CKRMCCreateDiagWordsTableDwtAdaptDataRcv() = default;

krm_long CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCCreateDiagWordsTableDwtAdaptDataSnd::ErrWriteOperationLog");
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ushIdType=%d", item.m_ushIdType);
        itemLine("[%s] Data[%d].m_strValue=%s", item.m_strValue);
    });
    return 0;
}

krm_long CKRMCGetTranslationStringDwtAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetTranslationStringDwtAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ulIdList[%d]=%d", m_ulIdList);
    return 0;
}

krm_long CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetTranslationStringDwtAdaptDataRcv::ErrWriteOperationLog");
    line.ForEach(m_cTranslationStringDataList, [](const auto& itemLine, auto& item) {
        itemLine("[%s] m_cTranslationStringDataList[%d].ID=%d", item.m_ulId);
        itemLine("[%s] m_cTranslationStringDataList[%d].String=%s", item.m_strString);
    });
    return 0;
}
