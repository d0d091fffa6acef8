// The fields of the classes of krm/messages/auxiliary/stored_data.h, in order.
#ifndef KRM_TESTS_MESSAGES_AUXILIARY_STORED_DATA_FIELDS_H_
#define KRM_TESTS_MESSAGES_AUXILIARY_STORED_DATA_FIELDS_H_

#include <tuple>

#include "krm/messages/auxiliary/stored_data.h"
#include "tests/messages/diag/data_monitor_fields.h"
#include "tests/messages/diag/freeze_frames_fields.h"
#include "tests/messages/diag/trouble_codes_fields.h"
#include "tests/messages/diag/vehicle_fields.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCStoredDataSystemTime& it) {
    return std::tie(it.m_uchSystemTime);
}

inline auto FieldsOf(CKRMCStoredDataTimestamp& it) {
    return std::tie(it.m_uchFirstStamp, it.m_uchSecondStamp);
}

inline auto FieldsOf(CKRMCStoredDataFileHeader& it) {
    return std::tie(it.m_ushFileType, it.m_ushFileVersion, it.m_ulHeaderNumber1, it.m_ulHeaderNumber2,
                    it.m_ulHeaderNumber3, it.m_ulHeaderNumber4, it.m_strHeaderText1, it.m_strHeaderText2,
                    it.m_strHeaderText3, it.m_cTimestamp);
}

inline auto FieldsOf(CKRMCStoredDataSystemInfo& it) {
    return std::tie(it.m_ushGroupId, it.m_strGroupName, it.m_ulSystemId, it.m_strSystem);
}

inline auto FieldsOf(CKRMCStoredDataFFD& it) {
    return std::tie(it.m_ushFFDNo, it.m_uchFFDId, it.m_uchFFDType, it.m_uchSubFunction, it.m_cFirstFFD, it.m_cSecondFFD,
                    it.m_cDiagDetail);
}

inline auto FieldsOf(CKRMCStoredDataAbsFFD& it) {
    return std::tie(it.m_uchFFDId, it.m_cFFD);
}

inline auto FieldsOf(CKRMCStoredDataXPos& it) {
    return std::tie(it.m_dXPos, it.m_strXPos);
}

inline auto FieldsOf(CKRMCStoredDataImportFileInfo& it) {
    return std::tie(it.m_strFileName, it.m_cHeader, it.m_cVehicle, it.m_cSystemList);
}

inline auto FieldsOf(CKRMCStoredDataSystemData& it) {
    return std::tie(it.m_ushGroupId, it.m_strGroupName, it.m_ulSystemId, it.m_strSystem, it.m_cDTC, it.m_cFFDList,
                    it.m_cIsAbsFFD, it.m_cAbsFFDList, it.m_cDataMonitorValue);
}

inline auto FieldsOf(CKRMCStoredDataImportFileData& it) {
    return std::tie(it.m_cHeader, it.m_cVehicle, it.m_cSystemList, it.m_cFirstXPosList, it.m_cSecondXPosList);
}

inline auto FieldsOf(CKRMCGetImportFileInfoDsdiAdaptDataSnd& it) {
    return std::tie(it.m_strPath, it.m_ulFileType);
}

inline auto FieldsOf(CKRMCGetImportFileInfoDsdiAdaptDataRcv& it) {
    return std::tie(it.Data);
}

inline auto FieldsOf(CKRMCGetImportStoredDataDsdiAdaptDataSnd& it) {
    return std::tie(it.m_strFileName);
}

inline auto FieldsOf(CKRMCGetImportStoredDataDsdiAdaptDataRcv& it) {
    return std::tie(it.Data);
}

#endif  // KRM_TESTS_MESSAGES_AUXILIARY_STORED_DATA_FIELDS_H_
