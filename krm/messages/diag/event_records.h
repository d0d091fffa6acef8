// Records that an ECU stored on events, and the commands that list and read them, by command ID.
#ifndef KRM_MESSAGES_DIAG_EVENT_RECORDS_H_
#define KRM_MESSAGES_DIAG_EVENT_RECORDS_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/platform/platform.h"

/// An event of which records may be stored.
class KRM_API CKRMCCommandEventRecordDataItem : public krm::RecordOf<CKRMCCommandEventRecordDataItem> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushEventRecordDataItemId = 0;  ///< event ID, as requests carry it
    krm_ulong m_ulEventRecordDataItemNameId = 0;    ///< words ID of the event's name
    CKRMString m_strEventRecordDataItemName;        ///< text of the event's name
    bool m_bRecordData = false;                     ///< the item holds record data
};
extern template class CKRMList<CKRMCCommandEventRecordDataItem>;

/// A record stored of an event.
class KRM_API CKRMCCommandRecordDataItem : public krm::RecordOf<CKRMCCommandRecordDataItem> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushRecordDataItemId = 0;  ///< record ID, as GetEventRecordData carries it
    krm_ulong m_ulRecordDataItemNameId = 0;    ///< words ID of the record's name
    CKRMString m_strRecordDataItemName;        ///< text of the record's name
};
extern template class CKRMList<CKRMCCommandRecordDataItem>;

/// GetEventRecordDataList asks for the events of which records may be stored.
class KRM_API CKRMCGetEventRecordDataListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetEventRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetEventRecordDataList"> {};

/// Answers GetEventRecordDataList with the events.
class KRM_API CKRMCGetEventRecordDataListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetEventRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetEventRecordDataList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandEventRecordDataItem> Data;  ///< events, without their records
};

/// GetRecordDataList asks for the records stored of an event.
class KRM_API CKRMCGetRecordDataListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetRecordDataList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushEventRecordDataItemId = 0;  ///< event whose records are asked for
};

/// Answers GetRecordDataList with the records.
class KRM_API CKRMCGetRecordDataListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetRecordDataList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandRecordDataItem> Data;  ///< records, without their values
};

/// GetEventRecordData asks for the values of a record of an event.
class KRM_API CKRMCGetEventRecordDataCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetEventRecordDataCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetEventRecordData"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushEventRecordDataItemId = 0;  ///< event that the record belongs to
    unsigned short m_ushRecordDataItemId = 0;       ///< record whose values are asked for
};

/// Answers GetEventRecordData with the values.
class KRM_API CKRMCGetEventRecordDataCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetEventRecordDataCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetEventRecordData"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bTimeInfoFlag = false;        ///< the values carry times
    signed char m_chBegin = 0;           ///< begin of the range of values; its meaning is the engine's
    signed char m_chEnd = 0;             ///< end of the range of values; its meaning is the engine's
    CKRMList<CKRMCCommandFFDData> Data;  ///< values, in the form of freeze-frame items
};

#endif  // KRM_MESSAGES_DIAG_EVENT_RECORDS_H_
