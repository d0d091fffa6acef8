// The fields of the classes of krm/messages/diag/freeze_frame_item.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_FREEZE_FRAME_ITEM_H_
#define KRM_FIELDS_DIAG_FREEZE_FRAME_ITEM_H_

#include "krm/fields/diag/display.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/freeze_frame_item.h"

template <>
struct krm::Fields<CKRMCCommandFFDData>
    : krm::FieldList<&CKRMCCommandFFDData::m_ushId, &CKRMCCommandFFDData::m_ulNameId, &CKRMCCommandFFDData::m_strName,
                     &CKRMCCommandFFDData::m_strFFDText, &CKRMCCommandFFDData::m_ulUnitPhysId,
                     &CKRMCCommandFFDData::m_strUnitPhys, &CKRMCCommandFFDData::m_ulUnitId,
                     &CKRMCCommandFFDData::m_strUnit, &CKRMCCommandFFDData::m_ulFFDReserved,
                     &CKRMCCommandFFDData::m_uchDataType, &CKRMCCommandFFDData::m_uchDecPntCount,
                     &CKRMCCommandFFDData::m_uchUnitConvDecPntCount, &CKRMCCommandFFDData::m_cConversionTbl,
                     &CKRMCCommandFFDData::m_cResolutionData, &CKRMCCommandFFDData::m_cDispDataList,
                     &CKRMCCommandFFDData::m_cDataLayout> {};

#endif  // KRM_FIELDS_DIAG_FREEZE_FRAME_ITEM_H_
