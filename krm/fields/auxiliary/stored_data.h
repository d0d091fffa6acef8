// The fields of the classes of krm/messages/auxiliary/stored_data.h, in the order of their declaration.
#ifndef KRM_FIELDS_AUXILIARY_STORED_DATA_H_
#define KRM_FIELDS_AUXILIARY_STORED_DATA_H_

#include "krm/fields/diag/data_monitor.h"
#include "krm/fields/diag/freeze_frames.h"
#include "krm/fields/diag/trouble_codes.h"
#include "krm/fields/diag/vehicle.h"
#include "krm/fields/fields.h"
#include "krm/messages/auxiliary/stored_data.h"

template <>
struct krm::Fields<CKRMCStoredDataSystemTime> : krm::FieldList<&CKRMCStoredDataSystemTime::m_uchSystemTime> {};

template <>
struct krm::Fields<CKRMCStoredDataTimestamp>
    : krm::FieldList<&CKRMCStoredDataTimestamp::m_uchFirstStamp, &CKRMCStoredDataTimestamp::m_uchSecondStamp> {};

template <>
struct krm::Fields<CKRMCStoredDataFileHeader>
    : krm::FieldList<&CKRMCStoredDataFileHeader::m_ushFileType, &CKRMCStoredDataFileHeader::m_ushFileVersion,
                     &CKRMCStoredDataFileHeader::m_ulHeaderNumber1, &CKRMCStoredDataFileHeader::m_ulHeaderNumber2,
                     &CKRMCStoredDataFileHeader::m_ulHeaderNumber3, &CKRMCStoredDataFileHeader::m_ulHeaderNumber4,
                     &CKRMCStoredDataFileHeader::m_strHeaderText1, &CKRMCStoredDataFileHeader::m_strHeaderText2,
                     &CKRMCStoredDataFileHeader::m_strHeaderText3, &CKRMCStoredDataFileHeader::m_cTimestamp> {};

template <>
struct krm::Fields<CKRMCStoredDataSystemInfo>
    : krm::FieldList<&CKRMCStoredDataSystemInfo::m_ushGroupId, &CKRMCStoredDataSystemInfo::m_strGroupName,
                     &CKRMCStoredDataSystemInfo::m_ulSystemId, &CKRMCStoredDataSystemInfo::m_strSystem> {};

template <>
struct krm::Fields<CKRMCStoredDataFFD>
    : krm::FieldList<&CKRMCStoredDataFFD::m_ushFFDNo, &CKRMCStoredDataFFD::m_uchFFDId,
                     &CKRMCStoredDataFFD::m_uchFFDType, &CKRMCStoredDataFFD::m_uchSubFunction,
                     &CKRMCStoredDataFFD::m_cFirstFFD, &CKRMCStoredDataFFD::m_cSecondFFD,
                     &CKRMCStoredDataFFD::m_cDiagDetail> {};

template <>
struct krm::Fields<CKRMCStoredDataAbsFFD>
    : krm::FieldList<&CKRMCStoredDataAbsFFD::m_uchFFDId, &CKRMCStoredDataAbsFFD::m_cFFD> {};

template <>
struct krm::Fields<CKRMCStoredDataXPos>
    : krm::FieldList<&CKRMCStoredDataXPos::m_dXPos, &CKRMCStoredDataXPos::m_strXPos> {};

template <>
struct krm::Fields<CKRMCStoredDataImportFileInfo>
    : krm::FieldList<&CKRMCStoredDataImportFileInfo::m_strFileName, &CKRMCStoredDataImportFileInfo::m_cHeader,
                     &CKRMCStoredDataImportFileInfo::m_cVehicle, &CKRMCStoredDataImportFileInfo::m_cSystemList> {};

template <>
struct krm::Fields<CKRMCStoredDataSystemData>
    : krm::FieldList<&CKRMCStoredDataSystemData::m_ushGroupId, &CKRMCStoredDataSystemData::m_strGroupName,
                     &CKRMCStoredDataSystemData::m_ulSystemId, &CKRMCStoredDataSystemData::m_strSystem,
                     &CKRMCStoredDataSystemData::m_cDTC, &CKRMCStoredDataSystemData::m_cFFDList,
                     &CKRMCStoredDataSystemData::m_cIsAbsFFD, &CKRMCStoredDataSystemData::m_cAbsFFDList,
                     &CKRMCStoredDataSystemData::m_cDataMonitorValue> {};

template <>
struct krm::Fields<CKRMCStoredDataImportFileData>
    : krm::FieldList<&CKRMCStoredDataImportFileData::m_cHeader, &CKRMCStoredDataImportFileData::m_cVehicle,
                     &CKRMCStoredDataImportFileData::m_cSystemList, &CKRMCStoredDataImportFileData::m_cFirstXPosList,
                     &CKRMCStoredDataImportFileData::m_cSecondXPosList> {};

template <>
struct krm::Fields<CKRMCGetImportFileInfoDsdiAdaptDataSnd>
    : krm::FieldList<&CKRMCGetImportFileInfoDsdiAdaptDataSnd::m_strPath,
                     &CKRMCGetImportFileInfoDsdiAdaptDataSnd::m_ulFileType> {};

template <>
struct krm::Fields<CKRMCGetImportFileInfoDsdiAdaptDataRcv>
    : krm::FieldList<&CKRMCGetImportFileInfoDsdiAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetImportStoredDataDsdiAdaptDataSnd>
    : krm::FieldList<&CKRMCGetImportStoredDataDsdiAdaptDataSnd::m_strFileName> {};

template <>
struct krm::Fields<CKRMCGetImportStoredDataDsdiAdaptDataRcv>
    : krm::FieldList<&CKRMCGetImportStoredDataDsdiAdaptDataRcv::Data> {};

#endif  // KRM_FIELDS_AUXILIARY_STORED_DATA_H_
