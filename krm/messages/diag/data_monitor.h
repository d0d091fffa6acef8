// The data monitor: which values it can watch, starting it, polling values, its errors and its trigger items; and a few
// queries about how values are shown.
//
// Values travel as freeze-frame items. The trigger record and the plain entries come first, then the messages by
// command ID. The plain entries have no log lines of their own; the message that holds them writes their fields. What
// slope codes and message types mean is the engine's.
#ifndef KRM_MESSAGES_DIAG_DATA_MONITOR_H_
#define KRM_MESSAGES_DIAG_DATA_MONITOR_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/oscilloscope_memory.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/platform/platform.h"

/// One trigger item of the data monitor: what it watches and when it fires.
class KRM_API CKRMCCommandTriggerData : public RecordOf<CKRMCCommandTriggerData> {
public:
    ~CKRMCCommandTriggerData() override;
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
    : public MessageOf<CKRMCGetDataMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDataMonitorList")> {
public:
    ~CKRMCGetDataMonitorListCmdAdaptDataSnd() override;
};

/// Answers with the items.
class KRM_API CKRMCGetDataMonitorListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetDataMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDataMonitorList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandFFDData> Data;          ///< the items that can be monitored
    CKRMList<unsigned char> m_uchA8SupportData;  ///< support data, the engine's to interpret; logged by its length only
};

/// StartDataMonitor asks to start data monitors and the oscilloscope beside them.
class KRM_API CKRMCStartDataMonitorCmdAdaptDataSnd
    : public MessageOf<CKRMCStartDataMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "StartDataMonitor")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandStartDataMonitorData> Data;
    CKRMList<CKRMCCommandOscInfo> m_cOscInfoList;  ///< oscilloscope channels; logged under the name Data too
    unsigned short m_ushOscTimeId = 0;             ///< the oscilloscope's time base
};

/// Answers which data monitors run.
class KRM_API CKRMCStartDataMonitorCmdAdaptDataRcv
    : public MessageOf<CKRMCStartDataMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "StartDataMonitor")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bDataMonitorEnable = false;
    CKRMList<CKRMCCommandDataMonitorIdData> Data;
};

/// GetDataMonitorValue asks for the current values of a data monitor.
class KRM_API CKRMCGetDataMonitorValueCmdAdaptDataSnd
    : public MessageOf<CKRMCGetDataMonitorValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDataMonitorValue")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushDataMonitorId = 0;
};

/// Answers with the values. They stay out of the log, which gets the base's lines only.
class KRM_API CKRMCGetDataMonitorValueCmdAdaptDataRcv
    : public MessageOf<CKRMCGetDataMonitorValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDataMonitorValue")> {
public:
    ~CKRMCGetDataMonitorValueCmdAdaptDataRcv() override;

    CKRMList<CKRMCCommandFFDData> Data;     ///< current values
    unsigned short m_ushValueReserved = 0;  ///< stored and copied, never logged
};

/// GetTriggerItem asks what the data monitor can be triggered by.
class KRM_API CKRMCGetTriggerItemCmdAdaptDataSnd
    : public MessageOf<CKRMCGetTriggerItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetTriggerItem")> {
public:
    ~CKRMCGetTriggerItemCmdAdaptDataSnd() override;
};

/// Answers with the trigger items.
class KRM_API CKRMCGetTriggerItemCmdAdaptDataRcv
    : public MessageOf<CKRMCGetTriggerItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetTriggerItem")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandTriggerData> m_cTriggerList;
};

/// GetDescription asks for a description.
class KRM_API CKRMCGetDescriptionCmdAdaptDataSnd
    : public MessageOf<CKRMCGetDescriptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDescription")> {
public:
    ~CKRMCGetDescriptionCmdAdaptDataSnd() override;
};

/// Answers with the text.
class KRM_API CKRMCGetDescriptionCmdAdaptDataRcv
    : public MessageOf<CKRMCGetDescriptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDescription")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMString m_strDescription;
};

/// GetDataMonitorError asks what went wrong in the data monitor.
class KRM_API CKRMCGetDataMonitorErrorCmdAdaptDataSnd
    : public MessageOf<CKRMCGetDataMonitorErrorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDataMonitorError")> {
public:
    ~CKRMCGetDataMonitorErrorCmdAdaptDataSnd() override;
};

/// Answers with the errors.
class KRM_API CKRMCGetDataMonitorErrorCmdAdaptDataRcv
    : public MessageOf<CKRMCGetDataMonitorErrorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDataMonitorError")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandDmErrorData> Data;
};

/// GetCurrentDataValue asks for the current values of these parameters, without a data monitor.
class KRM_API CKRMCGetCurrentDataValueCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCurrentDataValueCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCurrentDataValue")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<unsigned short> m_cPidIdList;  ///< parameter IDs (PIDs)
};

/// Answers with the values.
class KRM_API CKRMCGetCurrentDataValueCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCurrentDataValueCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCurrentDataValue")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandFFDData> Data;
};

/// GetHexModeInfo asks how memory addresses are shown.
class KRM_API CKRMCGetHexModeInfoCmdAdaptDataSnd
    : public MessageOf<CKRMCGetHexModeInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetHexModeInfo")> {
public:
    ~CKRMCGetHexModeInfoCmdAdaptDataSnd() override;
};

/// Answers with their width.
class KRM_API CKRMCGetHexModeInfoCmdAdaptDataRcv
    : public MessageOf<CKRMCGetHexModeInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetHexModeInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    krm_ulong m_ulAddressByte = 0;  ///< bytes of an address
};

/// GetDataMonitorReceiveInfo asks what the data monitor received.
class KRM_API CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd
    : public MessageOf<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDataMonitorReceiveInfo")> {
public:
    ~CKRMCGetDataMonitorReceiveInfoCmdAdaptDataSnd() override;
};

/// Answers with it.
class KRM_API CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv
    : public MessageOf<CKRMCGetDataMonitorReceiveInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetDataMonitorReceiveInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandDmReceiveData> m_cDmReceiveDataList;
};

/// GetUnitInfo asks for the lengths of the unit's diagnostic messages.
class KRM_API CKRMCGetUnitInfoCmdAdaptDataSnd
    : public MessageOf<CKRMCGetUnitInfoCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetUnitInfo")> {
public:
    ~CKRMCGetUnitInfoCmdAdaptDataSnd() override;
};

/// Answers with a record per message.
class KRM_API CKRMCGetUnitInfoCmdAdaptDataRcv
    : public MessageOf<CKRMCGetUnitInfoCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetUnitInfo")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandDiagMessage> Data;
};

#endif  // KRM_MESSAGES_DIAG_DATA_MONITOR_H_
