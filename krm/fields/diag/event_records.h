// The fields of the classes of krm/messages/diag/event_records.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_EVENT_RECORDS_H_
#define KRM_FIELDS_DIAG_EVENT_RECORDS_H_

#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/event_records.h"

template <>
struct krm::Fields<CKRMCCommandEventRecordDataItem>
    : krm::FieldList<&CKRMCCommandEventRecordDataItem::m_ushEventRecordDataItemId,
                     &CKRMCCommandEventRecordDataItem::m_ulEventRecordDataItemNameId,
                     &CKRMCCommandEventRecordDataItem::m_strEventRecordDataItemName,
                     &CKRMCCommandEventRecordDataItem::m_bRecordData> {};

template <>
struct krm::Fields<CKRMCCommandRecordDataItem> : krm::FieldList<&CKRMCCommandRecordDataItem::m_ushRecordDataItemId,
                                                                &CKRMCCommandRecordDataItem::m_ulRecordDataItemNameId,
                                                                &CKRMCCommandRecordDataItem::m_strRecordDataItemName> {
};

template <>
struct krm::Fields<CKRMCGetEventRecordDataListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetEventRecordDataListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetEventRecordDataListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetRecordDataListCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetRecordDataListCmdAdaptDataSnd::m_ushEventRecordDataItemId> {};

template <>
struct krm::Fields<CKRMCGetRecordDataListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetRecordDataListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetEventRecordDataCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetEventRecordDataCmdAdaptDataSnd::m_ushEventRecordDataItemId,
                     &CKRMCGetEventRecordDataCmdAdaptDataSnd::m_ushRecordDataItemId> {};

template <>
struct krm::Fields<CKRMCGetEventRecordDataCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetEventRecordDataCmdAdaptDataRcv::m_bTimeInfoFlag,
                     &CKRMCGetEventRecordDataCmdAdaptDataRcv::m_chBegin,
                     &CKRMCGetEventRecordDataCmdAdaptDataRcv::m_chEnd, &CKRMCGetEventRecordDataCmdAdaptDataRcv::Data> {
};

#endif  // KRM_FIELDS_DIAG_EVENT_RECORDS_H_
