// The on-board monitor: which monitors an ECU has, and the results of their tests.
#ifndef KRM_MESSAGES_DIAG_ON_BOARD_MONITOR_H_
#define KRM_MESSAGES_DIAG_ON_BOARD_MONITOR_H_

#include "krm/core/list.h"
#include "krm/core/types.h"
#include "krm/framework/message.h"
#include "krm/framework/record.h"
#include "krm/messages/diag/display.h"
#include "krm/platform/platform.h"

/// One test result of the on-board monitor, with the limits that it was held against.
class KRM_API CKRMCCommandOnBoardMonitorInfo : public krm::RecordOf<CKRMCCommandOnBoardMonitorInfo> {
public:
    void Dump(const krm::RecordLines& line);

    unsigned short m_ushId = 0;                   ///< test ID; the IDs are the engine's
    CKRMString m_strName;                         ///< text of the test's name
    krm_ulong m_ulDescriptionId = 0;              ///< words ID of the description
    CKRMString m_strDescription;                  ///< text of the description
    CKRMString m_strScalingId;                    ///< identifier of the scaling
    krm_ulong m_ulUnitPhysId = 0;                 ///< words ID of the physical unit
    CKRMString m_strUnitPhys;                     ///< text of the physical unit
    krm_ulong m_ulUnitId = 0;                     ///< words ID of the display unit
    CKRMString m_strUnit;                         ///< text of the display unit
    unsigned char m_uchDataType = 0;              ///< type of the value, as CreateConverter takes it
    unsigned char m_uchDecPntCount = 0;           ///< decimal places of the physical value
    unsigned char m_uchUnitConvDecPntCount = 0;   ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;  ///< conversion of the values
    CKRMCCommandDispData m_cTestValData;          ///< value that the test gave
    CKRMCCommandDispData m_cTestMinData;          ///< lower limit of the test
    CKRMCCommandDispData m_cTestMaxData;          ///< upper limit of the test
    bool m_bResult = false;                       ///< the test was passed
};
extern template class CKRMList<CKRMCCommandOnBoardMonitorInfo>;

/// OnBoardMonitor asks for the test results of on-board monitors.
class KRM_API CKRMCOnBoardMonitorCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCOnBoardMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "OnBoardMonitor"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<unsigned char> m_uchMIDList;  ///< monitor IDs (MIDs) to run
};

/// Answers OnBoardMonitor with the results.
class KRM_API CKRMCOnBoardMonitorCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCOnBoardMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "OnBoardMonitor"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandOnBoardMonitorInfo> Data;  ///< results, each with its limits
};

/// OnBoardMonitorList asks for the on-board monitors that an ECU has.
class KRM_API CKRMCOnBoardMonitorListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCOnBoardMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "OnBoardMonitorList"> {};

/// Answers OnBoardMonitorList with the monitors.
class KRM_API CKRMCOnBoardMonitorListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCOnBoardMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "OnBoardMonitorList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<unsigned char> m_uchMIDList;  ///< supported monitor IDs (MIDs)
};

#endif  // KRM_MESSAGES_DIAG_ON_BOARD_MONITOR_H_
