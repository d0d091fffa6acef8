// The data monitor: which values it can watch, starting it, polling values, its errors and its trigger items; and a few
// queries about how values are shown.
//
// Values travel as freeze-frame items. Records come first, then the entries without a dump, then the messages by
// command ID.
#ifndef KRM_MESSAGES_DIAG_DATA_MONITOR_H_
#define KRM_MESSAGES_DIAG_DATA_MONITOR_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/freeze_frame_item.h"
#include "krm/messages/diag/oscilloscope_channel.h"
#include "krm/platform/platform.h"

/// A diagnosis message of the unit, known by its length.
class KRM_API CKRMCCommandDiagMessage : public krm::RecordOf<CKRMCCommandDiagMessage> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulMsgLength = 0;  ///< length of the message; its unit is the engine's
};
extern template class CKRMList<CKRMCCommandDiagMessage>;

/// One trigger item of the data monitor: what it watches and when it fires.
class KRM_API CKRMCCommandTriggerData : public krm::RecordOf<CKRMCCommandTriggerData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushTriggerItemId = 0;     ///< ID of the trigger item
    krm_ulong m_ulNameId = 0;                  ///< words ID of the item's name
    CKRMString m_strName;                      ///< text of the item's name
    unsigned short m_ushPidId = 0;             ///< parameter ID (PID) that is watched
    CKRMCCommandDispData m_cBeginCondition;    ///< value at which watching begins
    unsigned char m_uchSlopeCondition = 0;     ///< slope that the value must have; the codes are the engine's
    CKRMCCommandDispData m_cTriggerCondition;  ///< value at which the item fires
    unsigned char m_uchSlopeDef = 0;           ///< how the slope is defined; the codes are the engine's
    CKRMCCommandDispData m_cResolutionData;    ///< smallest step, as a display value
};
extern template class CKRMList<CKRMCCommandTriggerData>;

/// A data monitor to start: which values of which ECU. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandStartDataMonitorData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandStartDataMonitorData(); }

    unsigned short m_ushDataMonitorId = 0;     ///< ID of the monitor, as GetDataMonitorValue carries it
    krm_ulong m_ulEcuId = 0;                   ///< ECU whose values are watched
    CKRMList<unsigned short> m_cPidIdList;     ///< parameter IDs (PIDs) to watch
    CKRMList<unsigned short> m_cSubPidIdList;  ///< stored, copied and cleared only; not logged
    unsigned char m_uchMonitorReserved1 = 0;   ///< stored, copied and cleared only; not logged
    unsigned short m_ushMonitorReserved = 0;   ///< stored, copied and cleared only; not logged
    unsigned char m_uchMonitorReserved2 = 0;   ///< stored, copied and cleared only; not logged
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandStartDataMonitorData> = true;
extern template class CKRMList<CKRMCCommandStartDataMonitorData>;

/// A data monitor that was started. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandDataMonitorIdData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandDataMonitorIdData(); }

    unsigned short m_ushDataMonitorId = 0;  ///< ID of the monitor, as GetDataMonitorValue carries it
    krm_ulong m_ulEcuId = 0;                ///< ECU whose values are watched
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandDataMonitorIdData> = true;
extern template class CKRMList<CKRMCCommandDataMonitorIdData>;

/// An error of the data monitor. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandDmErrorData {
public:
    /// Resets the numbers. The error object stays as it is: whoever reuses an entry sets it anew.
    void Clear();

    unsigned short m_ushType = 0;  ///< kind of error; the codes are the engine's
    CKRMError m_cError;            ///< what went wrong; logged by its own member names; Clear keeps it
    krm_ulong m_ulHelpId1 = 0;     ///< ID of a help text; logged unsigned
    krm_ulong m_ulHelpId2 = 0;     ///< ID of a second help text; logged unsigned
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandDmErrorData> = true;
extern template class CKRMList<CKRMCCommandDmErrorData>;

/// A value that the data monitor received. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCCommandDmReceiveData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandDmReceiveData(); }

    unsigned short m_ushMessageType = 0;  ///< kind of message; the codes are the engine's
    krm_ulong m_ulRidRecvValue = 0;       ///< value received; logged in hexadecimal
    unsigned short m_ushRidId = 0;        ///< RID that the value came under
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCCommandDmReceiveData> = true;
extern template class CKRMList<CKRMCCommandDmReceiveData>;

/// GetDataMonitorList asks for the values that can be monitored.
class KRM_API CKRMCGetDataMonitorListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDataMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDataMonitorList"> {};

/// Answers GetDataMonitorList with the items, without values.
class KRM_API CKRMCGetDataMonitorListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDataMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDataMonitorList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandFFDData> Data;  ///< items that can be monitored
    CKRMList<unsigned char>
        m_uchA8SupportData;  ///< support data, the engine's; logged by its length only, as ...:ByteNum
};

/// StartDataMonitor asks to start data monitors and the oscilloscope beside them.
class KRM_API CKRMCStartDataMonitorCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCStartDataMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "StartDataMonitor"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandStartDataMonitorData> Data;  ///< monitors to start
    CKRMList<CKRMCCommandOscInfo>
        m_cOscInfoList;                 ///< oscilloscope channels; logged under the name Data too, counted from 0 again
    unsigned short m_ushOscTimeId = 0;  ///< time base of the oscilloscope; logged unsigned
};

/// Answers StartDataMonitor with the data monitors that run.
class KRM_API CKRMCStartDataMonitorCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCStartDataMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "StartDataMonitor"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bDataMonitorEnable = false;             ///< the monitors run
    CKRMList<CKRMCCommandDataMonitorIdData> Data;  ///< monitors that were started
};

/// GetDataMonitorValue asks for the current values of a data monitor.
class KRM_API CKRMCGetDataMonitorValueCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDataMonitorValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDataMonitorValue"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushDataMonitorId = 0;  ///< monitor to poll
};

/// Answers GetDataMonitorValue with the values. They stay out of the log, which gets the bases' lines only.
class KRM_API CKRMCGetDataMonitorValueCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDataMonitorValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDataMonitorValue"> {
public:
    CKRMList<CKRMCCommandFFDData> Data;     ///< current values; not logged
    unsigned short m_ushValueReserved = 0;  ///< stored, copied and cleared only; not logged
};

/// GetTriggerItem asks for what the data monitor can be triggered by.
class KRM_API CKRMCGetTriggerItemCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetTriggerItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetTriggerItem"> {};

/// Answers GetTriggerItem with the trigger items.
class KRM_API CKRMCGetTriggerItemCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetTriggerItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetTriggerItem"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandTriggerData> m_cTriggerList;  ///< trigger items to choose from
};

/// GetDescription asks for a description.
class KRM_API CKRMCGetDescriptionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDescriptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDescription"> {};

/// Answers GetDescription with the description.
class KRM_API CKRMCGetDescriptionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDescriptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDescription"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMString m_strDescription;  ///< text of the description
};

/// GetDataMonitorError asks for what went wrong in the data monitor.
class KRM_API CKRMCGetDataMonitorErrorCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDataMonitorErrorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDataMonitorError"> {
};

/// Answers GetDataMonitorError with the errors.
class KRM_API CKRMCGetDataMonitorErrorCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDataMonitorErrorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDataMonitorError"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDmErrorData> Data;  ///< errors, each with its help
};

/// GetCurrentDataValue asks for the current values of parameters, without a data monitor.
class KRM_API CKRMCGetCurrentDataValueCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCurrentDataValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCurrentDataValue"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<unsigned short> m_cPidIdList;  ///< parameter IDs (PIDs) to read
};

/// Answers GetCurrentDataValue with the values.
class KRM_API CKRMCGetCurrentDataValueCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCurrentDataValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCurrentDataValue"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandFFDData> Data;  ///< current values
};

/// GetHexModeInfo asks for the settings of the hex mode.
class KRM_API CKRMCGetHexModeInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetHexModeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetHexModeInfo"> {};

/// Answers GetHexModeInfo with the width of an address.
class KRM_API CKRMCGetHexModeInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetHexModeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetHexModeInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulAddressByte = 0;  ///< bytes of an address; logged unsigned
};

/// GetDataMonitorReceiveInfo asks for what the data monitor received.
class KRM_API CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetDataMonitorReceiveInfo"> {};

/// Answers GetDataMonitorReceiveInfo with the values received.
class KRM_API CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetDataMonitorReceiveInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDmReceiveData> m_cDmReceiveDataList;  ///< values received
};

/// GetUnitInfo asks for information about the unit.
class KRM_API CKRMCGetUnitInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUnitInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetUnitInfo"> {};

/// Answers GetUnitInfo with a length per diagnosis message.
class KRM_API CKRMCGetUnitInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUnitInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetUnitInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDiagMessage> Data;  ///< diagnosis messages
};

#endif  // KRM_MESSAGES_DIAG_DATA_MONITOR_H_
