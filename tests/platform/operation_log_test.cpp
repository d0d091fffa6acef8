#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdarg>
#include <cstddef>
#include <string>
#include <type_traits>

#include "krm/platform/platform.h"
#include "tests/support/log_capture.h"

namespace {

using ::testing::ElementsAre;
using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

krm_long Refuse(void*, const char*, krm_ulong, int, int) {
    return -7;
}

TEST(OperationLogTest, TheSinkGetsTheFourArgumentsAndItsContext) {
    const krm::test::LogCapture log;
    KRMC_ER_WriteOperationLog("a line", 6, 4, 2);
    KRMC_ER_WriteOperationLog("another", 5, -1, 99);
    ASSERT_EQ(log.Lines().size(), 2U);
    EXPECT_EQ(log.Lines()[0].text, "a line");
    EXPECT_EQ(log.Lines()[0].length, 6U);
    EXPECT_EQ(log.Lines()[0].first, 4);
    EXPECT_EQ(log.Lines()[0].second, 2);
    EXPECT_EQ(log.Lines()[1].text, "anoth");
    EXPECT_EQ(log.Lines()[1].length, 5U);
    EXPECT_EQ(log.Lines()[1].first, -1);
    EXPECT_EQ(log.Lines()[1].second, 99);
}

TEST(OperationLogTest, TheSinksResultIsPassedBack) {
    KRMC_ER_SetOperationLogSink(&Refuse, nullptr);
    EXPECT_EQ(KRMC_ER_WriteOperationLog("a line", 6, 4, 2), -7);
    KRMC_ER_SetOperationLogSink(nullptr, nullptr);
}

TEST(OperationLogTest, NullTextIsEmpty) {
    const krm::test::LogCapture log;
    EXPECT_EQ(KRMC_ER_WriteOperationLog(nullptr, 12, 4, 2), 0);
    EXPECT_THAT(log.Texts(), ElementsAre(""));
    EXPECT_EQ(log.Lines()[0].length, 0U);
}

TEST(OperationLogTest, PercentIsText) {
    const krm::test::LogCapture log;
    KRMC_ER_WriteOperationLog("100%s%n", 7, 4, 2);
    EXPECT_THAT(log.Texts(), ElementsAre("100%s%n"));
}

TEST(OperationLogTest, AMegabyteArrivesWhole) {
    const std::string large(1024 * 1024, 'w');
    const krm::test::LogCapture log;
    KRMC_ER_WriteOperationLog(large.data(), static_cast<krm_ulong>(large.size()), 4, 2);
    EXPECT_THAT(log.Texts(), ElementsAre(large));
}

krm_long FormatLog(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const krm_long result = KRMC_ER_FormatOperationLog(format, arguments, 4, 2);
    va_end(arguments);
    return result;
}

TEST(OperationLogTest, AFormattedLineIsWrittenLikeAnyOther) {
    {
        const krm::test::LogCapture log;
        FormatLog("%s.m_ulEcuId=%d", "Data[3]", -2);
        FormatLog("100%%");
        FormatLog(nullptr);
        EXPECT_THAT(log.Texts(), ElementsAre("Data[3].m_ulEcuId=-2", "100%", ""));
        EXPECT_EQ(log.Lines()[0].length, 20U);
        EXPECT_EQ(log.Lines()[0].first, 4);
        EXPECT_EQ(log.Lines()[0].second, 2);
    }
    KRMC_ER_SetOperationLogSink(&Refuse, nullptr);
    EXPECT_EQ(FormatLog("%d", 1), -7);
    KRMC_ER_SetOperationLogSink(nullptr, nullptr);
}

// Lines of usual length are formatted on the stack. Whichever way a line takes, it is whole and ends with a NUL.
TEST(OperationLogTest, AFormattedLineOfAnyLengthArrivesWhole) {
    static std::size_t endsWithNul;
    static std::string last;
    endsWithNul = 0;
    KRMC_ER_SetOperationLogSink(
        [](void*, const char* text, krm_ulong length, int, int) -> krm_long {
            last.assign(text, length);
            endsWithNul += text[length] == '\0' ? 1 : 0;
            return 0;
        },
        nullptr);
    for (std::size_t length = 0; length <= 1100; ++length) {
        const std::string text(length, 'w');
        FormatLog("%s", text.c_str());
        ASSERT_EQ(last, text);
        FormatLog("%s%s=%d", text.c_str(), text.c_str(), 7);
        ASSERT_EQ(last, text + text + "=7");
    }
    KRMC_ER_SetOperationLogSink(nullptr, nullptr);
    EXPECT_EQ(endsWithNul, 2202U);
}

TEST(OperationLogTest, NullSinkRestoresStandardError) {
    KRMC_ER_SetOperationLogSink(&Refuse, nullptr);
    int unused = 0;
    KRMC_ER_SetOperationLogSink(nullptr, &unused);
    CaptureStderr();
    const krm_long result = KRMC_ER_WriteOperationLog("one line", 8, 4, 2);
    KRMC_ER_WriteOperationLog("100%s", 5, 4, 2);
    KRMC_ER_WriteOperationLog(nullptr, 3, 4, 2);
    EXPECT_EQ(GetCapturedStderr(), "one line\n100%s\n\n");
    EXPECT_EQ(result, 0);
}

TEST(OperationLogTest, TheDefaultKeepsALineOfAnyLength) {
    const std::string large(100'000, 'v');
    CaptureStderr();
    KRMC_ER_WriteOperationLog(large.data(), static_cast<krm_ulong>(large.size()), 4, 2);
    EXPECT_EQ(GetCapturedStderr(), large + '\n');
}

static_assert(std::is_same_v<decltype(&KRMC_ER_WriteOperationLog), krm_long (*)(const char*, krm_ulong, int, int)>);
static_assert(std::is_same_v<decltype(&KRMC_ER_SetOperationLogSink),
                             void (*)(krm_long (*)(void*, const char*, krm_ulong, int, int), void*)>);

}  // namespace
