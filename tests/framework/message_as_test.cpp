// krm::MessageAs as a debug build has it: it stops where the message is not of the class that is asked for. The rest of
// the tests, and the library, may be built otherwise; message_test.cpp asks the same function as their build has it.
#undef NDEBUG
#include "krm/framework/message.h"

#include <gtest/gtest.h>

#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"
#include "tests/support/not_under.h"

namespace {

TEST(CheckedMessageAs, GivesTheClassThatTheMessageIs) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    CKRMBaseAdaptationData* const message = &request;
    EXPECT_EQ(krm::MessageAs<CKRMCGetDTCCmdAdaptDataSnd>(message), &request);
    const CKRMCGetDTCCmdAdaptDataRcv answer;
    const CKRMBaseAdaptationData* const constant = &answer;
    EXPECT_EQ(krm::MessageAs<CKRMCGetDTCCmdAdaptDataRcv>(constant), &answer);
}

TEST(CheckedMessageAs, GivesNullForAnotherCommandAndForNull) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    CKRMBaseAdaptationData* message = &request;
    // Another command is for the caller to ask, whatever the direction.
    EXPECT_EQ(krm::MessageAs<CKRMCGetVinCodeCmdAdaptDataRcv>(message), nullptr);
    EXPECT_EQ(krm::MessageAs<CKRMCGetVinCodeCmdAdaptDataSnd>(message), nullptr);
    message = nullptr;
    EXPECT_EQ(krm::MessageAs<CKRMCGetDTCCmdAdaptDataSnd>(message), nullptr);
}

#ifdef KRM_CHECKS_MESSAGE_AS

class CheckedMessageAsDeathTest : public ::testing::Test {
protected:
    // The other tests have threads. An emulated program can't start itself anew as this style does.
    void SetUp() override {
        if (!krm::test::RunsUnder(krm::test::Condition::Emulator)) {
            GTEST_FLAG_SET(death_test_style, "threadsafe");
        }
    }
};

TEST_F(CheckedMessageAsDeathTest, StopsAtTheWrongDirection) {
    CKRMCGetDTCCmdAdaptDataRcv answer;
    CKRMBaseAdaptationData* const message = &answer;
    EXPECT_DEATH(krm::MessageAs<CKRMCGetDTCCmdAdaptDataSnd>(message),
                 "krm::MessageAs: asked for CKRMCGetDTCCmdAdaptDataSnd, but the message is "
                 "CKRMCGetDTCCmdAdaptDataRcv");
    const CKRMCGetDTCCmdAdaptDataSnd request;
    const CKRMBaseAdaptationData* const constant = &request;
    EXPECT_DEATH(krm::MessageAs<CKRMCGetDTCCmdAdaptDataRcv>(constant),
                 "asked for CKRMCGetDTCCmdAdaptDataRcv, but the message is CKRMCGetDTCCmdAdaptDataSnd");
}

TEST_F(CheckedMessageAsDeathTest, StopsAtABaseWithTheSameTypeAndId) {
    CKRMCBaseCmdAdaptDataSnd base(CKRMCGetDTCCmdAdaptDataSnd::kCommandId);
    CKRMBaseAdaptationData* const message = &base;
    EXPECT_DEATH(krm::MessageAs<CKRMCGetDTCCmdAdaptDataSnd>(message),
                 "asked for CKRMCGetDTCCmdAdaptDataSnd, but the message is CKRMCBaseCmdAdaptDataSnd");
}

#endif

}  // namespace
