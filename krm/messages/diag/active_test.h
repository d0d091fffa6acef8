// Active tests, which drive actuators of an ECU; the utility functions and user lists that an application offers; special
// function keys; special operation control records; and the writing of single items.
//
// Records first, then the messages by command ID.
#ifndef KRM_MESSAGES_DIAG_ACTIVE_TEST_H_
#define KRM_MESSAGES_DIAG_ACTIVE_TEST_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/messages/diag/oscilloscope_memory.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/platform.h"

/// A button of an active test: its caption, and the raw values that pressing and releasing it send. Also used for the
/// texts of routine statuses and pattern results.
class KRM_API CKRMCCommandButtonData : public RecordOf<CKRMCCommandButtonData> {
public:
    ~CKRMCCommandButtonData() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulSpecialDriveType = 0;  ///< kind of special drive; the codes are the engine's
    krm_ulong m_ulCaptionId = 0;         ///< words ID of the caption
    CKRMString m_strCaption;             ///< caption
    krm_ulong m_ulPressRawData = 0;      ///< raw value sent while pressed
    krm_ulong m_ulReleaseRawData = 0;    ///< raw value sent on release
    unsigned char m_uchInvalidFlag = 0;  ///< not 0: the button can't be used
};
extern template class CKRMList<CKRMCCommandButtonData>;

/// A button of an active test whose raw values are strings of bytes. Also used for button patterns.
class KRM_API CKRMCCommandButtonVariableData : public RecordOf<CKRMCCommandButtonVariableData> {
public:
    ~CKRMCCommandButtonVariableData() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulSpecialDriveType = 0;               ///< kind of special drive; the codes are the engine's
    krm_ulong m_ulCaptionId = 0;                      ///< words ID of the caption
    CKRMString m_strCaption;                          ///< caption
    CKRMList<unsigned char> m_uchPressRawDataList;    ///< raw bytes sent while pressed
    CKRMList<unsigned char> m_uchReleaseRawDataList;  ///< raw bytes sent on release
    unsigned char m_uchInvalidFlag = 0;               ///< not 0: the button can't be used
};
extern template class CKRMList<CKRMCCommandButtonVariableData>;

/// One active test: what it is called, how its keys behave, and the values or buttons that drive it.
class KRM_API CKRMCCommandActiveTestData : public RecordOf<CKRMCCommandActiveTestData> {
public:
    ~CKRMCCommandActiveTestData() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushId = 0;                          ///< active test ID
    unsigned short m_ushRoutineActSpecId = 0;            ///< ID of the routine's activation specification
    krm_ulong m_ulNameId = 0;                            ///< words ID of the name
    CKRMString m_strName;                                ///< name
    CKRMString m_strActiveTestText;                      ///< second text; stored and copied, never logged
    krm_ulong m_ulUnitPhysId = 0;                        ///< words ID of the physical unit
    CKRMString m_strUnitPhys;                            ///< physical unit
    krm_ulong m_ulUnitId = 0;                            ///< words ID of the display unit
    CKRMString m_strUnit;                                ///< display unit
    unsigned char m_uchButtonSize = 0;                   ///< size of the buttons
    unsigned char m_uchKeyOperationType = 0;             ///< how keys drive the test; the codes are the engine's
    krm_ulong m_ulMaintenanceTime = 0;                   ///< how long the drive is kept up
    krm_ulong m_ulAutoContinuTime = 0;                   ///< how long the drive goes on by itself
    krm_ulong m_ulLockTime = 0;                          ///< how long keys are locked
    unsigned char m_uchKeyInvalidFlag = 0;               ///< not 0: keys are disabled
    krm_ulong m_ulHelpId = 0;                            ///< help ID
    krm_ulong m_ulProhibitionId = 0;                     ///< words ID of the prohibition text
    krm_ulong m_ulInfoId = 0;                            ///< words ID of the information text
    krm_ulong m_ulCautionId = 0;                         ///< words ID of the caution text
    krm_ulong m_ulCommentId = 0;                         ///< words ID of the comment text
    CKRMCCommandDispData m_cInitialData;                 ///< initial value
    CKRMCCommandDispData m_cResolutionData;              ///< resolution
    unsigned char m_uchDataType = 0;                     ///< data type of the value, as the converters take it
    unsigned char m_uchDecPntCount = 0;                  ///< decimal places
    unsigned char m_uchUnitConvDecPntCount = 0;          ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;         ///< conversion of the value
    CKRMList<CKRMCCommandButtonData> m_cButtonDataList;  ///< buttons
    krm_ulong m_ulStep = 0;                              ///< step of a linear drive
    CKRMCCommandConversionData m_cLinearDriveTable;      ///< conversion of a linear drive
    CKRMList<CKRMCCommandButtonVariableData> m_cButtonDataVariableList;     ///< buttons with strings of bytes
    unsigned char m_uchCurValPidIdSupport = 0;                              ///< not 0: the current value has a PID
    unsigned short m_ushCurValPidId = 0;                                    ///< PID of the current value
    bool m_bOutputRidData = false;                                          ///< the routine puts out data
    CKRMList<CKRMCCommandButtonVariableData> m_cButtonPatternDispInfoList;  ///< how button patterns are shown
    CKRMList<CKRMCCommandButtonData> m_cNormalRoutineStatusInfoList;        ///< texts for normal routine statuses
    CKRMList<CKRMCCommandButtonData> m_cAbnormalRoutineStatusInfoList;      ///< texts for abnormal routine statuses
    CKRMList<CKRMCCommandButtonData> m_cPatternResultDispInfoList;          ///< how pattern results are shown
    unsigned short m_ushReferencePattern = 0;                               ///< reference pattern
};
extern template class CKRMList<CKRMCCommandActiveTestData>;

/// One utility function, with the communication parameters of the ECU that it runs on, so that the engine can open the
/// session for it.
class KRM_API CKRMCCommandUtilityData : public RecordOf<CKRMCCommandUtilityData> {
public:
    ~CKRMCCommandUtilityData() override;
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulFunctionNameId = 0;           ///< words ID of the function's name
    CKRMString m_strFunctionName;               ///< the function's name
    unsigned short m_ushFunctionId = 0;         ///< function ID
    unsigned short m_ushPhaseType = 0;          ///< phase of the ECU; the codes are the engine's
    krm_ulong m_ulEcuId = 0;                    ///< ECU identifier
    unsigned short m_ushBusId = 0;              ///< bus identifier
    krm_ulong m_ulHelpId = 0;                   ///< help ID
    krm_ulong m_ulBaudrate = 0;                 ///< baud rate
    unsigned short m_ushP2Max = 0;              ///< timing value P2max
    krm_ulong m_ulFcCode = 0;                   ///< FC code
    krm_ulong m_ulPhysAddr = 0;                 ///< physical address
    krm_ulong m_ul5bpsAddr = 0;                 ///< address of the 5-baud initialisation
    krm_ulong m_ulFuncAddr = 0;                 ///< functional address
    krm_ulong m_ulNTA = 0;                      ///< network target address
    krm_ulong m_ulToolAddr = 0;                 ///< address of the tool
    unsigned char m_uchSecurityTargetFlag = 0;  ///< not 0: the function is subject to security
    krm_ulong m_ulSpecialFunctionKey = 0;       ///< special function key
    krm_ulong m_ulLegislatedAddr = 0;           ///< legislated address
    krm_ulong m_ulP3Min = 0;                    ///< timing value P3min
    krm_ulong m_ulStminTx = 0;                  ///< timing value STmin when sending
    krm_ulong m_ulNBrMin = 0;                   ///< timing value N_Br min
    krm_ulong m_ulCanP3Min = 0;                 ///< timing value P3min on CAN
};
extern template class CKRMList<CKRMCCommandUtilityData>;

/// A special function key and the function that it belongs to.
class KRM_API CKRMCCommandSpecialFunctionKeyInfo : public RecordOf<CKRMCCommandSpecialFunctionKeyInfo> {
public:
    ~CKRMCCommandSpecialFunctionKeyInfo() override;
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushScreenId = 0;          ///< screen that the key belongs to
    unsigned short m_ushFunctionId = 0;        ///< function ID
    unsigned short m_ushFunctionDetailId = 0;  ///< part of the function
    krm_ulong m_ulKeycode = 0;                 ///< key code
    CKRMString m_strKeyText;                   ///< text of the key; stored and copied, never logged
    krm_ulong m_ulCompareOptions = 0;          ///< how the key is compared; the codes are the engine's
};
extern template class CKRMList<CKRMCCommandSpecialFunctionKeyInfo>;

/// One list that a user has put together.
class KRM_API CKRMCCommandCustomListData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCCommandCustomListData(); }

    CKRMString m_strFileName;                ///< file that holds the list
    CKRMString m_strName;                    ///< name of the list
    unsigned short m_ushDataType = 0;        ///< kind of data that it lists
    unsigned short m_ushSortIndex = 0;       ///< place among the lists
    unsigned char m_uchInitialDispFlag = 0;  ///< not 0: displayed initially
};
extern template class CKRMList<CKRMCCommandCustomListData>;

/// A group of special operation control records.
class KRM_API CKRMCSpGroup {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCSpGroup(); }

    unsigned short m_ushGroupId = 0;  ///< group ID
    krm_ulong m_ulGroupNameId = 0;    ///< words ID of the group's name
    CKRMString m_strGroupName;        ///< the group's name
};
extern template class CKRMList<CKRMCSpGroup>;

/// One drive value of an active test.
class KRM_API CKRMCDrivingData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCDrivingData(); }

    unsigned char m_uchType = 0;  ///< kind of value; the codes are the engine's
    double m_dData = 0;           ///< the value
};
extern template class CKRMList<CKRMCDrivingData>;

/// GetUtilityList asks for the utility functions.
class KRM_API CKRMCGetUtilityListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetUtilityListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetUtilityList")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned char m_uchConnectLevel = 0;            ///< level of the connection; the codes are the engine's
    krm_ulong m_ulSecurityLevel = 0;                ///< security level; the codes are the engine's
    CKRMList<krm_ulong> m_cSpecialFunctionKeyList;  ///< special function keys; logged under the name Data
};

/// Answers with the utility functions and the parameters of the J2534 interface for them.
class KRM_API CKRMCGetUtilityListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetUtilityListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetUtilityList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandUtilityData> Data;                ///< utility functions
    CKRMList<CKRMCCommandJ2534Config> m_cJ2534ConfigList;  ///< J2534 parameters; logged under the name Data too
};

/// GetCustomList asks for the lists that the user has put together.
class KRM_API CKRMCGetCustomListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetCustomListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCustomList")> {
public:
    ~CKRMCGetCustomListCmdAdaptDataSnd() override;
};

/// Answers with the user's lists.
class KRM_API CKRMCGetCustomListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetCustomListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetCustomList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandCustomListData> Data;  ///< the lists
};

/// StartActiveTest asks to drive an actuator.
class KRM_API CKRMCStartActiveTestCmdAdaptDataSnd
    : public MessageOf<CKRMCStartActiveTestCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "StartActiveTest")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushId = 0;                               ///< active test ID
    CKRMList<CKRMCDrivingData> Data;                          ///< drive values
    CKRMList<unsigned char> m_uchLinearDriveValueList;        ///< raw bytes of a linear drive
    CKRMList<unsigned char> m_uchButtonPatternDispValueList;  ///< raw bytes of a button pattern
};

/// Answers that the active test was started; has only what every answer has.
class KRM_API CKRMCStartActiveTestCmdAdaptDataRcv
    : public MessageOf<CKRMCStartActiveTestCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "StartActiveTest")> {
public:
    ~CKRMCStartActiveTestCmdAdaptDataRcv() override;
};

/// GetActiveTestList asks for the active tests of an ECU.
class KRM_API CKRMCGetActiveTestListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetActiveTestListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetActiveTestList")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushId = 0;       ///< active test ID
    unsigned char m_uchDataType = 0;  ///< kind of data asked for; the codes are the engine's
};

/// Answers with the active tests.
class KRM_API CKRMCGetActiveTestListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetActiveTestListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetActiveTestList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandActiveTestData> Data;  ///< active tests
};

/// CheckActiveTestAssumption asks whether the conditions of an active test are met.
class KRM_API CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd
    : public MessageOf<CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "CheckActiveTestAssumption")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushId = 0;  ///< active test ID
};

/// Answers whether the active test may run.
class KRM_API CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv
    : public MessageOf<CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "CheckActiveTestAssumption")> {
public:
    krm_long ErrWriteOperationLog() override;

    bool m_bActiveTestEnable = false;  ///< the test may run
    krm_ulong m_ulHelpId = 0;          ///< help ID
};

/// SetActiveTestSession asks to change the session for an active test.
class KRM_API CKRMCSetActiveTestSessionCmdAdaptDataSnd
    : public MessageOf<CKRMCSetActiveTestSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SetActiveTestSession")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushId = 0;          ///< active test ID
    unsigned char m_uchSessionMode = 0;  ///< session to change to; the codes are the engine's
};

/// Answers that the session was changed; has only what every answer has.
class KRM_API CKRMCSetActiveTestSessionCmdAdaptDataRcv
    : public MessageOf<CKRMCSetActiveTestSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "SetActiveTestSession")> {
public:
    ~CKRMCSetActiveTestSessionCmdAdaptDataRcv() override;
};

/// GetSpOperateCtrlRecordGroup asks for the groups of special operation control records.
class KRM_API CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd
    : public MessageOf<CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetSpOperateCtrlRecordGroup")> {
public:
    ~CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataSnd() override;
};

/// Answers with the groups.
class KRM_API CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv
    : public MessageOf<CKRMCGetSpOperateCtrlRecordGroupCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetSpOperateCtrlRecordGroup")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCSpGroup> Data;  ///< groups
};

/// GetSpOperateCtrlRecord asks for the special operation control records of a group.
class KRM_API CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd
    : public MessageOf<CKRMCGetSpOperateCtrlRecordCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetSpOperateCtrlRecord")> {
public:
    krm_long ErrWriteOperationLog() override;

    unsigned short m_ushGroupId = 0;  ///< group ID
};

/// Answers with the records; each is a value like a freeze frame's.
class KRM_API CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv
    : public MessageOf<CKRMCGetSpOperateCtrlRecordCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetSpOperateCtrlRecord")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandFFDData> m_cSpOperateList;  ///< records
};

/// WriteDataItem asks to write single items of an ECU.
class KRM_API CKRMCWriteDataItemCmdAdaptDataSnd
    : public MessageOf<CKRMCWriteDataItemCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "WriteDataItem")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandWriteData> Data;  ///< items and their values
};

/// Answers that the items were written; has only what every answer has.
class KRM_API CKRMCWriteDataItemCmdAdaptDataRcv
    : public MessageOf<CKRMCWriteDataItemCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "WriteDataItem")> {
public:
    ~CKRMCWriteDataItemCmdAdaptDataRcv() override;
};

/// GetSpecialFunctionKeyList asks for the special function keys.
class KRM_API CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd
    : public MessageOf<CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetSpecialFunctionKeyList")> {
public:
    ~CKRMCGetSpecialFunctionKeyListCmdAdaptDataSnd() override;
};

/// Answers with the keys.
class KRM_API CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv
    : public MessageOf<CKRMCGetSpecialFunctionKeyListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                       krm::CommandId(krm::CommandFamily::Diagnostic, "GetSpecialFunctionKeyList")> {
public:
    krm_long ErrWriteOperationLog() override;

    CKRMList<CKRMCCommandSpecialFunctionKeyInfo> Data;  ///< keys
};

#endif  // KRM_MESSAGES_DIAG_ACTIVE_TEST_H_
