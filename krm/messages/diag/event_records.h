// Records that an ECU stored on events, and the commands that list and read them.
#ifndef KRM_MESSAGES_DIAG_EVENT_RECORDS_H_
#define KRM_MESSAGES_DIAG_EVENT_RECORDS_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/platform/platform.h"

/// One event of which records may be stored.
class KRM_API CKRMCCommandEventRecordDataItem : public krm::RecordOf<CKRMCCommandEventRecordDataItem> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushEventRecordDataItemId = 0;  ///< event ID
    krm_ulong m_ulEventRecordDataItemNameId = 0;    ///< words ID of the event's name
    CKRMString m_strEventRecordDataItemName;        ///< the event's name
    bool m_bRecordData = false;                     ///< the event holds record data
};
extern template class CKRMList<CKRMCCommandEventRecordDataItem>;

/// One record stored of an event.
class KRM_API CKRMCCommandRecordDataItem : public krm::RecordOf<CKRMCCommandRecordDataItem> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushRecordDataItemId = 0;  ///< record ID
    krm_ulong m_ulRecordDataItemNameId = 0;    ///< words ID of the record's name
    CKRMString m_strRecordDataItemName;        ///< the record's name
};
extern template class CKRMList<CKRMCCommandRecordDataItem>;

/// Asks for the events of which records may be stored.
class KRM_API CKRMCGetEventRecordDataListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetEventRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetEventRecordDataList"> {};

/// Answers with the events.
class KRM_API CKRMCGetEventRecordDataListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetEventRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetEventRecordDataList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandEventRecordDataItem> Data;  ///< the events
};

/// Asks for the records stored of an event.
class KRM_API CKRMCGetRecordDataListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetRecordDataList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushEventRecordDataItemId = 0;  ///< the event
};

/// Answers with the records.
class KRM_API CKRMCGetRecordDataListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetRecordDataList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandRecordDataItem> Data;  ///< the records
};

/// Asks for the values of a record of an event.
class KRM_API CKRMCGetEventRecordDataCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetEventRecordDataCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetEventRecordData"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushEventRecordDataItemId = 0;  ///< the event
    unsigned short m_ushRecordDataItemId = 0;       ///< the record
};

/// Answers with the values.
class KRM_API CKRMCGetEventRecordDataCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetEventRecordDataCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetEventRecordData"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bTimeInfoFlag = false;        ///< the values have times
    signed char m_chBegin = 0;           ///< begin of the range
    signed char m_chEnd = 0;             ///< end of the range
    CKRMList<CKRMCCommandFFDData> Data;  ///< the values
};

#endif  // KRM_MESSAGES_DIAG_EVENT_RECORDS_H_
