// The fields of the classes of krm/messages/diag/freeze_frame_item.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_FREEZE_FRAME_ITEM_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_FREEZE_FRAME_ITEM_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/freeze_frame_item.h"
#include "tests/messages/diag/display_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandFFDData& it) {
    return std::tie(it.m_ushId, it.m_ulNameId, it.m_strName, it.m_strFFDText, it.m_ulUnitPhysId, it.m_strUnitPhys,
                    it.m_ulUnitId, it.m_strUnit, it.m_ulFFDReserved, it.m_uchDataType, it.m_uchDecPntCount,
                    it.m_uchUnitConvDecPntCount, it.m_cConversionTbl, it.m_cResolutionData, it.m_cDispDataList,
                    it.m_cDataLayout);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_FREEZE_FRAME_ITEM_FIELDS_H_
