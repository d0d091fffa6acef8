#include "krm/messages/diag/cancel_codes.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandCancelCodeData>;
template class CKRMList<CKRMCCommandCancelCodeCategoryInfo>;

void CKRMCCommandCancelCodeData::Dump(const krm::RecordLines& line) {
    line("%s.m_uchKind=%d", m_uchKind);
    line("%s.m_uchStatus=%d", m_uchStatus);
    line("%s.m_ulCode=%d", m_ulCode);
    line("%s.m_strCode=%s", m_strCode);
    line("%s.m_ulExplanationId=%d", m_ulExplanationId);
    line("%s.m_strExplanation=%s", m_strExplanation);
    line("%s.m_bTripCount=%d", m_bTripCount);
    line("%s.m_cTripCount", m_cTripCount);
    line("%s.m_bTimeCount=%d", m_bTimeCount);
    line("%s.m_cTimeCount", m_cTimeCount);
    line("%s.m_bTripGroup=%d", m_bTripGroup);
    line("%s.m_cTripGroup", m_cTripGroup);
    line("%s.m_bOccurrenceCount=%d", m_bOccurrenceCount);
    line("%s.m_cOccurrenceCount", m_cOccurrenceCount);
    line("%s.m_bMainUnitTemperature=%d", m_bMainUnitTemperature);
    line("%s.m_cMainUnitTemperature", m_cMainUnitTemperature);
    line("%s.m_bCameraUnitTemperature=%d", m_bCameraUnitTemperature);
    line("%s.m_cCameraUnitTemperature", m_cCameraUnitTemperature);
}

void CKRMCCommandCancelCodeCategoryInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ushCategoryId=%u", m_ushCategoryId);
    line("%s.m_ulCategoryNameId=%u", m_ulCategoryNameId);
    line("%s.m_strCategoryName=%s", m_strCategoryName);
    line("%s.m_ulWarningMessageId=%u", m_ulWarningMessageId);
    line("%s.m_strWarningMessage=%s", m_strWarningMessage);
}

void CKRMCGetCancelCodeCategoryListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetCancelCodeCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushCategoryId=%d", m_ushCategoryId);
}

void CKRMCGetCancelCodeCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    // Both lists go under the same name, each counted from 0.
    line("[%s] Data[%d]", m_cDTCList);
    line("[%s] Data[%d]", Data);
    line("[%s] m_bProhibit=%d", m_bProhibit);
}
