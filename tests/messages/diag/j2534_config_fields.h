// The fields of the classes of krm/messages/diag/j2534_config.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_J2534_CONFIG_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_J2534_CONFIG_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/j2534_config.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandJ2534Config& it) {
    return std::tie(it.m_ulParameter, it.m_ulValue);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_J2534_CONFIG_FIELDS_H_
