// The fields of the classes of krm/messages/diag/oscilloscope_channel.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_OSCILLOSCOPE_CHANNEL_H_
#define KRM_FIELDS_DIAG_OSCILLOSCOPE_CHANNEL_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/oscilloscope_channel.h"

template <>
struct krm::Fields<CKRMCCommandOscInfo>
    : krm::FieldList<&CKRMCCommandOscInfo::m_ushChId, &CKRMCCommandOscInfo::m_ulVolId> {};

#endif  // KRM_FIELDS_DIAG_OSCILLOSCOPE_CHANNEL_H_
