// Freeze frames: the values that were stored together with a trouble code, and the times at which that happened.
//
// Records come first, then the messages by command ID; the item that freeze frames are made of is in
// freeze_frame_item.h. What phase types, sub-functions and the begin and end pairs mean is the engine's; the library
// stores them unchanged.
#ifndef KRM_MESSAGES_DIAG_FREEZE_FRAMES_H_
#define KRM_MESSAGES_DIAG_FREEZE_FRAMES_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/platform/platform.h"

/// A system with absolute freeze-frame data.
class KRM_API CKRMCCommandAbsFFDData : public krm::RecordOf<CKRMCCommandAbsFFDData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulSystemId = 0;    ///< system ID; the IDs are the engine's
    CKRMString m_strSystem;        ///< text of the system's name
    unsigned char m_uchFFDId = 0;  ///< freeze-frame ID
    unsigned char m_uchIndex = 0;  ///< index; its meaning is the engine's
};
extern template class CKRMList<CKRMCCommandAbsFFDData>;

/// An absolute time. Each part of it is a freeze-frame item, with name, unit, conversion and display values of its own.
class KRM_API CKRMCAbsoluteTimeInfo : public krm::RecordOf<CKRMCAbsoluteTimeInfo> {
public:
    void Dump(const krm::RecordLines& line);

    CKRMCCommandFFDData m_cTripTime;              ///< trip time, as a freeze-frame item
    CKRMCCommandFFDData m_cInternalClock;         ///< the ECU's internal clock, as a freeze-frame item
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

    krm_ulong m_ulEcuId = 0;        ///< ECU identifier, as requests carry it
    unsigned short m_ushBusId = 0;  ///< bus that the ECU is on
};
extern template class CKRMList<CKRMCEcuSpecificInfo>;

/// GetFFD asks for a freeze frame.
class KRM_API CKRMCGetFFDCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchFFDId = 0;            ///< ID of the freeze frame
    CKRMList<unsigned char> m_uchSSRNoList;  ///< SSR numbers, any number of them
    CKRMList<unsigned char> m_uchSDRNoList;  ///< SDR numbers, any number of them
    krm_ulong m_ulDTC = 0;                   ///< number of the trouble code that the freeze frame belongs to
    CKRMList<unsigned short> m_cPidId;       ///< parameter IDs (PIDs) asked for
    unsigned char m_uchSubFunction = 0;      ///< sub-function to read with; the codes are the engine's
    unsigned char m_uchDTCType = 0;          ///< type of the trouble code; the codes are the engine's
};

/// Answers GetFFD with the freeze frame's items.
class KRM_API CKRMCGetFFDCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bMultiFFD = false;            ///< there are several freeze frames
    signed char m_chBegin = 0;           ///< begin of the range; its meaning is the engine's
    krm_long m_lBegin = 0;               ///< begin of the range in 32 bits; its meaning is the engine's
    signed char m_chEnd = 0;             ///< end of the range; its meaning is the engine's
    krm_long m_lEnd = 0;                 ///< end of the range in 32 bits; its meaning is the engine's
    CKRMList<CKRMCCommandFFDData> Data;  ///< items of the freeze frame
};

/// IsMultiFFD asks whether a trouble code has several freeze frames.
class KRM_API CKRMCIsMultiFFDCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCIsMultiFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "IsMultiFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchPhaseType = 0;        ///< phase of the code; the codes are the engine's
    unsigned char m_uchFFDId = 0;            ///< ID of the freeze frame
    CKRMList<unsigned char> m_uchSSRNoList;  ///< SSR numbers, any number of them
    CKRMList<unsigned char> m_uchSDRNoList;  ///< SDR numbers, any number of them
    krm_ulong m_ulDTC = 0;                   ///< number of the trouble code
};

/// Answers IsMultiFFD with a flag for several freeze frames and their type.
class KRM_API CKRMCIsMultiFFDCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCIsMultiFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "IsMultiFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bMultiFFD = false;     ///< there are several freeze frames
    signed char m_chFFDType = 0;  ///< type of the freeze frames; the codes are the engine's
};

/// IsAbsFFD asks for the systems with absolute freeze-frame data.
class KRM_API CKRMCIsAbsFFDCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCIsAbsFFDCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "IsAbsFFD"> {};

/// Answers IsAbsFFD with the systems.
class KRM_API CKRMCIsAbsFFDCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCIsAbsFFDCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "IsAbsFFD"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned char m_uchType = 0;            ///< type of the answer; the codes are the engine's
    CKRMList<CKRMCCommandAbsFFDData> Data;  ///< systems with absolute freeze-frame data
};

/// GetCurrentTimeInfo asks for the ECU's current time.
class KRM_API CKRMCGetCurrentTimeInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCurrentTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCurrentTimeInfo"> {};

/// Answers GetCurrentTimeInfo with the trip time and the time since ignition-on.
class KRM_API CKRMCGetCurrentTimeInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCurrentTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCurrentTimeInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bSupport = false;               ///< the ECU has such times
    bool m_bTripTime = false;              ///< m_cTripTime is there
    bool m_bFailTripTime = false;          ///< reading the trip time failed
    CKRMCCommandFFDData m_cTripTime;       ///< trip time, as a freeze-frame item
    bool m_bAfterIgOnTime = false;         ///< m_cAfterIgOnTime is there
    bool m_bFailAfterIgOnTime = false;     ///< reading the time since ignition-on failed
    CKRMCCommandFFDData m_cAfterIgOnTime;  ///< time since ignition-on, as a freeze-frame item
};

/// GetAbsoluteTimeInfo asks for the absolute times of trip times.
class KRM_API CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetAbsoluteTimeInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCEcuSpecificInfo> m_cTargetEcuList;  ///< ECUs to ask
    CKRMList<CKRMCCommandFFDData> m_cTripTimeList;    ///< trip times, as freeze-frame items
};

/// Answers GetAbsoluteTimeInfo with the absolute times.
class KRM_API CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetAbsoluteTimeInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCEcuSpecificInfo> m_cCommEcuList;            ///< ECUs that communicated
    CKRMList<CKRMCAbsoluteTimeInfo> m_cAbsoluteTimeInfoList;  ///< absolute times
};

#endif  // KRM_MESSAGES_DIAG_FREEZE_FRAMES_H_
