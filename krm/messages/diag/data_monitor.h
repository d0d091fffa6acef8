// The data monitor: which values it can watch, starting it, polling values, its errors and its trigger items; and a few
// queries about how values are shown.
//
// Values travel as freeze-frame items. The trigger record and the plain entries come first, then the messages by
// command ID. The plain entries have no log lines of their own; the message that holds them writes their fields. What
// slope codes and message types mean is the engine's.
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

/// The length of a diagnosis message. GetUnitInfo answers with these.
class KRM_API CKRMCCommandDiagMessage : public krm::RecordOf<CKRMCCommandDiagMessage> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulMsgLength = 0;  ///< message length
};
extern template class CKRMList<CKRMCCommandDiagMessage>;

/// One trigger item of the data monitor: what it watches and when it fires.
class KRM_API CKRMCCommandTriggerData : public krm::RecordOf<CKRMCCommandTriggerData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushTriggerItemId = 0;
    krm_ulong m_ulNameId = 0;  ///< words ID of the name
    CKRMString m_strName;
    unsigned short m_ushPidId = 0;             ///< parameter ID (PID) watched
    CKRMCCommandDispData m_cBeginCondition;    ///< begin condition value
    unsigned char m_uchSlopeCondition = 0;     ///< slope condition
    CKRMCCommandDispData m_cTriggerCondition;  ///< trigger condition value
    unsigned char m_uchSlopeDef = 0;           ///< slope definition
    CKRMCCommandDispData m_cResolutionData;    ///< resolution as a display value
};
extern template class CKRMList<CKRMCCommandTriggerData>;

/// One data monitor to start: which values of which ECU.
class KRM_API CKRMCCommandStartDataMonitorData {
public:
    void Clear() { *this = CKRMCCommandStartDataMonitorData(); }

    unsigned short m_ushDataMonitorId = 0;
    krm_ulong m_ulEcuId = 0;
    CKRMList<unsigned short> m_cPidIdList;     ///< parameter IDs (PIDs) to watch
    CKRMList<unsigned short> m_cSubPidIdList;  ///< stored and copied, never logged
    unsigned char m_uchMonitorReserved1 = 0;   ///< stored and copied, never logged
    unsigned short m_ushMonitorReserved = 0;   ///< stored and copied, never logged
    unsigned char m_uchMonitorReserved2 = 0;   ///< stored and copied, never logged
};
extern template class CKRMList<CKRMCCommandStartDataMonitorData>;

/// One data monitor that was started.
class KRM_API CKRMCCommandDataMonitorIdData {
public:
    void Clear() { *this = CKRMCCommandDataMonitorIdData(); }

    unsigned short m_ushDataMonitorId = 0;
    krm_ulong m_ulEcuId = 0;
};
extern template class CKRMList<CKRMCCommandDataMonitorIdData>;

/// An error of the data monitor.
class KRM_API CKRMCCommandDmErrorData {
public:
    /// Resets the numbers. The error object stays as it is: whoever reuses an entry sets it anew.
    void Clear();

    unsigned short m_ushType = 0;  ///< kind of error
    CKRMError m_cError;            ///< what went wrong; kept by Clear
    krm_ulong m_ulHelpId1 = 0;     ///< ID of a help text
    krm_ulong m_ulHelpId2 = 0;     ///< ID of a second one
};
extern template class CKRMList<CKRMCCommandDmErrorData>;

/// Something that the data monitor received.
class KRM_API CKRMCCommandDmReceiveData {
public:
    void Clear() { *this = CKRMCCommandDmReceiveData(); }

    unsigned short m_ushMessageType = 0;
    krm_ulong m_ulRidRecvValue = 0;  ///< value received
    unsigned short m_ushRidId = 0;   ///< RID that the value came under
};
extern template class CKRMList<CKRMCCommandDmReceiveData>;

/// GetDataMonitorList asks which values can be monitored.
class KRM_API CKRMCGetDataMonitorListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDataMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDataMonitorList"> {};

/// Answers with the items.
class KRM_API CKRMCGetDataMonitorListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDataMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDataMonitorList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandFFDData> Data;          ///< the items that can be monitored
    CKRMList<unsigned char> m_uchA8SupportData;  ///< support data, the engine's to interpret; logged by its length only
};

/// StartDataMonitor asks to start data monitors and the oscilloscope beside them.
class KRM_API CKRMCStartDataMonitorCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCStartDataMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "StartDataMonitor"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandStartDataMonitorData> Data;
    CKRMList<CKRMCCommandOscInfo> m_cOscInfoList;  ///< oscilloscope channels; logged under the name Data too
    unsigned short m_ushOscTimeId = 0;             ///< the oscilloscope's time base
};

/// Answers which data monitors run.
class KRM_API CKRMCStartDataMonitorCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCStartDataMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "StartDataMonitor"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bDataMonitorEnable = false;
    CKRMList<CKRMCCommandDataMonitorIdData> Data;
};

/// GetDataMonitorValue asks for the current values of a data monitor.
class KRM_API CKRMCGetDataMonitorValueCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDataMonitorValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDataMonitorValue"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushDataMonitorId = 0;
};

/// Answers with the values. They stay out of the log, which gets the base's lines only.
class KRM_API CKRMCGetDataMonitorValueCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDataMonitorValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDataMonitorValue"> {
public:
    CKRMList<CKRMCCommandFFDData> Data;     ///< current values
    unsigned short m_ushValueReserved = 0;  ///< stored and copied, never logged
};

/// GetTriggerItem asks what the data monitor can be triggered by.
class KRM_API CKRMCGetTriggerItemCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetTriggerItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetTriggerItem"> {};

/// Answers with the trigger items.
class KRM_API CKRMCGetTriggerItemCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetTriggerItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetTriggerItem"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandTriggerData> m_cTriggerList;
};

/// GetDescription asks for a description.
class KRM_API CKRMCGetDescriptionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDescriptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDescription"> {};

/// Answers with the text.
class KRM_API CKRMCGetDescriptionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDescriptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDescription"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMString m_strDescription;
};

/// GetDataMonitorError asks what went wrong in the data monitor.
class KRM_API CKRMCGetDataMonitorErrorCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDataMonitorErrorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetDataMonitorError"> {
};

/// Answers with the errors.
class KRM_API CKRMCGetDataMonitorErrorCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDataMonitorErrorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetDataMonitorError"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDmErrorData> Data;
};

/// GetCurrentDataValue asks for the current values of these parameters, without a data monitor.
class KRM_API CKRMCGetCurrentDataValueCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetCurrentDataValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetCurrentDataValue"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<unsigned short> m_cPidIdList;  ///< parameter IDs (PIDs)
};

/// Answers with the values.
class KRM_API CKRMCGetCurrentDataValueCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetCurrentDataValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetCurrentDataValue"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandFFDData> Data;
};

/// GetHexModeInfo asks how memory addresses are shown.
class KRM_API CKRMCGetHexModeInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetHexModeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetHexModeInfo"> {};

/// Answers with their width.
class KRM_API CKRMCGetHexModeInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetHexModeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetHexModeInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    krm_ulong m_ulAddressByte = 0;  ///< bytes of an address
};

/// GetDataMonitorReceiveInfo asks what the data monitor received.
class KRM_API CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "GetDataMonitorReceiveInfo"> {};

/// Answers with it.
class KRM_API CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "GetDataMonitorReceiveInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDmReceiveData> m_cDmReceiveDataList;
};

/// GetUnitInfo asks for the lengths of the unit's diagnostic messages.
class KRM_API CKRMCGetUnitInfoCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetUnitInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetUnitInfo"> {};

/// Answers with a record per message.
class KRM_API CKRMCGetUnitInfoCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetUnitInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetUnitInfo"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandDiagMessage> Data;
};

#endif  // KRM_MESSAGES_DIAG_DATA_MONITOR_H_
