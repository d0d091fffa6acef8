// The fields of the classes of krm/messages/diag/on_board_monitor.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_ON_BOARD_MONITOR_H_
#define KRM_FIELDS_DIAG_ON_BOARD_MONITOR_H_

#include "krm/fields/diag/display.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/on_board_monitor.h"

template <>
struct krm::Fields<CKRMCCommandOnBoardMonitorInfo>
    : krm::FieldList<&CKRMCCommandOnBoardMonitorInfo::m_ushId, &CKRMCCommandOnBoardMonitorInfo::m_strName,
                     &CKRMCCommandOnBoardMonitorInfo::m_ulDescriptionId,
                     &CKRMCCommandOnBoardMonitorInfo::m_strDescription, &CKRMCCommandOnBoardMonitorInfo::m_strScalingId,
                     &CKRMCCommandOnBoardMonitorInfo::m_ulUnitPhysId, &CKRMCCommandOnBoardMonitorInfo::m_strUnitPhys,
                     &CKRMCCommandOnBoardMonitorInfo::m_ulUnitId, &CKRMCCommandOnBoardMonitorInfo::m_strUnit,
                     &CKRMCCommandOnBoardMonitorInfo::m_uchDataType, &CKRMCCommandOnBoardMonitorInfo::m_uchDecPntCount,
                     &CKRMCCommandOnBoardMonitorInfo::m_uchUnitConvDecPntCount,
                     &CKRMCCommandOnBoardMonitorInfo::m_cConversionTbl, &CKRMCCommandOnBoardMonitorInfo::m_cTestValData,
                     &CKRMCCommandOnBoardMonitorInfo::m_cTestMinData, &CKRMCCommandOnBoardMonitorInfo::m_cTestMaxData,
                     &CKRMCCommandOnBoardMonitorInfo::m_bResult> {};

template <>
struct krm::Fields<CKRMCOnBoardMonitorCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCOnBoardMonitorCmdAdaptDataSnd::m_uchMIDList> {};

template <>
struct krm::Fields<CKRMCOnBoardMonitorCmdAdaptDataRcv> : krm::FieldList<&CKRMCOnBoardMonitorCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCOnBoardMonitorListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCOnBoardMonitorListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCOnBoardMonitorListCmdAdaptDataRcv::m_uchMIDList> {};

#endif  // KRM_FIELDS_DIAG_ON_BOARD_MONITOR_H_
