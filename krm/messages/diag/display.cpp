#include "krm/messages/diag/display.h"

#include "krm/framework/dump.h"

template class CKRMList<CKRMCCommandDataLayout>;
template class CKRMList<CKRMCCommandDispData>;
template class CKRMList<CKRMCCommandDispVariableData>;
template class CKRMList<CKRMCCommandConversionData>;

void CKRMCCommandDataLayout::Dump(const krm::RecordLines& line) {
    line("%s.m_ulPidNo=0x%X", m_ulPidNo);
    line("%s.m_ulDataLen=%u", m_ulDataLen);
    line("%s.m_uchEndian=%u", m_uchEndian);
    line("%s.m_ulByteNum=%u", m_ulByteNum);
    line("%s.m_ulBytePos=%u", m_ulBytePos);
    line("%s.m_ulBitMask=0x%08X", m_ulBitMask);
}

void CKRMCCommandDispData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulDataStringId=%d", m_ulDataStringId);
    line("%s.m_strDataPhys=%s", m_strDataPhys);
    line("%s.m_strData=%s", m_strData);
    line("%s.m_dDataPhys=%lf", m_dDataPhys);
    line("%s.m_dData=%lf", m_dData);
    line("%s.m_ulRawData=%d", m_ulRawData);
    line("%s.m_chIndex=%d", m_chIndex);
    line("%s.m_lIndex=%d", m_lIndex);
    line("%s.m_ulDispDataType=%d", m_ulDispDataType);
}

void CKRMCCommandDispVariableData::Dump(const krm::RecordLines& line) {
    line("%s.m_ulDataStringId=%d", m_ulDataStringId);
    line("%s.m_strDataPhys=%s", m_strDataPhys);
    line("%s.m_strData=%s", m_strData);
    line("%s.m_dDataPhys=%lf", m_dDataPhys);
    line("%s.m_dData=%lf", m_dData);
    line("[%s].m_uchRawDataList[%d]=%02X", m_uchRawDataList);
    line("%s.m_chIndex=%d", m_chIndex);
    line("%s.m_ulDispDataType=%d", m_ulDispDataType);
}

void CKRMCCommandConversionData::Dump(const krm::RecordLines& line) {
    line("%s.m_lMul=%d", m_lMul);
    line("%s.m_lDiv=%d", m_lDiv);
    line("%s.m_lOffset=%d", m_lOffset);
    line("%s.m_ushGenreId=%d", m_ushGenreId);
    line("%s.m_uchSigned=%d", m_uchSigned);
    line("%s.m_ushBitLength=%d", m_ushBitLength);
    line("%s.m_strDefaultPattern=%s", m_strDefaultPattern);
    line("%s.m_cDataMax", m_cDataMax);
    line("%s.m_cDataMin", m_cDataMin);
    line("%s.m_cGraphMax", m_cGraphMax);
    line("%s.m_cGraphMin", m_cGraphMin);
    line("%s.m_cPatternDispList[%d]", m_cPatternDispList);
}
