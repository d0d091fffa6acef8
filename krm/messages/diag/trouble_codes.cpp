#include "krm/messages/diag/trouble_codes.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandFFDData>;
template class CKRMList<CKRMCCommandDTCData>;
template class CKRMList<CKRMCCommandDtcFfdData>;
template class CKRMList<CKRMCCommandAbsFFDData>;
template class CKRMList<CKRMCAbsoluteTimeInfo>;
template class CKRMList<CKRMCCommandDiagDetailData>;
template class CKRMList<CKRMCCommandDiagMessage>;
template class CKRMList<CKRMCCommandEventRecordDataItem>;
template class CKRMList<CKRMCCommandRecordDataItem>;
template class CKRMList<CKRMCEcuSpecificInfo>;

// ---- Records ----

CKRMCCommandFFDData::~CKRMCCommandFFDData() = default;

void CKRMCCommandFFDData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushId=%d", m_ushId);
    line("%s.m_ulNameId=%d", m_ulNameId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_ulUnitPhysId=%d", m_ulUnitPhysId);
    line("%s.m_strUnitPhys=%s", m_strUnitPhys);
    line("%s.m_ulUnitId=%d", m_ulUnitId);
    line("%s.m_strUnit=%s", m_strUnit);
    line("%s.m_uchDataType=%d", m_uchDataType);
    line("%s.m_uchDecPntCount=%d", m_uchDecPntCount);
    line("%s.m_uchUnitConvDecPntCount=%d", m_uchUnitConvDecPntCount);
    line("%s.m_cConversionTbl", m_cConversionTbl);
    line("%s.m_cResolutionData", m_cResolutionData);
    line("%s.m_cDispDataList[%d]", m_cDispDataList);
    line("%s.m_cDataLayout", m_cDataLayout);
}

CKRMCCommandDTCData::~CKRMCCommandDTCData() = default;

void CKRMCCommandDTCData::Dump(const krm::RecordLines& line) {
    line("%s.m_uchDTCKind=%d", m_uchDTCKind);
    line("%s.m_ulDTCCode=%d", m_ulDTCCode);
    line("%s.m_strDTC=%s", m_strDTC);
    line("%s.m_ulDTCNameId=%d", m_ulDTCNameId);
    line("%s.m_strDTCName=%s", m_strDTCName);
    line("%s.m_ulDTCDivNameId=%d", m_ulDTCDivNameId);
    line("%s.m_strDTCDivName=%s", m_strDTCDivName);
    line("%s.m_chFFDType=%d", m_chFFDType);
    line("%s.m_uchFFDId=%d", m_uchFFDId);
    line("%s.m_strComment=%s", m_strComment);
    line("[%s] m_uchSSRNo[%d]=%d", m_uchSSRNo);
    line("[%s] m_uchSDRNo[%d]=%d", m_uchSDRNo);
    line("%s.m_uchDTCType=%d", m_uchDTCType);
    line("%s.m_ulDTCTypeNameId=%d", m_ulDTCTypeNameId);
    line("%s.m_strDTCTypeName=%s", m_strDTCTypeName);
    line("%s.m_ulDTCTypeToolId=%d", m_ulDTCTypeToolId);
    line("%s.m_strDTCTypeTool=%s", m_strDTCTypeTool);
    line("%s.m_uchDTCStatus=%d", m_uchDTCStatus);
    line("%s.m_ulDTCStatusNameId=%d", m_ulDTCStatusNameId);
    line("%s.m_strDTCStatusName=%s", m_strDTCStatusName);
    line("%s.m_ulDTCStatusToolId=%d", m_ulDTCStatusToolId);
    line("%s.m_strDTCStatusTool=%s", m_strDTCStatusTool);
    line("%s.m_bTripTime=%d", m_bTripTime);
    line("%s.m_bFailTripTime=%d", m_bFailTripTime);
    line("%s.m_cTripTime", m_cTripTime);
    line("%s.m_bAfterIgOnTime=%d", m_bAfterIgOnTime);
    line("%s.m_bFailAfterIgOnTime=%d", m_bFailAfterIgOnTime);
    line("%s.m_cAfterIgOnTime", m_cAfterIgOnTime);
    line("%s.m_ulOriginalCountId=%d", m_ulOriginalCountId);
    line("%s.m_cClockType", m_cClockType);
    line("%s.m_bStatusOfDTC=%d", m_bStatusOfDTC);
    line("%s.m_uchStatusOfDTC=%d", m_uchStatusOfDTC);
    line("%s.m_ulDTCGroupId=%d", m_ulDTCGroupId);
}

CKRMCCommandDtcFfdData::~CKRMCCommandDtcFfdData() = default;

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

CKRMCCommandAbsFFDData::~CKRMCCommandAbsFFDData() = default;

void CKRMCCommandAbsFFDData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulSystemId=%d", m_ulSystemId);
    line("%s.m_strSystem=%s", m_strSystem);
    line("%s.m_uchFFDId=%d", m_uchFFDId);
    line("%s.m_uchIndex=%d", m_uchIndex);
}

CKRMCAbsoluteTimeInfo::~CKRMCAbsoluteTimeInfo() = default;

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

CKRMCCommandDiagDetailData::~CKRMCCommandDiagDetailData() = default;

void CKRMCCommandDiagDetailData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulDiagDetailId=%d", m_ulDiagDetailId);
    line("%s.m_ulDiagDetailCode=%d", m_ulDiagDetailCode);
    line("%s.m_cDiagDetailDataList[%d]", m_cDiagDetailDataList);
}

CKRMCCommandDiagMessage::~CKRMCCommandDiagMessage() = default;

void CKRMCCommandDiagMessage::Dump(const krm::RecordLines& line) {
    line("%s.m_ulMsgLength=%d", m_ulMsgLength);
}

CKRMCCommandEventRecordDataItem::~CKRMCCommandEventRecordDataItem() = default;

void CKRMCCommandEventRecordDataItem::Dump(const krm::RecordLines& line) {
    line("%s.m_ushEventRecordDataItemId=%d", m_ushEventRecordDataItemId);
    line("%s.m_ulEventRecordDataItemNameId=%d", m_ulEventRecordDataItemNameId);
    line("%s.m_strEventRecordDataItemName=%s", m_strEventRecordDataItemName);
    line("%s.m_bRecordData=%d", m_bRecordData);
}

CKRMCCommandRecordDataItem::~CKRMCCommandRecordDataItem() = default;

void CKRMCCommandRecordDataItem::Dump(const krm::RecordLines& line) {
    line("%s.m_ushRecordDataItemId=%d", m_ushRecordDataItemId);
    line("%s.m_ulRecordDataItemNameId=%d", m_ulRecordDataItemNameId);
    line("%s.m_strRecordDataItemName=%s", m_strRecordDataItemName);
}

CKRMCEcuSpecificInfo::~CKRMCEcuSpecificInfo() = default;

void CKRMCEcuSpecificInfo::Dump(const krm::RecordLines& line) {
    line("%s.m_ulEcuId=%d", m_ulEcuId);
    line("%s.m_ushBusId=%d", m_ushBusId);
}

// ---- Messages, by command ID ----

krm_long CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
    line("[%s] m_uchGetFFDType=%d", m_uchGetFFDType);
    return 0;
}

krm_long CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    line("[%s] m_bDTCType=%d", m_bDTCType);
    line("[%s] m_ulReadynessStatus=%d", m_ulReadynessStatus);
    return 0;
}

CKRMCClearDTCCmdAdaptDataSnd::~CKRMCClearDTCCmdAdaptDataSnd() = default;

krm_long CKRMCClearDTCCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCClearDTCCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_ulResult=%d", m_ulResult);
    return 0;
}

krm_long CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetFFDCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_uchFFDId=%d", m_uchFFDId);
    line("[%s] m_uchSSRNoList[%d]=%d", m_uchSSRNoList);
    line("[%s] m_uchSDRNoList[%d]=%d", m_uchSDRNoList);
    line("[%s] m_ulDTC=%d", m_ulDTC);
    line("[%s] m_cPidId[%d]=%d", m_cPidId);
    line("[%s] m_uchSubFunction=%d", m_uchSubFunction);
    line("[%s] m_uchDTCType=%d", m_uchDTCType);
    return 0;
}

krm_long CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bMultiFFD=%d", m_bMultiFFD);
    line("[%s] m_chBegin=%d", m_chBegin);
    line("[%s] m_lBegin=%d", m_lBegin);
    line("[%s] m_chEnd=%d", m_chEnd);
    line("[%s] m_lEnd=%d", m_lEnd);
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCIsMultiFFDCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_uchPhaseType=%d", m_uchPhaseType);
    line("[%s] m_uchFFDId=%d", m_uchFFDId);
    line("[%s] m_uchSSRNoList[%d]=%d", m_uchSSRNoList);
    line("[%s] m_uchSDRNoList[%d]=%d", m_uchSDRNoList);
    line("[%s] m_ulDTC=%d", m_ulDTC);
    return 0;
}

krm_long CKRMCIsMultiFFDCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCIsMultiFFDCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bMultiFFD=%d", m_bMultiFFD);
    line("[%s] m_chFFDType=%d", m_chFFDType);
    return 0;
}

krm_long CKRMCGetDiagDetailCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetDiagDetailCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_uchFFDId=%d", m_uchFFDId);
    return 0;
}

krm_long CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetDiagDetailCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

CKRMCIsAbsFFDCmdAdaptDataSnd::~CKRMCIsAbsFFDCmdAdaptDataSnd() = default;

krm_long CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCIsAbsFFDCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_uchType=%d", m_uchType);
    line("[%s] Data[%d]", Data);
    return 0;
}

CKRMCGetCurrentTimeInfoCmdAdaptDataSnd::~CKRMCGetCurrentTimeInfoCmdAdaptDataSnd() = default;

krm_long CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bSupport=%d", m_bSupport);
    line("[%s] m_bTripTime=%d", m_bTripTime);
    line("[%s] m_bFailTripTime=%d", m_bFailTripTime);
    line("[%s] m_cTripTime", m_cTripTime);
    line("[%s] m_bAfterIgOnTime=%d", m_bAfterIgOnTime);
    line("[%s] m_bFailAfterIgOnTime=%d", m_bFailAfterIgOnTime);
    line("[%s] m_cAfterIgOnTime", m_cAfterIgOnTime);
    return 0;
}

krm_long CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_cTargetEcuList[%d]", m_cTargetEcuList);
    line("[%s] m_cTripTimeList[%d]", m_cTripTimeList);
    return 0;
}

krm_long CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_cCommEcuList[%d]", m_cCommEcuList);
    line("[%s] m_cAbsoluteTimeInfoList[%d]", m_cAbsoluteTimeInfoList);
    return 0;
}

CKRMCGetEventRecordDataListCmdAdaptDataSnd::~CKRMCGetEventRecordDataListCmdAdaptDataSnd() = default;

krm_long CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetEventRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCGetRecordDataListCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetRecordDataListCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushEventRecordDataItemId=%d", m_ushEventRecordDataItemId);
    return 0;
}

krm_long CKRMCGetRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetRecordDataListCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCGetEventRecordDataCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetEventRecordDataCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] m_ushEventRecordDataItemId=%d", m_ushEventRecordDataItemId);
    line("[%s] m_ushRecordDataItemId=%d", m_ushRecordDataItemId);
    return 0;
}

krm_long CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetEventRecordDataCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] m_bTimeInfoFlag=%d", m_bTimeInfoFlag);
    line("[%s] m_chBegin=%d", m_chBegin);
    line("[%s] m_chEnd=%d", m_chEnd);
    line("[%s] Data[%d]", Data);
    return 0;
}

krm_long CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd::ErrWriteOperationLog");
    line("[%s] Data.m_ulEOPData=%d", Data.m_ulEOPData);
    return 0;
}

krm_long CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv::ErrWriteOperationLog");
    // Written here, not by the record's own dump: the log shows these IDs as signed numbers.
    line.ForEach(Data, [](const auto& itemLine, auto& item) {
        itemLine("[%s] Data[%d].m_ulWordsId=%d", item.m_ulWordsId);
        itemLine("[%s] Data[%d].m_strWords=%s", item.m_strWords);
    });
    return 0;
}

CKRMCGetDtcFfdCmdAdaptDataSnd::~CKRMCGetDtcFfdCmdAdaptDataSnd() = default;

krm_long CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog() {
    const auto line = krm::BeginDump(*this, "CKRMCGetDtcFfdCmdAdaptDataRcv::ErrWriteOperationLog");
    line("[%s] Data[%d]", Data);
    return 0;
}
