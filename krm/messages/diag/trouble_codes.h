// Trouble codes (DTCs), their freeze frames, diagnosis details, time stamps and event records, and the commands that
// ask for them.
//
// Records first, then the message pairs by command ID. The meaning of the codes in kind, type, phase and sub-function
// fields and in the begin and end pairs is the engine's; the library stores them unchanged.
#ifndef KRM_MESSAGES_DIAG_TROUBLE_CODES_H_
#define KRM_MESSAGES_DIAG_TROUBLE_CODES_H_

#include "krm/core/list.h"
#include "krm/framework/commands.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/words.h"
#include "krm/platform/platform.h"

// ---- Records ----

/// One freeze-frame item: a named value with its unit, how it is converted, and its display values. Also carries times,
/// monitor values and other values that are shown the same way.
class KRM_API CKRMCCommandFFDData : public RecordOf<CKRMCCommandFFDData> {
public:
    ~CKRMCCommandFFDData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushId = 0;                      ///< item ID
    krm_ulong m_ulNameId = 0;                        ///< words ID of the item's name
    CKRMString m_strName;                            ///< the item's name
    CKRMString m_strFFDText;                         ///< second text of the item; stored and copied, never logged
    krm_ulong m_ulUnitPhysId = 0;                    ///< words ID of the physical unit
    CKRMString m_strUnitPhys;                        ///< physical unit
    krm_ulong m_ulUnitId = 0;                        ///< words ID of the display unit
    CKRMString m_strUnit;                            ///< display unit
    krm_ulong m_ulFFDReserved = 0;                   ///< stored and copied, never logged
    unsigned char m_uchDataType = 0;                 ///< data type of the value, as the converters take it
    unsigned char m_uchDecPntCount = 0;              ///< decimal places of the value
    unsigned char m_uchUnitConvDecPntCount = 0;      ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;     ///< conversion rule
    CKRMCCommandDispData m_cResolutionData;          ///< resolution, as a display value
    CKRMList<CKRMCCommandDispData> m_cDispDataList;  ///< the item's display values
    CKRMCCommandDataLayout m_cDataLayout;            ///< where the raw value lies in the ECU's response
};
extern template class CKRMList<CKRMCCommandFFDData>;

/// One trouble code: its texts, kind and status, and the times at which it was stored.
class KRM_API CKRMCCommandDTCData : public RecordOf<CKRMCCommandDTCData> {
public:
    ~CKRMCCommandDTCData() override;
    void Dump(const krm::RecordLines& line);

    unsigned char m_uchDTCKind = 0;        ///< kind of code
    krm_ulong m_ulDTCCode = 0;             ///< the code as a number; logged in decimal
    CKRMString m_strDTC;                   ///< the code as displayed
    krm_ulong m_ulDTCNameId = 0;           ///< words ID of the code's name
    CKRMString m_strDTCName;               ///< the code's name
    krm_ulong m_ulDTCDivNameId = 0;        ///< words ID of the division's name
    CKRMString m_strDTCDivName;            ///< the division's name
    signed char m_chFFDType = 0;           ///< freeze-frame type
    unsigned char m_uchFFDId = 0;          ///< freeze-frame ID
    CKRMString m_strComment;               ///< comment
    CKRMList<unsigned char> m_uchSSRNo;    ///< SSR numbers
    CKRMList<unsigned char> m_uchSDRNo;    ///< SDR numbers
    unsigned char m_uchDTCType = 0;        ///< type of the code
    krm_ulong m_ulDTCTypeNameId = 0;       ///< words ID of the type's name
    CKRMString m_strDTCTypeName;           ///< the type's name
    krm_ulong m_ulDTCTypeToolId = 0;       ///< words ID of the type's text for the tool
    CKRMString m_strDTCTypeTool;           ///< the type's text for the tool
    unsigned char m_uchDTCStatus = 0;      ///< status of the code
    krm_ulong m_ulDTCStatusNameId = 0;     ///< words ID of the status' name
    CKRMString m_strDTCStatusName;         ///< the status' name
    krm_ulong m_ulDTCStatusToolId = 0;     ///< words ID of the status' text for the tool
    CKRMString m_strDTCStatusTool;         ///< the status' text for the tool
    bool m_bTripTime = false;              ///< the trip time is there
    bool m_bFailTripTime = false;          ///< reading the trip time failed
    CKRMCCommandFFDData m_cTripTime;       ///< trip time
    bool m_bAfterIgOnTime = false;         ///< the time since ignition-on is there
    bool m_bFailAfterIgOnTime = false;     ///< reading the time since ignition-on failed
    CKRMCCommandFFDData m_cAfterIgOnTime;  ///< time since ignition-on
    krm_ulong m_ulOriginalCountId = 0;     ///< count ID
    CKRMCCommandFFDData m_cClockType;      ///< type of the clock
    bool m_bStatusOfDTC = false;           ///< m_uchStatusOfDTC is valid
    unsigned char m_uchStatusOfDTC = 0;    ///< raw status byte of the code
    krm_ulong m_ulDTCGroupId = 0;          ///< group ID
};
extern template class CKRMList<CKRMCCommandDTCData>;

/// One trouble code together with its freeze-frame items. The log shows the code, the items and the status only.
class KRM_API CKRMCCommandDtcFfdData : public RecordOf<CKRMCCommandDtcFfdData> {
public:
    ~CKRMCCommandDtcFfdData() override;
    void Dump(const krm::RecordLines& line);

    unsigned char m_uchDTCKind = 0;            ///< kind of code
    krm_ulong m_ulDTCCode = 0;                 ///< the code as a number; logged in hexadecimal
    CKRMString m_strDTC;                       ///< the code as displayed
    krm_ulong m_ulDTCNameId = 0;               ///< words ID of the code's name
    CKRMString m_strDTCName;                   ///< the code's name
    signed char m_chFFDType = 0;               ///< freeze-frame type
    unsigned char m_uchFFDId = 0;              ///< freeze-frame ID
    CKRMString m_strDtcFfdText;                ///< stored and copied, never logged
    CKRMList<CKRMCCommandFFDData> m_cFFDList;  ///< the freeze-frame items
    unsigned char m_uchDTCType = 0;            ///< type of the code; not logged
    krm_ulong m_ulDTCTypeNameId = 0;           ///< words ID of the type's name; not logged
    CKRMString m_strDTCTypeName;               ///< the type's name; not logged
    unsigned char m_uchDTCStatus = 0;          ///< status of the code
    krm_ulong m_ulDTCStatusNameId = 0;         ///< words ID of the status' name; not logged
    CKRMString m_strDTCStatusName;             ///< the status' name; not logged
    bool m_bTripTime = false;                  ///< the trip time is there; not logged
    bool m_bFailTripTime = false;              ///< reading the trip time failed; not logged
    CKRMCCommandFFDData m_cTripTime;           ///< trip time; not logged
    bool m_bAfterIgOnTime = false;             ///< the time since ignition-on is there; not logged
    bool m_bFailAfterIgOnTime = false;         ///< reading the time since ignition-on failed; not logged
    CKRMCCommandFFDData m_cAfterIgOnTime;      ///< time since ignition-on; not logged
    krm_ulong m_ulOriginalCountId = 0;         ///< count ID; not logged
    CKRMCCommandFFDData m_cClockType;          ///< type of the clock; not logged
    bool m_bStatusOfDTC = false;               ///< m_uchStatusOfDTC is valid; not logged
    unsigned char m_uchStatusOfDTC = 0;        ///< raw status byte of the code; not logged
    krm_ulong m_ulDTCGroupId = 0;              ///< group ID; not logged
    unsigned char m_uchSubFunction = 0;        ///< sub-function
};
extern template class CKRMList<CKRMCCommandDtcFfdData>;

/// A system with a freeze frame that has an absolute time.
class KRM_API CKRMCCommandAbsFFDData : public RecordOf<CKRMCCommandAbsFFDData> {
public:
    ~CKRMCCommandAbsFFDData() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulSystemId = 0;    ///< system ID
    CKRMString m_strSystem;        ///< the system's name
    unsigned char m_uchFFDId = 0;  ///< freeze-frame ID
    unsigned char m_uchIndex = 0;  ///< index
};
extern template class CKRMList<CKRMCCommandAbsFFDData>;

/// An absolute time. Each part of it is a freeze-frame item, with name, unit, conversion and display values of its own.
class KRM_API CKRMCAbsoluteTimeInfo : public RecordOf<CKRMCAbsoluteTimeInfo> {
public:
    ~CKRMCAbsoluteTimeInfo() override;
    void Dump(const krm::RecordLines& line);

    CKRMCCommandFFDData m_cTripTime;              ///< trip time
    CKRMCCommandFFDData m_cInternalClock;         ///< the ECU's internal clock
    CKRMCCommandFFDData m_cGPSTimeYear;           ///< GPS time: year
    CKRMCCommandFFDData m_cGPSTimeMonth;          ///< GPS time: month
    CKRMCCommandFFDData m_cGPSTimeDay;            ///< GPS time: day
    CKRMCCommandFFDData m_cGPSTimeHour;           ///< GPS time: hour
    CKRMCCommandFFDData m_cGPSTimeMinute;         ///< GPS time: minute
    CKRMCCommandFFDData m_cGPSTimeSecond;         ///< GPS time: second
    CKRMCCommandFFDData m_cTimeDifferenceSign;    ///< sign of the difference to UTC
    CKRMCCommandFFDData m_cTimeDifferenceHour;    ///< hours of the difference to UTC
    CKRMCCommandFFDData m_cTimeDifferenceMinute;  ///< minutes of the difference to UTC
    CKRMCCommandFFDData m_cDST;                   ///< daylight-saving flag
};
extern template class CKRMList<CKRMCAbsoluteTimeInfo>;

/// One detail of a diagnosis and its items.
class KRM_API CKRMCCommandDiagDetailData : public RecordOf<CKRMCCommandDiagDetailData> {
public:
    ~CKRMCCommandDiagDetailData() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulDiagDetailId = 0;                       ///< detail ID
    krm_ulong m_ulDiagDetailCode = 0;                     ///< detail code
    CKRMList<CKRMCCommandFFDData> m_cDiagDetailDataList;  ///< the detail's items
};
extern template class CKRMList<CKRMCCommandDiagDetailData>;

/// The length of a diagnosis message. GetUnitInfo answers with these.
class KRM_API CKRMCCommandDiagMessage : public RecordOf<CKRMCCommandDiagMessage> {
public:
    ~CKRMCCommandDiagMessage() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulMsgLength = 0;  ///< message length
};
extern template class CKRMList<CKRMCCommandDiagMessage>;

/// One event of which records may be stored.
class KRM_API CKRMCCommandEventRecordDataItem : public RecordOf<CKRMCCommandEventRecordDataItem> {
public:
    ~CKRMCCommandEventRecordDataItem() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushEventRecordDataItemId = 0;  ///< event ID
    krm_ulong m_ulEventRecordDataItemNameId = 0;    ///< words ID of the event's name
    CKRMString m_strEventRecordDataItemName;        ///< the event's name
    bool m_bRecordData = false;                     ///< the event holds record data
};
extern template class CKRMList<CKRMCCommandEventRecordDataItem>;

/// One record stored of an event.
class KRM_API CKRMCCommandRecordDataItem : public RecordOf<CKRMCCommandRecordDataItem> {
public:
    ~CKRMCCommandRecordDataItem() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushRecordDataItemId = 0;  ///< record ID
    krm_ulong m_ulRecordDataItemNameId = 0;    ///< words ID of the record's name
    CKRMString m_strRecordDataItemName;        ///< the record's name
};
extern template class CKRMList<CKRMCCommandRecordDataItem>;

/// One ECU that a question about its time goes to, or an answer came from.
class KRM_API CKRMCEcuSpecificInfo : public RecordOf<CKRMCEcuSpecificInfo> {
public:
    ~CKRMCEcuSpecificInfo() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulEcuId = 0;        ///< the ECU
    unsigned short m_ushBusId = 0;  ///< the bus that it is on
};
extern template class CKRMList<CKRMCEcuSpecificInfo>;

// ---- Messages, by command ID ----

// GetDTC

/// Asks for the trouble codes.
class KRM_API CKRMCGetDTCCmdAdaptDataSnd : public MessageOf<CKRMCGetDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                                                            krm::CommandId(krm::CommandFamily::Diagnostic, "GetDTC")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchPhaseType = 0;   ///< phase whose codes are asked for
    unsigned char m_uchGetFFDType = 0;  ///< which freeze frames are asked for
};

/// Answers with the trouble codes.
class KRM_API CKRMCGetDTCCmdAdaptDataRcv : public MessageOf<CKRMCGetDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                                                            krm::CommandId(krm::CommandFamily::Diagnostic, "GetDTC")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandDTCData> Data;  ///< the trouble codes
    bool m_bDTCType = false;             ///< the codes have a type
    krm_ulong m_ulReadynessStatus = 0;   ///< readiness status
};

// ClearDTC

/// Asks to clear the trouble codes.
class KRM_API CKRMCClearDTCCmdAdaptDataSnd
    : public MessageOf<CKRMCClearDTCCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "ClearDTC")> {
public:
    ~CKRMCClearDTCCmdAdaptDataSnd() override;
};

/// Answers whether they were cleared.
class KRM_API CKRMCClearDTCCmdAdaptDataRcv
    : public MessageOf<CKRMCClearDTCCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "ClearDTC")> {
public:
    krm_long ErrWriteOperationLog() override;

    krm_ulong m_ulResult = 0;  ///< result, a code of the engine's
};

// GetFFD

/// Asks for a freeze frame.
class KRM_API CKRMCGetFFDCmdAdaptDataSnd : public MessageOf<CKRMCGetFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                                                            krm::CommandId(krm::CommandFamily::Diagnostic, "GetFFD")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchFFDId = 0;            ///< freeze-frame ID
    CKRMList<unsigned char> m_uchSSRNoList;  ///< SSR numbers
    CKRMList<unsigned char> m_uchSDRNoList;  ///< SDR numbers
    krm_ulong m_ulDTC = 0;                   ///< trouble code that the freeze frame belongs to
    CKRMList<unsigned short> m_cPidId;       ///< the PIDs asked for
    unsigned char m_uchSubFunction = 0;      ///< sub-function
    unsigned char m_uchDTCType = 0;          ///< type of the code
};

/// Answers with the freeze frame's items.
class KRM_API CKRMCGetFFDCmdAdaptDataRcv : public MessageOf<CKRMCGetFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                                                            krm::CommandId(krm::CommandFamily::Diagnostic, "GetFFD")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bMultiFFD = false;            ///< there are several freeze frames
    signed char m_chBegin = 0;           ///< begin of the range
    krm_long m_lBegin = 0;               ///< begin of the range, 32 bits wide
    signed char m_chEnd = 0;             ///< end of the range
    krm_long m_lEnd = 0;                 ///< end of the range, 32 bits wide
    CKRMList<CKRMCCommandFFDData> Data;  ///< the items
};

// IsMultiFFD

/// Asks whether a trouble code has several freeze frames.
class KRM_API CKRMCIsMultiFFDCmdAdaptDataSnd
    : public MessageOf<CKRMCIsMultiFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "IsMultiFFD")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchPhaseType = 0;        ///< phase of the code
    unsigned char m_uchFFDId = 0;            ///< freeze-frame ID
    CKRMList<unsigned char> m_uchSSRNoList;  ///< SSR numbers
    CKRMList<unsigned char> m_uchSDRNoList;  ///< SDR numbers
    krm_ulong m_ulDTC = 0;                   ///< the trouble code
};

/// Answers whether it has.
class KRM_API CKRMCIsMultiFFDCmdAdaptDataRcv
    : public MessageOf<CKRMCIsMultiFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "IsMultiFFD")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bMultiFFD = false;     ///< there are several freeze frames
    signed char m_chFFDType = 0;  ///< freeze-frame type
};

// GetDiagDetail

/// Asks for the details of a diagnosis.
class KRM_API CKRMCGetDiagDetailCmdAdaptDataSnd
    : public MessageOf<CKRMCGetDiagDetailCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDiagDetail")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchFFDId = 0;  ///< freeze-frame ID
};

/// Answers with the details.
class KRM_API CKRMCGetDiagDetailCmdAdaptDataRcv
    : public MessageOf<CKRMCGetDiagDetailCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDiagDetail")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandDiagDetailData> Data;  ///< the details
};

// IsAbsFFD

/// Asks for the systems whose freeze frames have an absolute time.
class KRM_API CKRMCIsAbsFFDCmdAdaptDataSnd
    : public MessageOf<CKRMCIsAbsFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "IsAbsFFD")> {
public:
    ~CKRMCIsAbsFFDCmdAdaptDataSnd() override;
};

/// Answers with the systems.
class KRM_API CKRMCIsAbsFFDCmdAdaptDataRcv
    : public MessageOf<CKRMCIsAbsFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "IsAbsFFD")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchType = 0;            ///< type
    CKRMList<CKRMCCommandAbsFFDData> Data;  ///< the systems
};

// GetCurrentTimeInfo

/// Asks for the ECU's current time.
class KRM_API CKRMCGetCurrentTimeInfoCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCurrentTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCurrentTimeInfo")> {
public:
    ~CKRMCGetCurrentTimeInfoCmdAdaptDataSnd() override;
};

/// Answers with the trip time and the time since ignition-on.
class KRM_API CKRMCGetCurrentTimeInfoCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCurrentTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCurrentTimeInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bSupport = false;               ///< the ECU has a time
    bool m_bTripTime = false;              ///< the trip time is there
    bool m_bFailTripTime = false;          ///< reading the trip time failed
    CKRMCCommandFFDData m_cTripTime;       ///< trip time
    bool m_bAfterIgOnTime = false;         ///< the time since ignition-on is there
    bool m_bFailAfterIgOnTime = false;     ///< reading the time since ignition-on failed
    CKRMCCommandFFDData m_cAfterIgOnTime;  ///< time since ignition-on
};

// GetAbsoluteTimeInfo

/// Asks for the absolute times of trip times.
class KRM_API CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd
    : public MessageOf<CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetAbsoluteTimeInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCEcuSpecificInfo> m_cTargetEcuList;  ///< the ECUs to ask
    CKRMList<CKRMCCommandFFDData> m_cTripTimeList;    ///< the trip times
};

/// Answers with the absolute times.
class KRM_API CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv
    : public MessageOf<CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetAbsoluteTimeInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCEcuSpecificInfo> m_cCommEcuList;            ///< the ECUs that answered
    CKRMList<CKRMCAbsoluteTimeInfo> m_cAbsoluteTimeInfoList;  ///< the absolute times
};

// GetEventRecordDataList

/// Asks for the events of which records may be stored.
class KRM_API CKRMCGetEventRecordDataListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetEventRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetEventRecordDataList")> {
public:
    ~CKRMCGetEventRecordDataListCmdAdaptDataSnd() override;
};

/// Answers with the events.
class KRM_API CKRMCGetEventRecordDataListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetEventRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetEventRecordDataList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandEventRecordDataItem> Data;  ///< the events
};

// GetRecordDataList

/// Asks for the records stored of an event.
class KRM_API CKRMCGetRecordDataListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetRecordDataListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetRecordDataList")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushEventRecordDataItemId = 0;  ///< the event
};

/// Answers with the records.
class KRM_API CKRMCGetRecordDataListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetRecordDataListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetRecordDataList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandRecordDataItem> Data;  ///< the records
};

// GetEventRecordData

/// Asks for the values of a record of an event.
class KRM_API CKRMCGetEventRecordDataCmdAdaptDataSnd
    : public MessageOf<CKRMCGetEventRecordDataCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetEventRecordData")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushEventRecordDataItemId = 0;  ///< the event
    unsigned short m_ushRecordDataItemId = 0;       ///< the record
};

/// Answers with the values.
class KRM_API CKRMCGetEventRecordDataCmdAdaptDataRcv
    : public MessageOf<CKRMCGetEventRecordDataCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetEventRecordData")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bTimeInfoFlag = false;        ///< the values have times
    signed char m_chBegin = 0;           ///< begin of the range
    signed char m_chEnd = 0;             ///< end of the range
    CKRMList<CKRMCCommandFFDData> Data;  ///< the values
};

// GetEOPInspectionResultMessage

/// Asks for the texts of an EOP inspection result.
class KRM_API CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd
    : public MessageOf<CKRMCGetEOPInspectionResultMessageCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetEOPInspectionResultMessage")> {
public:
    /// What is asked for. A plain value.
    struct EOPData {
        /// Restores the values of a new object.
        void Clear() { *this = EOPData(); }

        krm_ulong m_ulEOPData = 0;  ///< the inspection; a number of the engine's
    };

    krm_long ErrWriteOperationLog() override;

    EOPData Data;  ///< what is asked for
};

/// Answers with the texts.
class KRM_API CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv
    : public MessageOf<CKRMCGetEOPInspectionResultMessageCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetEOPInspectionResultMessage")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandWordsData> Data;  ///< the texts
};

// GetDtcFfd

/// Asks for the trouble codes together with their freeze frames.
class KRM_API CKRMCGetDtcFfdCmdAdaptDataSnd
    : public MessageOf<CKRMCGetDtcFfdCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDtcFfd")> {
public:
    ~CKRMCGetDtcFfdCmdAdaptDataSnd() override;
};

/// Answers with both.
class KRM_API CKRMCGetDtcFfdCmdAdaptDataRcv
    : public MessageOf<CKRMCGetDtcFfdCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDtcFfd")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandDtcFfdData> Data;  ///< the trouble codes
};

#endif  // KRM_MESSAGES_DIAG_TROUBLE_CODES_H_
