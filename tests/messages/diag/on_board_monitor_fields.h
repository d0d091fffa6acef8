// The fields of the classes of krm/messages/diag/on_board_monitor.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_ON_BOARD_MONITOR_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_ON_BOARD_MONITOR_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/on_board_monitor.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandOnBoardMonitorInfo& it) {
    return std::tie(it.m_ushId, it.m_strName, it.m_ulDescriptionId, it.m_strDescription, it.m_strScalingId,
                    it.m_ulUnitPhysId, it.m_strUnitPhys, it.m_ulUnitId, it.m_strUnit, it.m_uchDataType,
                    it.m_uchDecPntCount, it.m_uchUnitConvDecPntCount, it.m_cConversionTbl, it.m_cTestValData,
                    it.m_cTestMinData, it.m_cTestMaxData, it.m_bResult);
}

inline auto FieldsOf(CKRMCOnBoardMonitorCmdAdaptDataSnd& it) {
    return std::tie(it.m_uchMIDList);
}

inline auto FieldsOf(CKRMCOnBoardMonitorCmdAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCOnBoardMonitorListCmdAdaptDataSnd&) {
    return std::tie();
}

inline auto FieldsOf(CKRMCOnBoardMonitorListCmdAdaptDataRcv& it) {
    return std::tie(it.m_uchMIDList);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_ON_BOARD_MONITOR_FIELDS_H_
