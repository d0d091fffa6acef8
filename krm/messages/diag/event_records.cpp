#include "krm/messages/diag/event_records.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandEventRecordDataItem>;
template class CKRMList<CKRMCCommandRecordDataItem>;

void CKRMCCommandEventRecordDataItem::Dump(const krm::RecordLines& line) {
    line("%s.m_ushEventRecordDataItemId=%d", m_ushEventRecordDataItemId);
    line("%s.m_ulEventRecordDataItemNameId=%d", m_ulEventRecordDataItemNameId);
    line("%s.m_strEventRecordDataItemName=%s", m_strEventRecordDataItemName);
    line("%s.m_bRecordData=%d", m_bRecordData);
}

void CKRMCCommandRecordDataItem::Dump(const krm::RecordLines& line) {
    line("%s.m_ushRecordDataItemId=%d", m_ushRecordDataItemId);
    line("%s.m_ulRecordDataItemNameId=%d", m_ulRecordDataItemNameId);
    line("%s.m_strRecordDataItemName=%s", m_strRecordDataItemName);
}

void CKRMCGetEventRecordDataListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetRecordDataListCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushEventRecordDataItemId=%d", m_ushEventRecordDataItemId);
}

void CKRMCGetRecordDataListCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] Data[%d]", Data);
}

void CKRMCGetEventRecordDataCmdAdaptDataSnd::Dump(const krm::MessageLines& line) {
    line("[%s] m_ushEventRecordDataItemId=%d", m_ushEventRecordDataItemId);
    line("[%s] m_ushRecordDataItemId=%d", m_ushRecordDataItemId);
}

void CKRMCGetEventRecordDataCmdAdaptDataRcv::Dump(const krm::MessageLines& line) {
    line("[%s] m_bTimeInfoFlag=%d", m_bTimeInfoFlag);
    line("[%s] m_chBegin=%d", m_chBegin);
    line("[%s] m_chEnd=%d", m_chEnd);
    line("[%s] Data[%d]", Data);
}
