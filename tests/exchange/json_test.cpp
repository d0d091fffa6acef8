#include "krm/exchange/json.h"

#include <gtest/gtest.h>

#include "krm/messages/diag/trouble_codes.h"

namespace {

TEST(ToJson, OfARequest) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = 4294967295U;
    EXPECT_TRUE(krm::ToJson(request).starts_with(
        R"({"command":"GetDTC","family":"Cmd","direction":"request","content":{"m_ulEcuId":4294967295)"))
        << krm::ToJson(request);
}

}  // namespace
