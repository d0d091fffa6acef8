// The fields of the classes of krm/messages/diag/can_bus.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_CAN_BUS_H_
#define KRM_FIELDS_DIAG_CAN_BUS_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/can_bus.h"

template <>
struct krm::Fields<CKRMCCommandCanBusCategoryInfo>
    : krm::FieldList<&CKRMCCommandCanBusCategoryInfo::m_ulEcuId, &CKRMCCommandCanBusCategoryInfo::m_ulEcuNameId,
                     &CKRMCCommandCanBusCategoryInfo::m_strEcuName, &CKRMCCommandCanBusCategoryInfo::m_ulCategoryId,
                     &CKRMCCommandCanBusCategoryInfo::m_uchHistPidSupport> {};

template <>
struct krm::Fields<CKRMCCommandCanBusCategoryListData> : krm::FieldList<&CKRMCCommandCanBusCategoryListData::Data> {};

template <>
struct krm::Fields<CKRMCGetCanBusCategoryListCmdAdaptDataSnd> : krm::FieldList<> {};

template <>
struct krm::Fields<CKRMCGetCanBusCategoryListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCanBusCategoryListCmdAdaptDataRcv::Data> {};

template <>
struct krm::Fields<CKRMCGetCanBusCheckListCmdAdaptDataSnd>
    : krm::FieldList<&CKRMCGetCanBusCheckListCmdAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCGetCanBusCheckListCmdAdaptDataRcv>
    : krm::FieldList<&CKRMCGetCanBusCheckListCmdAdaptDataRcv::Info, &CKRMCGetCanBusCheckListCmdAdaptDataRcv::Hist> {};

#endif  // KRM_FIELDS_DIAG_CAN_BUS_H_
