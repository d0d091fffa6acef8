// The fields of the classes of krm/messages/diag/data_item.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_DATA_ITEM_H_
#define KRM_FIELDS_DIAG_DATA_ITEM_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/data_item.h"

template <>
struct krm::Fields<CKRMCCommandWriteData>
    : krm::FieldList<&CKRMCCommandWriteData::m_ushId, &CKRMCCommandWriteData::m_uchType,
                     &CKRMCCommandWriteData::m_ulData> {};

template <>
struct krm::Fields<CKRMCWriteDataItemCmdAdaptDataSnd> : krm::FieldList<&CKRMCWriteDataItemCmdAdaptDataSnd::Data> {};

template <>
struct krm::Fields<CKRMCWriteDataItemCmdAdaptDataRcv> : krm::FieldList<> {};

#endif  // KRM_FIELDS_DIAG_DATA_ITEM_H_
