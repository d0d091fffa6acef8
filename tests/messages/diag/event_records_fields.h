// The fields of the classes of krm/messages/diag/event_records.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_EVENT_RECORDS_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_EVENT_RECORDS_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/event_records.h"
#include "tests/messages/diag/freeze_frame_item_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandEventRecordDataItem& it) {
    return std::tie(it.m_ushEventRecordDataItemId, it.m_ulEventRecordDataItemNameId, it.m_strEventRecordDataItemName,
                    it.m_bRecordData);
}

inline auto FieldsOf(CKRMCCommandRecordDataItem& it) {
    return std::tie(it.m_ushRecordDataItemId, it.m_ulRecordDataItemNameId, it.m_strRecordDataItemName);
}

inline auto FieldsOf(CKRMCGetEventRecordDataListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCGetEventRecordDataListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetRecordDataListCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushEventRecordDataItemId);
}

inline auto FieldsOf(CKRMCGetRecordDataListCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetEventRecordDataCmdAdaptDataSnd& it) {
    return std::tie(it.m_ushEventRecordDataItemId, it.m_ushRecordDataItemId);
}

inline auto FieldsOf(CKRMCGetEventRecordDataCmdAdaptDataRcv& it) {
    return std::tie(it.m_bTimeInfoFlag, it.m_chBegin, it.m_chEnd, it.Data);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_EVENT_RECORDS_FIELDS_H_
