#include "cli/log_line.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "cli/log_input.h"

namespace {

using krm_cli::FieldEnds;
using krm_cli::FindFieldEnds;
using krm_cli::IsHeading;
using krm_cli::LogLine;
using krm_cli::LogLineParser;
using krm_cli::TakePrefixApart;

/// "PREFIX|CLASS|PATH|VALUE", or "none".
std::string Parsed(LogLineParser& parser, const std::string& text) {
    LogLine line;
    if (!parser.Parse(text, line)) {
        return "none";
    }
    return std::string(line.prefix) + '|' + std::string(line.className) + '|' + std::string(line.path) + '|' +
           std::string(line.value);
}
std::string Parsed(const std::string& text) {
    LogLineParser parser;
    return Parsed(parser, text);
}

TEST(LogLine, HasClassPathAndValue) {
    EXPECT_EQ(Parsed("[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1"),
              "|CKRMCBaseCmdAdaptData|m_dwCommandType|1");
    EXPECT_EQ(Parsed("[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301"),
              "|CKRMCGetDTCCmdAdaptDataRcv|Data[0].m_strDTC|P0301");
}

TEST(LogLine, MayHaveAnythingInFront) {
    EXPECT_EQ(Parsed("2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016"),
              "2024-02-29T23:59:59.999Z 1 |CKRMCBaseCmdAdaptDataSnd|m_ulEcuId|2016");
    EXPECT_EQ(Parsed("[info] [CKRMC] a=b [CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016"),
              "[info] [CKRMC] a=b |CKRMCBaseCmdAdaptDataSnd|m_ulEcuId|2016");
}

TEST(LogLine, HasAnyValue) {
    const std::string front = "[CKRMCGetVinCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_strVinCode=";
    EXPECT_EQ(Parsed(front), "|CKRMCGetVinCodeCmdAdaptDataRcv|m_strVinCode|");
    EXPECT_EQ(Parsed(front + "a=b] c"), "|CKRMCGetVinCodeCmdAdaptDataRcv|m_strVinCode|a=b] c");
    EXPECT_EQ(Parsed(front + "[CKRMCX::Y] z=1"), "|CKRMCGetVinCodeCmdAdaptDataRcv|m_strVinCode|[CKRMCX::Y] z=1");
}

// A list of numbers within a record stands in the log with the record's prefix in brackets.
TEST(LogLine, HasTheSamePathWhereverItsBracketsStand) {
    EXPECT_EQ(Parsed("x [[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[2]] m_uchSSRNo[1]=7"),
              "x |CKRMCGetDTCCmdAdaptDataRcv|Data[2].m_uchSSRNo[1]|7");
    EXPECT_EQ(Parsed("[[CKRMCGetFFDCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_cDisp].m_uchRawDataList[3]=0A"),
              "|CKRMCGetFFDCmdAdaptDataRcv|Data[0].m_cDisp.m_uchRawDataList[3]|0A");
    EXPECT_EQ(Parsed("[CKRMCVehicleDecisionCmdAdaptDataRcv::ErrWriteOperationLog].m_ulValue=1(1)"),
              "|CKRMCVehicleDecisionCmdAdaptDataRcv|m_ulValue|1(1)");
}

TEST(LogLine, IsNothingElse) {
    EXPECT_EQ(Parsed(""), "none");
    EXPECT_EQ(Parsed("m_ulEcuId=2016"), "none");
    EXPECT_EQ(Parsed("[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId"), "none");
    EXPECT_EQ(Parsed("[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] =1"), "none");
    EXPECT_EQ(Parsed("[CKRMCBaseCmdAdaptDataSnd] m_ulEcuId=1"), "none");
    EXPECT_EQ(Parsed("[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] words, then a=1"), "none");
    EXPECT_EQ(Parsed("[OtherClass::ErrWriteOperationLog] m_ulEcuId=1"), "none");
}

// Lines like the one before are taken apart faster, and no differently.
TEST(LogLine, IsTheSameBehindAnyOther) {
    const std::string lines[] = {
        "1 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301",
        "2 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTCName=a b",
        "2 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC",
        "2 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] some words=1",
        "2 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] m_a=1",
        "[[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[2]] m_uchSSRNo[1]=7",
        " [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[2].m_uchSSRNo[1]=7",
        "no line",
        "1 [CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=1",
        "10 [CKRMCGetDTCCmdAdaptDataSnd::ErrWriteOperationLog] m_uchPhaseType=1",
    };
    for (const std::string& first : lines) {
        for (const std::string& second : lines) {
            LogLineParser parser;
            Parsed(parser, first);
            EXPECT_EQ(Parsed(parser, second), Parsed(second)) << first;
        }
    }
}

// A text that quotes a line, at the very place where the line before had its class.
TEST(LogLine, HasTheClassThatComesFirst) {
    LogLineParser parser;
    EXPECT_EQ(Parsed(parser, "0123456789012345[CKRMCB::c] p=1"), "0123456789012345|CKRMCB|p|1");
    EXPECT_EQ(Parsed(parser, "[CKRMCA::b] q=x [CKRMCB::c] p=2"), "|CKRMCA|q|x [CKRMCB::c] p=2");
    EXPECT_EQ(Parsed(parser, "[CKRMCA::b] q x [CKRMCB::c] p=2"), "[CKRMCA::b] q x |CKRMCB|p|2");
    EXPECT_EQ(Parsed(parser, "[CKRMCA::b] q x [CKRMCB::c] p=3"), "[CKRMCA::b] q x |CKRMCB|p|3");
}

TEST(LogLine, GoesOnBehindABracketWithABlankOrAPoint) {
    EXPECT_EQ(Parsed("[[CKRMCX::Y] Data[2]]xm_a=1"), "[|CKRMCX|Data[2]]xm_a|1");
}

TEST(LogLine, TellsWhetherItsClassIsThatOfTheLineBefore) {
    LogLineParser parser;
    Parsed(parser, "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1");
    Parsed(parser, "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2");
    EXPECT_TRUE(parser.IsSameClass());
    Parsed(parser, "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2");
    EXPECT_FALSE(parser.IsSameClass());
}

TEST(LogLine, HasATimeAndASourceInFront) {
    EXPECT_EQ(TakePrefixApart("2024-02-29T23:59:59.999Z 1 ").time, "2024-02-29T23:59:59.999Z");
    EXPECT_EQ(TakePrefixApart("2024-02-29T23:59:59.999Z 1 ").source, "1");
    EXPECT_EQ(TakePrefixApart("2024-02-29 23:59:59,999 [main] INFO ").time, "2024-02-29 23:59:59,999");
    EXPECT_EQ(TakePrefixApart("2024-02-29 23:59:59,999 [main] INFO ").source, "[main] INFO");
    EXPECT_EQ(TakePrefixApart("[   12.345] T7: ").time, "12.345]");
    EXPECT_EQ(TakePrefixApart("1:2 ").time, "1:2");
    EXPECT_EQ(TakePrefixApart("0:0 9,9 0.9 9-0 0/0 ").time, "0:0 9,9 0.9 9-0 0/0");
    EXPECT_EQ(TakePrefixApart("a.5 5/b 7- -7 a:b:5 ").source, "a.5 5/b 7- -7 a:b:5");
    EXPECT_EQ(TakePrefixApart("").time, "");
    EXPECT_EQ(TakePrefixApart("").source, "");
}

TEST(LogLine, MayBeAHeadingOfAMessage) {
    EXPECT_TRUE(IsHeading("2024-02-29T23:59:59.999Z 1 == GetDTC request (type 1, ID 2)"));
    EXPECT_TRUE(IsHeading("== unknown command (type 1, ID 900)"));
    EXPECT_FALSE(IsHeading("== GetDTC request"));
    EXPECT_FALSE(IsHeading("== GetDTC, ID 2 (type 1)"));
    EXPECT_FALSE(IsHeading("a== b (type 1, ID 2)"));
    EXPECT_FALSE(IsHeading(""));
}

// More classes than the parser remembers the heads of, in an order that changes, in lines of either form.
TEST(LogLine, HasItsClassWhateverCameBefore) {
    constexpr std::size_t kClasses = 150;
    LogLineParser parser;
    std::size_t before = kClasses;
    for (std::size_t i = 0; i < 3000; ++i) {
        const std::size_t number = i < kClasses ? i : (i / 3 * 7 + i % 3 * i) % kClasses;
        const std::string name = "CKRMCOwn" + std::to_string(number) + "CmdAdaptDataRcv";
        const bool isPlain = i % 5 != 0;
        EXPECT_EQ(Parsed(parser, isPlain ? "1 [" + name + "::ErrWriteOperationLog] m_ulId=1"
                                         : "1 [[" + name + "::ErrWriteOperationLog] Data[2]] m_uchSSRNo[1]=7"),
                  "1 |" + name + (isPlain ? "|m_ulId|1" : "|Data[2].m_uchSSRNo[1]|7"));
        EXPECT_EQ(parser.ClassNumber(), number);
        EXPECT_EQ(parser.IsSameClass(), number == before);
        EXPECT_EQ(parser.Head(), isPlain ? "[" + name + "::ErrWriteOperationLog] " : "");
        before = number;
    }
}

/// "EQUALS FEED", as offsets; "none".
std::string EndsOf(std::string_view text, std::size_t from = 0) {
    const FieldEnds ends = FindFieldEnds(text.data() + from, text.data() + text.size());
    EXPECT_EQ(ends.equals == nullptr, ends.feed == nullptr);
    return ends.feed == nullptr
               ? "none"
               : std::to_string(ends.equals - text.data()) + ' ' + std::to_string(ends.feed - text.data());
}

TEST(FieldEnds, AreTheEqualsSignAndTheLineFeed) {
    EXPECT_EQ(EndsOf("m_a=1\n"), "3 5");
    EXPECT_EQ(EndsOf("m_a=1\nm_b=2\n", 6), "9 11");
    EXPECT_EQ(EndsOf("=\n"), "0 1");
    EXPECT_EQ(EndsOf("m_a=b = c=\r\n\n"), "3 11");
    EXPECT_EQ(EndsOf("m_strNameThatIsLongerThanSixteen=a value that is longer than that\n"), "32 65");
}

TEST(FieldEnds, AreNothingWhereOneIsMissing) {
    EXPECT_EQ(EndsOf(""), "none");
    EXPECT_EQ(EndsOf("m_a=1"), "none");
    EXPECT_EQ(EndsOf("m_a\nm_b=1\n"), "none");
    EXPECT_EQ(EndsOf("m_a m_b=1\n"), "none");
    EXPECT_EQ(EndsOf("m_strNameThatIsLonger than=it\n"), "none");
    EXPECT_EQ(EndsOf("m_strNameThatIsLonger=than\n").substr(0, 2), "21");
}

// What is looked at in steps is found wherever it stands in them.
TEST(FieldEnds, AreFoundAtAnyPlace) {
    constexpr std::size_t kLongest = 40;
    for (std::size_t path = 0; path < kLongest; ++path) {
        for (std::size_t value = 0; value < kLongest; ++value) {
            const std::string line = std::string(path, 'p') + '=' + std::string(value, 'v');
            const std::string expected = std::to_string(path) + ' ' + std::to_string(path + 1 + value);
            EXPECT_EQ(EndsOf(line + '\n'), expected);
            EXPECT_EQ(EndsOf(line + "\nm_strNext = 1\nm_strNext=1\n"), expected);
            EXPECT_EQ(EndsOf(line), "none");
            EXPECT_EQ(EndsOf(std::string(path, 'p') + ' ' + line + '\n'), "none");
            EXPECT_EQ(EndsOf(std::string(path, 'p') + '\n' + line + '\n'), "none");
        }
    }
}

}  // namespace
