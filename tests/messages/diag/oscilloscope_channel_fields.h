// The fields of the classes of krm/messages/diag/oscilloscope_channel.h, in order.
#ifndef KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_CHANNEL_FIELDS_H_
#define KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_CHANNEL_FIELDS_H_

#include <tuple>

#include "krm/messages/diag/oscilloscope_channel.h"
#include "tests/support/fields.h"

inline auto FieldsOf(CKRMCCommandOscInfo& it) {
    return std::tie(it.m_ushChId, it.m_ulVolId);
}

#endif  // KRM_TESTS_MESSAGES_DIAG_OSCILLOSCOPE_CHANNEL_FIELDS_H_
