#include "krm/messages/diag/freeze_frames.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandAbsFFDData>;
template class CKRMList<CKRMCAbsoluteTimeInfo>;
template class CKRMList<CKRMCEcuSpecificInfo>;

void CKRMCCommandAbsFFDData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulSystemId=%d", m_ulSystemId);
    line("%s.m_strSystem=%s", m_strSystem);
    line("%s.m_uchFFDId=%d", m_uchFFDId);
    line("%s.m_uchIndex=%d", m_uchIndex);
}

void CKRMCAbsoluteTimeInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_cTripTime", m_cTripTime);
    line("%s.m_cInternalClock", m_cInternalClock);
    line("%s.m_cGPSTimeYear", m_cGPSTimeYear);
    line("%s.m_cGPSTimeMonth", m_cGPSTimeMonth);
    line("%s.m_cGPSTimeDay", m_cGPSTimeDay);
    line("%s.m_cGPSTimeHour", m_cGPSTimeHour);
    line("%s.m_cGPSTimeMinute", m_cGPSTimeMinute);
    line("%s.m_cGPSTimeSecond", m_cGPSTimeSecond);
    line("%s.m_cTimeDifferenceSign", m_cTimeDifferenceSign);
    line("%s.m_cTimeDifferenceHour", m_cTimeDifferenceHour);
    line("%s.m_cTimeDifferenceMinute", m_cTimeDifferenceMinute);
    line("%s.m_cDST", m_cDST);
}

void CKRMCEcuSpecificInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ulEcuId=%d", m_ulEcuId);
    line("%s.m_ushBusId=%d", m_ushBusId);
}

void CKRMCGetFFDCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchFFDId=%d", m_uchFFDId);
    line("[%s] m_uchSSRNoList[%d]=%d", m_uchSSRNoList);
    line("[%s] m_uchSDRNoList[%d]=%d", m_uchSDRNoList);
    line("[%s] m_ulDTC=%d", m_ulDTC);
    line("[%s] m_cPidId[%d]=%d", m_cPidId);
    line("[%s] m_uchSubFunction=%d", m_uchSubFunction);
    line("[%s] m_uchDTCType=%d", m_uchDTCType);
}

void CKRMCGetFFDCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bMultiFFD=%d", m_bMultiFFD);
    line("[%s] m_chBegin=%d", m_chBegin);
    line("[%s] m_lBegin=%d", m_lBegin);
    line("[%s] m_chEnd=%d", m_chEnd);
    line("[%s] m_lEnd=%d", m_lEnd);
    line("[%s] Data[%d]", Data);
}

void CKRMCIsMultiFFDCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
    line("[%s] m_uchFFDId=%d", m_uchFFDId);
    line("[%s] m_uchSSRNoList[%d]=%d", m_uchSSRNoList);
    line("[%s] m_uchSDRNoList[%d]=%d", m_uchSDRNoList);
    line("[%s] m_ulDTC=%d", m_ulDTC);
}

void CKRMCIsMultiFFDCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bMultiFFD=%d", m_bMultiFFD);
    line("[%s] m_chFFDType=%d", m_chFFDType);
}

void CKRMCIsAbsFFDCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_uchType=%d", m_uchType);
    line("[%s] Data[%d]", Data);
}

void CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bSupport=%d", m_bSupport);
    line("[%s] m_bTripTime=%d", m_bTripTime);
    line("[%s] m_bFailTripTime=%d", m_bFailTripTime);
    line("[%s] m_cTripTime", m_cTripTime);
    line("[%s] m_bAfterIgOnTime=%d", m_bAfterIgOnTime);
    line("[%s] m_bFailAfterIgOnTime=%d", m_bFailAfterIgOnTime);
    line("[%s] m_cAfterIgOnTime", m_cAfterIgOnTime);
}

void CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_cTargetEcuList[%d]", m_cTargetEcuList);
    line("[%s] m_cTripTimeList[%d]", m_cTripTimeList);
}

void CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_cCommEcuList[%d]", m_cCommEcuList);
    line("[%s] m_cAbsoluteTimeInfoList[%d]", m_cAbsoluteTimeInfoList);
}
