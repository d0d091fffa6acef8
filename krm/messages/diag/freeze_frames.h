// Freeze frames: the values that were stored together with a trouble code, and the times at which that happened.
//
// What phase types, sub-functions and the begin and end pairs mean is the engine's; the library stores them unchanged.
#ifndef KRM_MESSAGES_DIAG_FREEZE_FRAMES_H_
#define KRM_MESSAGES_DIAG_FREEZE_FRAMES_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/platform/platform.h"

/// A system with a freeze frame that has an absolute time.
class KRM_API CKRMCCommandAbsFFDData : public krm::RecordOf<CKRMCCommandAbsFFDData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulSystemId = 0;    ///< system ID
    CKRMString m_strSystem;        ///< the system's name
    unsigned char m_uchFFDId = 0;  ///< freeze-frame ID
    unsigned char m_uchIndex = 0;  ///< index
};
extern template class CKRMList<CKRMCCommandAbsFFDData>;

/// An absolute time. Each part of it is a freeze-frame item, with name, unit, conversion and display values of its own.
class KRM_API CKRMCAbsoluteTimeInfo : public krm::RecordOf<CKRMCAbsoluteTimeInfo> {
public:
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

/// One ECU that a question about its time goes to, or an answer came from.
class KRM_API CKRMCEcuSpecificInfo : public krm::RecordOf<CKRMCEcuSpecificInfo> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulEcuId = 0;        ///< the ECU
    unsigned short m_ushBusId = 0;  ///< the bus that it is on
};
extern template class CKRMList<CKRMCEcuSpecificInfo>;

/// Asks for a freeze frame.
class KRM_API CKRMCGetFFDCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchFFDId = 0;            ///< freeze-frame ID
    CKRMList<unsigned char> m_uchSSRNoList;  ///< SSR numbers
    CKRMList<unsigned char> m_uchSDRNoList;  ///< SDR numbers
    krm_ulong m_ulDTC = 0;                   ///< trouble code that the freeze frame belongs to
    CKRMList<unsigned short> m_cPidId;       ///< the PIDs asked for
    unsigned char m_uchSubFunction = 0;      ///< sub-function
    unsigned char m_uchDTCType = 0;          ///< type of the code
};

/// Answers with the freeze frame's items.
class KRM_API CKRMCGetFFDCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bMultiFFD = false;            ///< there are several freeze frames
    signed char m_chBegin = 0;           ///< begin of the range
    krm_long m_lBegin = 0;               ///< begin of the range, 32 bits wide
    signed char m_chEnd = 0;             ///< end of the range
    krm_long m_lEnd = 0;                 ///< end of the range, 32 bits wide
    CKRMList<CKRMCCommandFFDData> Data;  ///< the items
};

/// Asks whether a trouble code has several freeze frames.
class KRM_API CKRMCIsMultiFFDCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCIsMultiFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "IsMultiFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchPhaseType = 0;        ///< phase of the code
    unsigned char m_uchFFDId = 0;            ///< freeze-frame ID
    CKRMList<unsigned char> m_uchSSRNoList;  ///< SSR numbers
    CKRMList<unsigned char> m_uchSDRNoList;  ///< SDR numbers
    krm_ulong m_ulDTC = 0;                   ///< the trouble code
};

/// Answers whether it has.
class KRM_API CKRMCIsMultiFFDCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCIsMultiFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "IsMultiFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bMultiFFD = false;     ///< there are several freeze frames
    signed char m_chFFDType = 0;  ///< freeze-frame type
};

/// Asks for the systems whose freeze frames have an absolute time.
class KRM_API CKRMCIsAbsFFDCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCIsAbsFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "IsAbsFFD"> {};

/// Answers with the systems.
class KRM_API CKRMCIsAbsFFDCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCIsAbsFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "IsAbsFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchType = 0;            ///< type
    CKRMList<CKRMCCommandAbsFFDData> Data;  ///< the systems
};

/// Asks for the ECU's current time.
class KRM_API CKRMCGetCurrentTimeInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCurrentTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCurrentTimeInfo"> {};

/// Answers with the trip time and the time since ignition-on.
class KRM_API CKRMCGetCurrentTimeInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCurrentTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCurrentTimeInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bSupport = false;               ///< the ECU has a time
    bool m_bTripTime = false;              ///< the trip time is there
    bool m_bFailTripTime = false;          ///< reading the trip time failed
    CKRMCCommandFFDData m_cTripTime;       ///< trip time
    bool m_bAfterIgOnTime = false;         ///< the time since ignition-on is there
    bool m_bFailAfterIgOnTime = false;     ///< reading the time since ignition-on failed
    CKRMCCommandFFDData m_cAfterIgOnTime;  ///< time since ignition-on
};

/// Asks for the absolute times of trip times.
class KRM_API CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetAbsoluteTimeInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCEcuSpecificInfo> m_cTargetEcuList;  ///< the ECUs to ask
    CKRMList<CKRMCCommandFFDData> m_cTripTimeList;    ///< the trip times
};

/// Answers with the absolute times.
class KRM_API CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetAbsoluteTimeInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCEcuSpecificInfo> m_cCommEcuList;            ///< the ECUs that answered
    CKRMList<CKRMCAbsoluteTimeInfo> m_cAbsoluteTimeInfoList;  ///< the absolute times
};

#endif  // KRM_MESSAGES_DIAG_FREEZE_FRAMES_H_
