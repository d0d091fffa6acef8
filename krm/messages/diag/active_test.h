// Active tests, which drive actuators of an ECU. Records come first, then the messages by command ID.
#ifndef KRM_MESSAGES_DIAG_ACTIVE_TEST_H_
#define KRM_MESSAGES_DIAG_ACTIVE_TEST_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

/// A button of an active test: its caption, and the raw values that pressing and releasing it send. Also carries
/// the texts of routine statuses and pattern results.
class KRM_API CKRMCCommandButtonData : public krm::RecordOf<CKRMCCommandButtonData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulSpecialDriveType = 0;  ///< kind of special drive; the codes are the engine's
    krm_ulong m_ulCaptionId = 0;         ///< words ID of the caption
    CKRMString m_strCaption;             ///< text of the caption
    krm_ulong m_ulPressRawData = 0;      ///< raw value sent while pressed
    krm_ulong m_ulReleaseRawData = 0;    ///< raw value sent on release
    unsigned char m_uchInvalidFlag = 0;  ///< not 0: the button can't be used
};
extern template class CKRMList<CKRMCCommandButtonData>;

/// A button of an active test whose raw values are byte strings. Also carries how button patterns are shown.
class KRM_API CKRMCCommandButtonVariableData : public krm::RecordOf<CKRMCCommandButtonVariableData> {
public:
    void Dump(const krm::RecordLines& line);

    krm_ulong m_ulSpecialDriveType = 0;               ///< kind of special drive; the codes are the engine's
    krm_ulong m_ulCaptionId = 0;                      ///< words ID of the caption
    CKRMString m_strCaption;                          ///< text of the caption
    CKRMList<unsigned char> m_uchPressRawDataList;    ///< raw bytes sent while pressed
    CKRMList<unsigned char> m_uchReleaseRawDataList;  ///< raw bytes sent on release
    unsigned char m_uchInvalidFlag = 0;               ///< not 0: the button can't be used
};
extern template class CKRMList<CKRMCCommandButtonVariableData>;

/// One active test: what it is called, how its keys behave, and the values or buttons that drive it.
class KRM_API CKRMCCommandActiveTestData : public krm::RecordOf<CKRMCCommandActiveTestData> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushId = 0;                   ///< active test ID, as requests carry it
    unsigned short m_ushRoutineActSpecId = 0;     ///< ID of the routine's activation specification
    krm_ulong m_ulNameId = 0;                     ///< words ID of the test's name
    CKRMString m_strName;                         ///< text of the test's name
    CKRMString m_strActiveTestText;               ///< second text; stored, copied and cleared only; not logged
    krm_ulong m_ulUnitPhysId = 0;                 ///< words ID of the physical unit
    CKRMString m_strUnitPhys;                     ///< text of the physical unit
    krm_ulong m_ulUnitId = 0;                     ///< words ID of the display unit
    CKRMString m_strUnit;                         ///< text of the display unit
    unsigned char m_uchButtonSize = 0;            ///< size of the buttons; the codes are the engine's
    unsigned char m_uchKeyOperationType = 0;      ///< how keys drive the test; the codes are the engine's
    krm_ulong m_ulMaintenanceTime = 0;            ///< how long the drive is maintained; its unit is the engine's
    krm_ulong m_ulAutoContinuTime = 0;            ///< how long the drive goes on by itself; its unit is the engine's
    krm_ulong m_ulLockTime = 0;                   ///< how long keys are locked; its unit is the engine's
    unsigned char m_uchKeyInvalidFlag = 0;        ///< not 0: keys are disabled
    krm_ulong m_ulHelpId = 0;                     ///< ID of the test's help
    krm_ulong m_ulProhibitionId = 0;              ///< ID of the prohibition text
    krm_ulong m_ulInfoId = 0;                     ///< ID of the information text
    krm_ulong m_ulCautionId = 0;                  ///< ID of the caution text
    krm_ulong m_ulCommentId = 0;                  ///< ID of the comment text
    CKRMCCommandDispData m_cInitialData;          ///< value to begin with
    CKRMCCommandDispData m_cResolutionData;       ///< smallest step, as a display value
    unsigned char m_uchDataType = 0;              ///< type of the value, as CreateConverter takes it
    unsigned char m_uchDecPntCount = 0;           ///< decimal places of the physical value
    unsigned char m_uchUnitConvDecPntCount = 0;   ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;  ///< conversion of the value
    CKRMList<CKRMCCommandButtonData> m_cButtonDataList;  ///< buttons with raw values of up to 32 bits
    krm_ulong m_ulStep = 0;                              ///< step of a linear drive; its unit is the engine's
    CKRMCCommandConversionData m_cLinearDriveTable;      ///< conversion of the values of a linear drive
    CKRMList<CKRMCCommandButtonVariableData> m_cButtonDataVariableList;     ///< buttons with byte strings as raw values
    unsigned char m_uchCurValPidIdSupport = 0;                              ///< not 0: the current value has a PID
    unsigned short m_ushCurValPidId = 0;                                    ///< PID of the current value
    bool m_bOutputRidData = false;                                          ///< the routine's data is output
    CKRMList<CKRMCCommandButtonVariableData> m_cButtonPatternDispInfoList;  ///< how button patterns are shown
    CKRMList<CKRMCCommandButtonData> m_cNormalRoutineStatusInfoList;        ///< texts of normal routine statuses
    CKRMList<CKRMCCommandButtonData> m_cAbnormalRoutineStatusInfoList;      ///< texts of abnormal routine statuses
    CKRMList<CKRMCCommandButtonData> m_cPatternResultDispInfoList;          ///< how pattern results are shown
    unsigned short m_ushReferencePattern = 0;  ///< pattern to refer to; the numbers are the engine's
};
extern template class CKRMList<CKRMCCommandActiveTestData>;

/// A drive value of an active test. Has no dump: the message that holds it writes its fields.
class KRM_API CKRMCDrivingData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCDrivingData(); }

    unsigned char m_uchType = 0;  ///< kind of value; the codes are the engine's
    double m_dData = 0;           ///< physical value to drive with
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCDrivingData> = true;
extern template class CKRMList<CKRMCDrivingData>;

/// StartActiveTest asks to drive an actuator.
class KRM_API CKRMCStartActiveTestCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCStartActiveTestCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "StartActiveTest"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushId = 0;                               ///< ID of the active test to run
    CKRMList<CKRMCDrivingData> Data;                          ///< physical values to drive with
    CKRMList<unsigned char> m_uchLinearDriveValueList;        ///< raw bytes of a linear drive; logged in hexadecimal
    CKRMList<unsigned char> m_uchButtonPatternDispValueList;  ///< raw bytes of a button pattern; logged in hexadecimal
};

/// Answers StartActiveTest; has only what every answer has.
class KRM_API CKRMCStartActiveTestCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCStartActiveTestCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "StartActiveTest"> {};

/// GetActiveTestList asks for the active tests of an ECU.
class KRM_API CKRMCGetActiveTestListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCGetActiveTestListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "GetActiveTestList"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushId = 0;       ///< active test ID
    unsigned char m_uchDataType = 0;  ///< kind of data asked for; the codes are the engine's
};

/// Answers GetActiveTestList with the active tests.
class KRM_API CKRMCGetActiveTestListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCGetActiveTestListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "GetActiveTestList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandActiveTestData> Data;  ///< active tests
};

/// CheckActiveTestAssumption asks whether the conditions of an active test are met.
class KRM_API CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCCheckActiveTestAssumptionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "CheckActiveTestAssumption"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushId = 0;  ///< ID of the active test to check
};

/// Answers CheckActiveTestAssumption with whether the test may run, and a help.
class KRM_API CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCCheckActiveTestAssumptionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "CheckActiveTestAssumption"> {
public:
    void Dump(const krm::MessageLines& line);

    bool m_bActiveTestEnable = false;  ///< the test may run
    krm_ulong m_ulHelpId = 0;          ///< ID of the help that explains the answer
};

/// SetActiveTestSession asks to change the session for an active test.
class KRM_API CKRMCSetActiveTestSessionCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCSetActiveTestSessionCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd,
                            "SetActiveTestSession"> {
public:
    void Dump(const krm::MessageLines& line);

    unsigned short m_ushId = 0;          ///< ID of the active test
    unsigned char m_uchSessionMode = 0;  ///< session to change to; the codes are the engine's
};

/// Answers SetActiveTestSession; has only what every answer has.
class KRM_API CKRMCSetActiveTestSessionCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCSetActiveTestSessionCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv,
                            "SetActiveTestSession"> {};

#endif  // KRM_MESSAGES_DIAG_ACTIVE_TEST_H_
