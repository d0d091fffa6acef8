// The fields of the classes of krm/messages/diag/j2534_config.h, in the order of their declaration.
#ifndef KRM_FIELDS_DIAG_J2534_CONFIG_H_
#define KRM_FIELDS_DIAG_J2534_CONFIG_H_

#include "krm/fields/fields.h"
#include "krm/messages/diag/j2534_config.h"

template <>
struct krm::Fields<CKRMCCommandJ2534Config>
    : krm::FieldList<&CKRMCCommandJ2534Config::m_ulParameter, &CKRMCCommandJ2534Config::m_ulValue> {};

#endif  // KRM_FIELDS_DIAG_J2534_CONFIG_H_
