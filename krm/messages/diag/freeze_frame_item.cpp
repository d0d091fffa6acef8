#include "krm/messages/diag/freeze_frame_item.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandFFDData>;

void CKRMCCommandFFDData::Dump(const krm::RecordLines& line) {
    line("%s.m_ushId=%d", m_ushId);
    line("%s.m_ulNameId=%d", m_ulNameId);
    line("%s.m_strName=%s", m_strName);
    line("%s.m_ulUnitPhysId=%d", m_ulUnitPhysId);
    line("%s.m_strUnitPhys=%s", m_strUnitPhys);
    line("%s.m_ulUnitId=%d", m_ulUnitId);
    line("%s.m_strUnit=%s", m_strUnit);
    line("%s.m_uchDataType=%d", m_uchDataType);
    line("%s.m_uchDecPntCount=%d", m_uchDecPntCount);
    line("%s.m_uchUnitConvDecPntCount=%d", m_uchUnitConvDecPntCount);
    line("%s.m_cConversionTbl", m_cConversionTbl);
    line("%s.m_cResolutionData", m_cResolutionData);
    line("%s.m_cDispDataList[%d]", m_cDispDataList);
    line("%s.m_cDataLayout", m_cDataLayout);
}
