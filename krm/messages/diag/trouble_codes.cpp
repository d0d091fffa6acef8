#include "krm/messages/diag/trouble_codes.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandDtcFfdData>;
template class CKRMList<CKRMCCommandDiagDetailData>;

// Shows what identifies the code, its items and its status; the rest of the status block stays out of the log.
void CKRMCCommandDtcFfdData::Dump(const krm::RecordLines& line) {
    line("%s.m_uchDTCKind=%d", m_uchDTCKind);
    line("%s.m_ulDTCCode=0x%06X", m_ulDTCCode);
    line("%s.m_strDTC=%s", m_strDTC);
    line("%s.m_ulDTCNameId=%d", m_ulDTCNameId);
    line("%s.m_strDTCName=%s", m_strDTCName);
    line("%s.m_chFFDType=%d", m_chFFDType);
    line("%s.m_uchFFDId=%d", m_uchFFDId);
    line("%s.m_cFFDList[%d]", m_cFFDList);
    line("%s.m_uchDTCStatus=%d", m_uchDTCStatus);
    line("%s.m_uchSubFunction=%d", m_uchSubFunction);
}

void CKRMCCommandDiagDetailData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulDiagDetailId=%d", m_ulDiagDetailId);
    line("%s.m_ulDiagDetailCode=%d", m_ulDiagDetailCode);
    line("%s.m_cDiagDetailDataList[%d]", m_cDiagDetailDataList);
}

void CKRMCGetDTCCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
    line("[%s] m_uchGetFFDType=%d", m_uchGetFFDType);
}

void CKRMCGetDTCCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
    line("[%s] m_bDTCType=%d", m_bDTCType);
    line("[%s] m_ulReadynessStatus=%d", m_ulReadynessStatus);
}

void CKRMCClearDTCCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_ulResult=%d", m_ulResult);
}

void CKRMCGetDiagDetailCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchFFDId=%d", m_uchFFDId);
}

void CKRMCGetDiagDetailCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] Data.m_ulEOPData=%d", Data.m_ulEOPData);
}

void CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    // Written here, not by the record's own dump: the log shows these IDs as signed numbers.
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ulWordsId=%d", item.m_ulWordsId);
        itemLine("[%s] Data[%d].m_strWords=%s", item.m_strWords);
    });
}

void CKRMCGetDtcFfdCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}
