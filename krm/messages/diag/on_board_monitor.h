// Results of the on-board monitor.
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

    unsigned short m_ushId = 0;                   ///< test ID
    CKRMString m_strName;                         ///< test name
    krm_ulong m_ulDescriptionId = 0;              ///< words ID of the description
    CKRMString m_strDescription;                  ///< description
    CKRMString m_strScalingId;                    ///< scaling identifier
    krm_ulong m_ulUnitPhysId = 0;                 ///< words ID of the physical unit
    CKRMString m_strUnitPhys;                     ///< physical unit
    krm_ulong m_ulUnitId = 0;                     ///< words ID of the display unit
    CKRMString m_strUnit;                         ///< display unit
    unsigned char m_uchDataType = 0;              ///< data type of the value, as the converters take it
    unsigned char m_uchDecPntCount = 0;           ///< decimal places
    unsigned char m_uchUnitConvDecPntCount = 0;   ///< decimal places after unit conversion
    CKRMCCommandConversionData m_cConversionTbl;  ///< conversion of the value
    CKRMCCommandDispData m_cTestValData;          ///< test value
    CKRMCCommandDispData m_cTestMinData;          ///< lower limit
    CKRMCCommandDispData m_cTestMaxData;          ///< upper limit
    bool m_bResult = false;                       ///< the test was passed
};
extern template class CKRMList<CKRMCCommandOnBoardMonitorInfo>;

/// OnBoardMonitor asks for the test results of on-board monitors.
class KRM_API CKRMCOnBoardMonitorCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCOnBoardMonitorCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "OnBoardMonitor"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<unsigned char> m_uchMIDList;  ///< monitor IDs (MID) to run
};

/// Answers with the results.
class KRM_API CKRMCOnBoardMonitorCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCOnBoardMonitorCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "OnBoardMonitor"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<CKRMCCommandOnBoardMonitorInfo> Data;  ///< results
};

/// OnBoardMonitorList asks which on-board monitors an ECU has.
class KRM_API CKRMCOnBoardMonitorListCmdAdaptDataSnd
    : public krm::MessageOf<CKRMCOnBoardMonitorListCmdAdaptDataSnd, CKRMCBaseCmdAdaptDataSnd, "OnBoardMonitorList"> {};

/// Answers with the monitors.
class KRM_API CKRMCOnBoardMonitorListCmdAdaptDataRcv
    : public krm::MessageOf<CKRMCOnBoardMonitorListCmdAdaptDataRcv, CKRMCBaseCmdAdaptDataRcv, "OnBoardMonitorList"> {
public:
    void Dump(const krm::MessageLines& line);

    CKRMList<unsigned char> m_uchMIDList;  ///< supported monitor IDs (MID)
};

#endif  // KRM_MESSAGES_DIAG_ON_BOARD_MONITOR_H_
