// The fields of the classes of krm/messages/diag/oscilloscope.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_OSCILLOSCOPE_H_
#define KRM_FIELDS_DIAG_OSCILLOSCOPE_H_

#include "krm/fields/diag/display.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/oscilloscope.h"

template <>
struct krm::Fields<CKRMCCommandOscData>
    : krm::FieldList<&CKRMCCommandOscData::m_ulVolId, &CKRMCCommandOscData::m_ulUnitPhysId,
                     &CKRMCCommandOscData::m_strUnitPhys, &CKRMCCommandOscData::m_ulUnitId,
                     &CKRMCCommandOscData::m_strUnit, &CKRMCCommandOscData::m_ulOscReserved,
                     &CKRMCCommandOscData::m_uchDataType, &CKRMCCommandOscData::m_uchDecPntCount,
                     &CKRMCCommandOscData::m_uchUnitConvDecPntCount, &CKRMCCommandOscData::m_cConversionTbl,
                     &CKRMCCommandOscData::m_cResolutionData> {};

template <>
struct krm::Fields<CKRMCCommandOscTimeInfo>
    : krm::FieldList<&CKRMCCommandOscTimeInfo::m_ushTimeId, &CKRMCCommandOscTimeInfo::m_ulSamplingHz,
                     &CKRMCCommandOscTimeInfo::m_ulRecordTime, &CKRMCCommandOscTimeInfo::m_bSyncFlag> {};

template <>
struct krm::Fields<CKRMCGetOscilloscopeListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetOscilloscopeListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetOscilloscopeListCmdAdaptDataRcv::m_ushChList,
                     &CKRMCGetOscilloscopeListCmdAdaptDataRcv::m_cVolList,
                     &CKRMCGetOscilloscopeListCmdAdaptDataRcv::m_cTimeList> {};

#endif  // KRM_FIELDS_DIAG_OSCILLOSCOPE_H_
