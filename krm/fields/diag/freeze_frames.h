// The fields of the classes of krm/messages/diag/freeze_frames.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_FREEZE_FRAMES_H_
#define KRM_FIELDS_DIAG_FREEZE_FRAMES_H_

#include "krm/fields/diag/freeze_frame_item.h"
#include "krm/fields/fields.h"
#include "krm/messages/diag/freeze_frames.h"

template <>
struct krm::Fields<CKRMCCommandAbsFFDData>
    : krm::FieldList<&CKRMCCommandAbsFFDData::m_ulSystemId, &CKRMCCommandAbsFFDData::m_strSystem,
                     &CKRMCCommandAbsFFDData::m_uchFFDId, &CKRMCCommandAbsFFDData::m_uchIndex> {};

template <>
struct krm::Fields<CKRMCAbsoluteTimeInfo>
    : krm::FieldList<&CKRMCAbsoluteTimeInfo::m_cTripTime, &CKRMCAbsoluteTimeInfo::m_cInternalClock,
                     &CKRMCAbsoluteTimeInfo::m_cGPSTimeYear, &CKRMCAbsoluteTimeInfo::m_cGPSTimeMonth,
                     &CKRMCAbsoluteTimeInfo::m_cGPSTimeDay, &CKRMCAbsoluteTimeInfo::m_cGPSTimeHour,
                     &CKRMCAbsoluteTimeInfo::m_cGPSTimeMinute, &CKRMCAbsoluteTimeInfo::m_cGPSTimeSecond,
                     &CKRMCAbsoluteTimeInfo::m_cTimeDifferenceSign, &CKRMCAbsoluteTimeInfo::m_cTimeDifferenceHour,
                     &CKRMCAbsoluteTimeInfo::m_cTimeDifferenceMinute, &CKRMCAbsoluteTimeInfo::m_cDST> {};

template <>
struct krm::Fields<CKRMCEcuSpecificInfo>
    : krm::FieldList<&CKRMCEcuSpecificInfo::m_ulEcuId, &CKRMCEcuSpecificInfo::m_ushBusId> {};

template <>
struct krm::Fields<CKRMCGetFFDCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetFFDCmdAdaptDataSnd::m_uchFFDId, &CKRMCGetFFDCmdAdaptDataSnd::m_uchSSRNoList,
                     &CKRMCGetFFDCmdAdaptDataSnd::m_uchSDRNoList, &CKRMCGetFFDCmdAdaptDataSnd::m_ulDTC,
                     &CKRMCGetFFDCmdAdaptDataSnd::m_cPidId, &CKRMCGetFFDCmdAdaptDataSnd::m_uchSubFunction,
                     &CKRMCGetFFDCmdAdaptDataSnd::m_uchDTCType> {};

template <>
struct krm::Fields<CKRMCGetFFDCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetFFDCmdAdaptDataRcv::m_bMultiFFD, &CKRMCGetFFDCmdAdaptDataRcv::m_chBegin,
                     &CKRMCGetFFDCmdAdaptDataRcv::m_lBegin, &CKRMCGetFFDCmdAdaptDataRcv::m_chEnd,
                     &CKRMCGetFFDCmdAdaptDataRcv::m_lEnd, &CKRMCGetFFDCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCIsMultiFFDCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCIsMultiFFDCmdAdaptDataSnd::m_uchPhaseType, &CKRMCIsMultiFFDCmdAdaptDataSnd::m_uchFFDId,
                     &CKRMCIsMultiFFDCmdAdaptDataSnd::m_uchSSRNoList, &CKRMCIsMultiFFDCmdAdaptDataSnd::m_uchSDRNoList,
                     &CKRMCIsMultiFFDCmdAdaptDataSnd::m_ulDTC> {};

template <>
struct krm::Fields<CKRMCIsMultiFFDCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCIsMultiFFDCmdAdaptDataRcv::m_bMultiFFD, &CKRMCIsMultiFFDCmdAdaptDataRcv::m_chFFDType> {};

template <>
struct krm::Fields<CKRMCIsAbsFFDCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCIsAbsFFDCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCIsAbsFFDCmdAdaptDataRcv::m_uchType, &CKRMCIsAbsFFDCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetCurrentTimeInfoCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetCurrentTimeInfoCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::m_bSupport,
                     &CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::m_bTripTime,
                     &CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::m_bFailTripTime,
                     &CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::m_cTripTime,
                     &CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::m_bAfterIgOnTime,
                     &CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::m_bFailAfterIgOnTime,
                     &CKRMCGetCurrentTimeInfoCmdAdaptDataRcv::m_cAfterIgOnTime> {};

template <>
struct krm::Fields<CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::m_cTargetEcuList,
                     &CKRMCGetAbsoluteTimeInfoCmdAdaptDataSnd::m_cTripTimeList> {};

template <>
struct krm::Fields<CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::m_cCommEcuList,
                     &CKRMCGetAbsoluteTimeInfoCmdAdaptDataRcv::m_cAbsoluteTimeInfoList> {};

#endif  // KRM_FIELDS_DIAG_FREEZE_FRAMES_H_
