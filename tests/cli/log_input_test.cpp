#include "cli/log_input.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/cli/reading.h"

namespace {

using krm::test::EventsOf;
using krm::test::Reading;
using krm_cli::Event;
using krm_cli::LogInput;

constexpr const char* kOp = "::ErrWriteOperationLog] ";

std::string Type(int type = 1) {
    return "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=" + std::to_string(type);
}
std::string Id(int id) {
    return "[CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=" + std::to_string(id);
}
std::string Ecu(krm_int64 ecu) {
    return "[CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=" + std::to_string(ecu);
}
std::string NotSupported(int flag = 0) {
    return "[CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=" + std::to_string(flag);
}
std::string Request(const std::string& field) {
    return std::string("[CKRMCGetDTCCmdAdaptDataSnd") + kOp + field;
}
std::string Answer(const std::string& field) {
    return std::string("[CKRMCGetDTCCmdAdaptDataRcv") + kOp + field;
}

std::string Events(const std::string& log) {
    Reading reading(log);
    LogInput input(reading.Source());
    return EventsOf(input);
}

TEST(LogInput, GroupsLinesIntoMessages) {
    EXPECT_EQ(Events(Type() + '\n' + Id(2) + '\n' + Ecu(2024) + '\n' + Request("m_uchPhaseType=1") + '\n' + Type() +
                     '\n' + Id(2) + '\n' + NotSupported() + '\n' + Answer("Data[0].m_strDTC=P0301") + '\n'),
              "begin 1\n"
              "1 m_dwCommandType=1\n"
              "1 m_dwCommandID=2\n"
              "1 m_ulEcuId=2024\n"
              "1 m_uchPhaseType=1\n"
              "end 1 GetDTC request, ECU 2024\n"
              "begin 2\n"
              "2 m_dwCommandType=1\n"
              "2 m_dwCommandID=2\n"
              "2 m_bNotSupport=0\n"
              "2 Data[0].m_strDTC=P0301\n"
              "end 2 GetDTC answer, ECU 2024\n");
}

TEST(LogInput, KnowsAMessageByItsBasesAlone) {
    EXPECT_EQ(Events(Type() + '\n' + Id(5) + '\n' + Ecu(7) + '\n'),
              "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=5\n1 m_ulEcuId=7\nend 1 ClearDTC request, ECU 7\n");
    EXPECT_EQ(Events(Type() + '\n' + Id(900) + '\n'),
              "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=900\nend 1 type 1, ID 900\n");
}

TEST(LogInput, KnowsAProgramsOwnMessageByItsClass) {
    EXPECT_EQ(Events(Type() + '\n' + Id(900) + '\n' + NotSupported() + '\n' +
                     "[CKRMCReadPaintCodeCmdAdaptDataRcv::ErrWriteOperationLog] m_strPaintCode=1F7\n"),
              "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=900\n1 m_bNotSupport=0\n1 m_strPaintCode=1F7\n"
              "end 1 ReadPaintCode answer\n");
}

TEST(LogInput, TellsOtherLinesAndPassesOverHeadings) {
    EXPECT_EQ(Events("# a log\n== GetDTC request (type 1, ID 2)\n" + Type() + "\nsomething\n" + Id(5) + "\n\nend\n"),
              "other 1 # a log\nbegin 1\n1 m_dwCommandType=1\nother 4 something\n1 m_dwCommandID=5\nother 6 \n"
              "other 7 end\nend 1 ClearDTC\n");
}

TEST(LogInput, BeginsInTheMiddle) {
    EXPECT_EQ(Events(Answer("Data[7].m_strDTC=P0301") + '\n' + Type() + '\n' + Id(5) + '\n'),
              "begin 1\n1 Data[7].m_strDTC=P0301\nend 1 GetDTC answer, begin is missing\n"
              "begin 2\n2 m_dwCommandType=1\n2 m_dwCommandID=5\nend 2 ClearDTC\n");
}

// ... which is from one source, even where something else than a time changes in front of its lines,
TEST(LogInput, BeginsInTheMiddleOfAMessageWhoseLinesAreNumbered) {
    EXPECT_EQ(Events("#1 " + Answer("Data[7].m_strDTC=P0301") + "\n#2 " + Answer("Data[8].m_strDTC=P0171") + '\n'),
              "begin 1\n1 Data[7].m_strDTC=P0301\n1 Data[8].m_strDTC=P0171\n"
              "end 1 GetDTC answer, source #1, begin is missing\n");
}

// ... or nothing does, while another source begins.
TEST(LogInput, BeginsInTheMiddleOfAMessageWithNothingInFront) {
    EXPECT_EQ(Events(Answer("Data[7].m_strDTC=P0301") + "\n2 " + Type() + '\n' + Answer("Data[8].m_strDTC=P0171") +
                     "\n2 " + Id(5) + '\n'),
              "begin 1\n1 Data[7].m_strDTC=P0301\n1 Data[8].m_strDTC=P0171\nend 1 GetDTC answer, begin is missing\n"
              "begin 2\n2 m_dwCommandType=1\n2 m_dwCommandID=5\nend 2 ClearDTC, source 2\n");
}

TEST(LogInput, TakesALineOfAnotherClassForAnotherMessage) {
    EXPECT_EQ(Events(Type() + '\n' + Id(2) + '\n' + Answer("m_bDTCType=1") + '\n' + Request("m_uchPhaseType=1") + '\n'),
              "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=2\n1 m_bDTCType=1\nend 1 GetDTC answer\n"
              "begin 2\n2 m_uchPhaseType=1\nend 2 GetDTC request, begin is missing\n");
}

// ... also in lines that waited for another thread's message to end,
TEST(LogInput, TakesAWaitingLineOfAnotherClassForAnotherMessage) {
    EXPECT_EQ(Events("1 " + Type() + "\n1 " + Id(2) + "\n2 " + Type() + "\n2 " + Answer("m_bDTCType=1") + "\n2 " +
                     Request("m_uchPhaseType=1") + '\n'),
              "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=2\nend 1 GetDTC, source 1\n"
              "begin 2\n2 m_dwCommandType=1\n2 m_bDTCType=1\nend 2 GetDTC answer, source 2\n"
              "begin 3\n3 m_uchPhaseType=1\nend 3 GetDTC request, source 2, begin is missing\n");
}

TEST(LogInput, HasNumbersOf32Bits) {
    const auto events = [](krm_int64 ecu) { return Events(Type() + '\n' + Id(2) + '\n' + Ecu(ecu) + '\n'); };
    const auto expected = [](const std::string& written, const std::string& ecu) {
        return "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=2\n1 m_ulEcuId=" + written + "\nend 1 GetDTC request" +
               ecu + '\n';
    };
    EXPECT_EQ(events(70000), expected("70000", ", ECU 70000"));
    // The dump writes it as a signed number.
    EXPECT_EQ(events(-2), expected("-2", ", ECU 4294967294"));
    EXPECT_EQ(events(-2147483648), expected("-2147483648", ", ECU 2147483648"));
    EXPECT_EQ(events(4294967295), expected("4294967295", ", ECU 4294967295"));
    // No ECU has more.
    EXPECT_EQ(events(-2147483649), expected("-2147483649", ""));
    EXPECT_EQ(events(4294967296), expected("4294967296", ""));
}

// While one message is read there is room for so much of the others, which is free again when they are taken.
TEST(LogInput, LetsOnlySoMuchWait) {
    std::string log;
    for (int i = 0; i < 8; ++i) {
        log += "1 " + Type() + "\n2 " + Type() + "\n2 " + Answer("Data[0].m_strDTCName=" + std::string(1000, 'x')) +
               "\n1 " + Answer("m_bDTCType=1") + '\n';
    }
    const auto messages = [&](std::size_t mostWaiting) {
        Reading reading(log);
        LogInput input(reading.Source(), mostWaiting);
        EventsOf(input);
        return input.Totals().messages;
    };
    EXPECT_EQ(messages(3000), 16U);
    EXPECT_GT(messages(1000), 16U);
}

// ... and where another thread's line before it had that class.
TEST(LogInput, TakesALineOfAnothersClassForAnotherMessage) {
    EXPECT_EQ(Events("1 " + Type() + "\n1 " + Id(2) + "\n1 " + Answer("m_bDTCType=1") + "\n2 " + Type() + "\n2 " +
                     Request("m_uchPhaseType=2") + "\n1 " + Request("m_uchPhaseType=1") + '\n'),
              "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=2\n1 m_bDTCType=1\nend 1 GetDTC answer, source 1\n"
              "begin 2\n2 m_dwCommandType=1\n2 m_uchPhaseType=2\nend 2 GetDTC request, source 2\n"
              "begin 3\n3 m_uchPhaseType=1\nend 3 GetDTC request, source 1, begin is missing\n");
}

TEST(LogInput, EndsWhereTheLogIsCut) {
    EXPECT_EQ(Events(Type() + '\n' + Id(2) + '\n' + Answer("Data[0].m_strDT")),
              "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=2\n"
              "other 3 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDT\nend 1 GetDTC\n");
    EXPECT_EQ(Events(""), "");
}

TEST(LogInput, CountsWhatIsThere) {
    Reading reading("x\r\n" + Type() + "\r\n" + Id(2));
    LogInput input(reading.Source());
    EventsOf(input);
    EXPECT_EQ(input.Totals().lines, 3U);
    EXPECT_EQ(input.Totals().messages, 1U);
    EXPECT_EQ(input.Totals().otherLines, 1U);
    EXPECT_EQ(input.Totals().cutLines, 0U);
    EXPECT_TRUE(input.Totals().lastLineHasNoEnd);
}

TEST(LogInput, SeparatesThreads) {
    EXPECT_EQ(
        Events("10:00:00 1 " + Type() + '\n' + "10:00:01 2 " + Type() + '\n' + "10:00:02 1 " + Id(2) + '\n' +
               "10:00:03 2 " + Id(5) + '\n' + "10:00:04 1 " + Ecu(11) + '\n' + "10:00:05 2 " + Ecu(22) + '\n' +
               "10:00:06 2 " + Type() + '\n' + "10:00:07 1 " + Type() + '\n' + "10:00:08 1 " + Id(2) + '\n'),
        "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=2\n1 m_ulEcuId=11\nend 1 GetDTC request, ECU 11, source 1\n"
        "begin 2\n2 m_dwCommandType=1\n2 m_dwCommandID=5\n2 m_ulEcuId=22\nend 2 ClearDTC request, ECU 22, source 2\n"
        "begin 3\n3 m_dwCommandType=1\nend 3 type 1, ID 0, source 2\n"
        "begin 4\n4 m_dwCommandType=1\n4 m_dwCommandID=2\nend 4 GetDTC, source 1\n");
}

// A number that counts lines looks like a thread of its own.
TEST(LogInput, KeepsAMessageTogetherWhoseLinesAreNumbered) {
    EXPECT_EQ(
        Events("1 " + Type() + "\n2 " + Id(2) + "\n3 " + Ecu(11) + "\n4 " + Type() + "\n5 " + Id(5) + "\n6 " + Ecu(22) +
               '\n'),
        "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=2\n1 m_ulEcuId=11\nend 1 GetDTC request, ECU 11, source 1\n"
        "begin 2\n2 m_dwCommandType=1\n2 m_dwCommandID=5\n2 m_ulEcuId=22\nend 2 ClearDTC request, ECU 22, source 4\n");
}

TEST(LogInput, EndsAMessageThatGetsNoMoreLines) {
    std::string log = "1 " + Type() + "\n1 " + Id(5) + '\n';
    for (int i = 0; i < 1200; ++i) {
        log += "2 " + Type() + "\n2 " + Id(2) + '\n';
    }
    Reading reading(log);
    LogInput input(reading.Source());
    for (int i = 0; i < 4; ++i) {
        input.Next();
    }
    EXPECT_EQ(input.Head().command, "ClearDTC");
    EXPECT_EQ(input.Totals().lines, 2003U);
    const std::string rest = EventsOf(input);
    EXPECT_EQ(input.Totals().messages, 1201U);
    EXPECT_EQ(rest.substr(0, rest.find("begin 3")),
              "begin 2\n2 m_dwCommandType=1\n2 m_dwCommandID=2\nend 2 GetDTC, source 2\n");
}

TEST(LogInput, TellsAnAnswersEcuByItsRequest) {
    EXPECT_EQ(
        Events(Type() + '\n' + Id(5) + '\n' + Ecu(7) + '\n' + Type() + '\n' + Id(2) + '\n' + NotSupported() + '\n'),
        "begin 1\n1 m_dwCommandType=1\n1 m_dwCommandID=5\n1 m_ulEcuId=7\nend 1 ClearDTC request, ECU 7\n"
        "begin 2\n2 m_dwCommandType=1\n2 m_dwCommandID=2\n2 m_bNotSupport=0\nend 2 GetDTC answer\n");
}

/// The fields that are told when each one asks to pass over those of its element but the trouble codes, and how many there
/// were.
std::string FieldsPassing(const std::string& log) {
    Reading reading(log);
    LogInput input(reading.Source());
    std::string text;
    for (;;) {
        switch (input.Next()) {
            case Event::Field: {
                const std::string path(input.Field().path);
                text += path + '=' + std::string(input.Field().value) + '\n';
                if (path.find('.') != std::string::npos) {
                    input.PassOver(path.substr(0, path.find('.') + 1), "m_strDTC");
                }
                break;
            }
            case Event::End:
                text += std::to_string(input.Head().fields) + " fields\n";
                break;
            case Event::Finished:
                return text + std::to_string(input.Totals().lines) + " lines\n";
            default:
                break;
        }
    }
}

TEST(LogInput, PassesOverFieldsOfAnElement) {
    const std::string begin = Type() + '\n' + Id(2) + '\n';
    EXPECT_EQ(FieldsPassing(begin + Answer("Data[0].m_ulId=1") + '\n' + Answer("Data[0].m_strName=a=b c") + "\r\n" +
                            Answer("Data[0].m_strDTC=P0301") + '\n' + Answer("Data[0].m_ulLast=1") + '\n' +
                            Answer("Data[1].m_ulId=1") + '\n' + Answer("m_bDTCType=1") + '\n' + begin),
              "m_dwCommandType=1\nm_dwCommandID=2\nData[0].m_ulId=1\nData[0].m_strDTC=P0301\nData[1].m_ulId=1\n"
              "m_bDTCType=1\n8 fields\nm_dwCommandType=1\nm_dwCommandID=2\n2 fields\n10 lines\n");
}

TEST(LogInput, PassesOverNothingThatIsNoFieldOfTheElement) {
    const auto at = [](const std::string& prefix, const std::string& line) { return prefix + ' ' + line + '\n'; };
    EXPECT_EQ(FieldsPassing(
                  at("10:00:00 1", Type()) + at("10:00:00 1", Id(2)) + at("10:00:00 1", Answer("Data[0].m_ulId=1")) +
                  at("10:00:01 1", Answer("Data[0].m_ulA=1")) + at("10:00:01 1", Answer("Data[0].other than=a field")) +
                  at("10:00:01 2", Answer("Data[0].m_ulOfAnother=1")) + at("10:00:02 1", Answer("m_bDTCType=1"))),
              "m_dwCommandType=1\nm_dwCommandID=2\nData[0].m_ulId=1\nData[0].m_ulOfAnother=1\nm_bDTCType=1\n"
              "6 fields\n7 lines\n");
}

}  // namespace
