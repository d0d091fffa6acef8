#include "krm/messages/diag/oscilloscope_channel.h"

#include <gtest/gtest.h>

#include "tests/support/log_text.h"

namespace {

using krm::test::ExpectLog;

TEST(OscInfo, WritesChannelAndRange) {
    CKRMCCommandOscInfo info;
    info.m_ushChId = 65535;
    info.m_ulVolId = 4294967295U;
    ExpectLog(info, {R"(
P.m_ushChId=65535
P.m_ulVolId=-1
)"});
}

}  // namespace
