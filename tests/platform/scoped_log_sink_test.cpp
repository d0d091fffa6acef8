// krm::ScopedLogSink, the one sink helper of krm/framework/log_sinks.h that needs the stand-in's log.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "krm/framework/log_sinks.h"
#include "krm/messages/auxiliary/unit_conversion.h"
#include "krm/platform/platform.h"
#include "tests/support/keeping_sink.h"

namespace {

using krm::test::KeepingSink;
using ::testing::ElementsAre;

TEST(ScopedLogSinkTest, ASinkOfOnesOwnHearsEveryLineWithFourAndTwo) {
    KeepingSink keeper;
    {
        const krm::ScopedLogSink scope(keeper);
        CKRMCGetUnitSettingGroupListUccAdaptDataSnd request;
        request.ErrWriteOperationLog();
    }
    EXPECT_THAT(keeper.lines, ElementsAre("[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandType=10|4|2",
                                          "[CKRMCBaseUccAdaptData::ErrWriteOperationLog] m_dwCommandID=4|4|2"));
    ::testing::internal::CaptureStderr();
    KRMC_ER_WriteOperationLog("behind", 6, 4, 2);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "behind\n");
    EXPECT_EQ(keeper.lines.size(), 2U);
}

TEST(ScopedLogSinkTest, TheSinksResultGoesBackToTheWriter) {
    KeepingSink keeper;
    keeper.result = -7;
    const krm::ScopedLogSink scope(keeper);
    EXPECT_EQ(KRMC_ER_WriteOperationLog("x", 1, 1, 5), -7);
    EXPECT_THAT(keeper.lines, ElementsAre("x|1|5"));
}

}  // namespace
