#include "krm/exchange/recording.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

#include "krm/exchange/json.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/messages/auxiliary/viewer.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/string.h"
#include "tests/exchange/random_content.h"
#include "tests/exchange/recording_text.h"
#include "tests/support/folder.h"
#include "tests/support/no_more_files.h"
#include "tests/support/not_under.h"

#if !defined(_WIN32)
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

/// A message of a program's own.
class RecordedPaint
    : public krm::MessageOf<RecordedPaint, CKRMCBaseCmdAdaptDataRcv, krm::CommandName("ReadTone", 901)> {
public:
    void Dump(const krm::MessageLines&) {}

    CKRMString m_strTone;
};
template <>
struct krm::Fields<RecordedPaint> : krm::FieldList<&RecordedPaint::m_strTone> {};

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

using krm::Recorder;
using krm::RecordingMode;
using krm::RecordingReader;
using krm::test::Into;
using krm::test::kHeader;
using krm::test::ReadAll;
using krm::test::TickingClock;

using Folder = krm::test::TestFolder;

CKRMCGetDTCCmdAdaptDataSnd CodesRequest(krm_ulong ecu) {
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = ecu;
    request.m_uchPhaseType = 1;
    request.m_uchGetFFDType = 255;
    return request;
}

CKRMCGetVinCodeCmdAdaptDataRcv VinAnswer(const char* vin) {
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = vin;
    return answer;
}

constexpr std::string_view kVinLine =
    R"({"exchange":1,"time":"2026-11-22T09:35:00.123456Z","type":1,"id":79,"message":)"
    R"({"command":"GetVinCode","family":"Cmd","direction":"answer","content":)"
    R"({"m_bNotSupport":false,"m_strVinCode":"KRM00000000000001"}}})"
    "\n";

/// A recording of a request, its answer and another request.
std::string Sample() {
    std::string text;
    Recorder recorder(Into(text), TickingClock());
    recorder.Write(1, CodesRequest(2016));
    recorder.Write(1, VinAnswer("Gr\xFC\xDF"
                                "e"));
    recorder.Write(2, CodesRequest(2017));
    return text;
}

TEST(Recorder, WritesALineForEachMessage) {
    std::string text;
    Recorder recorder(Into(text), TickingClock());
    EXPECT_EQ(text, kHeader);
    EXPECT_TRUE(recorder.Write(1, CodesRequest(4294967295U)));
    EXPECT_TRUE(recorder.Write(1, VinAnswer("KRM\n\"1\"")));
    const CKRMCCreateViewerDataCtrlVdcAdaptDataRcv viewer;
    EXPECT_TRUE(recorder.Write(18446744073709551615U, viewer));
    EXPECT_EQ(recorder.Error(), "");
    EXPECT_EQ(text,
              "{\"format\":\"krm recording\",\"version\":1,\"library\":\"1.0.0\"}\n"
              R"({"exchange":1,"time":"2026-11-22T09:35:00.123456Z","type":1,"id":2,"message":)"
              R"({"command":"GetDTC","family":"Cmd","direction":"request","content":)"
              R"({"m_ulEcuId":4294967295,"m_uchPhaseType":1,"m_uchGetFFDType":255}}})"
              "\n"
              R"({"exchange":1,"time":"2026-11-22T09:35:00.123457Z","type":1,"id":79,"message":)"
              R"({"command":"GetVinCode","family":"Cmd","direction":"answer","content":)"
              R"({"m_bNotSupport":false,"m_strVinCode":"KRM\n\"1\""}}})"
              "\n"
              R"({"exchange":18446744073709551615,"time":"2026-11-22T09:35:00.123458Z","type":2,"id":1,"message":)"
              R"({"command":"CreateViewerDataCtrl","family":"Vdc","direction":"answer","content":{}}})"
              "\n");
    EXPECT_THAT(ReadAll(text), ElementsAre("1: GetDTC request", "1: GetVinCode answer",
                                           "18446744073709551615: CreateViewerDataCtrl answer"));
}

TEST(Recorder, TakesTheDirectionFromTheCaller) {
    std::string text;
    Recorder recorder(Into(text), TickingClock());
    const CKRMCGetVinCodeCmdAdaptDataRcv answer = VinAnswer("KRM00000000000001");
    const CKRMBaseAdaptationData& untyped = answer;
    EXPECT_TRUE(recorder.Write(1, untyped, krm::Direction::Receive));
    EXPECT_EQ(text, std::string(kHeader) + std::string(kVinLine));
}

TEST(Recorder, WritesTimesInMicrosecondsOfUtc) {
    using namespace std::chrono;
    const struct {
        system_clock::time_point time;
        std::string_view text;
    } times[] = {
        {sys_days(1970y / January / 1), "1970-01-01T00:00:00.000000Z"},
        {system_clock::time_point(microseconds(-1)), "1969-12-31T23:59:59.999999Z"},
        {sys_days(2024y / February / 29) + hours(23) + minutes(59) + seconds(59) + milliseconds(7),
         "2024-02-29T23:59:59.007000Z"},
        {sys_days(1899y / December / 31), "1899-12-31T00:00:00.000000Z"},
    };
    for (const auto& [time, expected] : times) {
        std::string text;
        Recorder recorder(Into(text), [now = time] { return now; });
        ASSERT_TRUE(recorder.Write(1, CodesRequest(1)));
        EXPECT_THAT(text, HasSubstr("\"time\":\"" + std::string(expected) + "\",\"type\""));
        std::istringstream in(text);
        EXPECT_EQ(RecordingReader(in).Next().value().time, floor<microseconds>(time));
    }
}

TEST(Recorder, TellsTypesAndIdsBeyond16Bits) {
    std::string text;
    Recorder recorder(Into(text), TickingClock());
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.SetCommandType(0x10001);
    EXPECT_EQ(recorder.Write(1, request, krm::Direction::Send).error,
              "the library has no such request: its type is 65537, its ID 2");
    request.SetCommandType(1);
    request.SetCommandID(0x10002);
    EXPECT_EQ(recorder.Write(1, request, krm::Direction::Send).error,
              "the library has no such request: its type is 1, its ID 65538");
    EXPECT_EQ(text, kHeader);
}

TEST(Recorder, WritesAProgramsOwnMessage) {
    std::string text;
    Recorder recorder(Into(text), TickingClock());
    RecordedPaint paint;
    paint.m_strTone = "grey";
    EXPECT_EQ(recorder.Write(1, paint).error, "the library has no such answer: its type is 1, its ID 901");
    EXPECT_EQ(text, kHeader);
    EXPECT_TRUE(recorder.Write(1, paint, krm::kMessageDescription<RecordedPaint>));
    EXPECT_EQ(text, std::string(kHeader) +
                        R"({"exchange":1,"time":"2026-11-22T09:35:00.123456Z","type":1,"id":901,"message":)"
                        R"({"command":"ReadTone","family":"Cmd","direction":"answer","content":)"
                        R"({"m_bNotSupport":false,"m_strTone":"grey"}}})"
                        "\n");

    const krm::MessageDescription own[] = {krm::kMessageDescription<RecordedPaint>};
    std::istringstream in(text);
    RecordingReader reader(in, {.ownMessages = own});
    const std::optional<krm::RecordedMessage> read = reader.Next();
    ASSERT_TRUE(read && *read) << krm::ToText(read->fault);
    EXPECT_EQ(read->description, own);
    ASSERT_NE(read->As<RecordedPaint>(), nullptr);
    EXPECT_EQ(read->As<RecordedPaint>()->m_strTone, "grey");
    EXPECT_EQ(read->As<CKRMCGetVinCodeCmdAdaptDataRcv>(), nullptr);
    EXPECT_THAT(ReadAll(text), ElementsAre(HasSubstr("there is no message with this command, family and direction")));
}

TEST(Recorder, RefusesAMessageOfAnotherClassThanTheDescriptions) {
    std::string text;
    Recorder recorder(Into(text), TickingClock());
    const krm::MessageDescription* const vin =
        krm::FindMessage(1, CKRMCGetVinCodeCmdAdaptDataRcv::kCommandId, krm::Direction::Receive);
    EXPECT_EQ(recorder.Write(1, CodesRequest(1), *vin).error,
              "the message is no CKRMCGetVinCodeCmdAdaptDataRcv: its type is 1, its ID 2");
    EXPECT_EQ(recorder.Error(), "the message is no CKRMCGetVinCodeCmdAdaptDataRcv: its type is 1, its ID 2");
    EXPECT_EQ(text, kHeader);
}

TEST(Recorder, CountsExchanges) {
    std::string text;
    Recorder recorder(Into(text), TickingClock());
    EXPECT_EQ(recorder.BeginExchange(), 1U);
    EXPECT_EQ(recorder.BeginExchange(), 2U);
    recorder.Write(7, CodesRequest(1));
    EXPECT_EQ(recorder.BeginExchange(), 8U);
    recorder.Write(3, CodesRequest(1));
    EXPECT_EQ(recorder.BeginExchange(), 9U);
}

TEST(Recorder, LeavesAFileThatIsThereAlone) {
    const Folder folder;
    const std::string path = folder.Write("r", "precious");
    Recorder recorder(path);
    EXPECT_EQ(recorder.Error(), "the file can't be written: File exists");
    EXPECT_EQ(recorder.Write(1, CodesRequest(1)).error, "the file can't be written: File exists");
    EXPECT_EQ(folder.Read("r"), "precious");
}

TEST(Recorder, CreatesAFileAndOverwritesOneWhenToldTo) {
    const Folder folder;
    for (const RecordingMode mode : {RecordingMode::CreateNew, RecordingMode::Overwrite}) {
        Recorder recorder(folder.Path("r"), mode, TickingClock());
        EXPECT_EQ(recorder.Error(), "");
        EXPECT_EQ(folder.Read("r"), kHeader);
        EXPECT_TRUE(recorder.Write(1, VinAnswer("KRM00000000000001")));
        // While the recorder lives: nothing is held back.
        EXPECT_EQ(folder.Read("r"), std::string(kHeader) + std::string(kVinLine));
    }
}

TEST(Recorder, TakesAFileNameOfAnyLetters) {
    const Folder folder;
    const std::filesystem::path path =
        std::filesystem::path(folder.Path("")) / std::filesystem::path(u8"Pr\u00FCf\u65E5.krmrec");
    {
        Recorder recorder(path, RecordingMode::CreateNew, TickingClock());
        EXPECT_EQ(recorder.Error(), "");
        EXPECT_TRUE(recorder.Write(1, CodesRequest(1)));
    }
    EXPECT_EQ(Recorder(path, RecordingMode::Append).BeginExchange(), 2U);
    RecordingReader reader(path);
    EXPECT_THAT(ReadAll(reader), ElementsAre("1: GetDTC request"));
}

TEST(Recorder, GoesOnWithARecordingWhenToldTo) {
    const Folder folder;
    const std::string path = folder.Write("r", Sample());
    {
        Recorder recorder(path, RecordingMode::Append);
        EXPECT_EQ(recorder.Error(), "");
        EXPECT_EQ(recorder.BeginExchange(), 3U);
        EXPECT_TRUE(recorder.Write(3, CodesRequest(1)));
    }
    EXPECT_THAT(folder.Read("r"), StartsWith(Sample()));
    RecordingReader reader{std::filesystem::path(path)};
    EXPECT_THAT(ReadAll(reader),
                ElementsAre("1: GetDTC request", "1: GetVinCode answer", "2: GetDTC request", "3: GetDTC request"));
}

TEST(Recorder, BeginsARecordingThatItShouldGoOnWith) {
    const Folder folder;
    folder.Write("empty", "");
    for (const char* const name : {"empty", "missing"}) {
        Recorder recorder(folder.Path(name), RecordingMode::Append, TickingClock());
        EXPECT_TRUE(recorder.Write(1, VinAnswer("KRM00000000000001"))) << recorder.Error();
        EXPECT_EQ(folder.Read(name), std::string(kHeader) + std::string(kVinLine));
    }
}

TEST(Recorder, GoesOnBehindATornLine) {
    const Folder folder;
    const std::string sample = Sample();
    for (std::size_t size = kHeader.size() - 1; size < sample.size(); ++size) {
        const std::string path = folder.Write("r", sample.substr(0, size));
        std::vector<std::string> expected = ReadAll(sample.substr(0, size));
        Recorder recorder(path, RecordingMode::Append);
        ASSERT_TRUE(recorder.Write(9, CodesRequest(1))) << recorder.Error();
        expected.push_back("9: GetDTC request");
        ASSERT_EQ(ReadAll(folder.Read("r")), expected) << size;
    }
}

TEST(Recorder, DoesNotGoOnWithWhatIsNoRecording) {
    const Folder folder;
    const struct {
        std::string content;
        std::string error;
    } cases[] = {
        {"precious\n", "the file is no recording"},
        {std::string(kHeader.substr(0, 20)), "the file is no recording: its first line is cut off"},
        {"{\"format\":\"krm recording\",\"version\":2}\n",
         "the recording is of version 2, this library reads up to version 1"},
    };
    for (const auto& [content, error] : cases) {
        const std::string path = folder.Write("r", content);
        Recorder recorder(path, RecordingMode::Append);
        EXPECT_EQ(recorder.Error(), error);
        EXPECT_EQ(recorder.Write(1, CodesRequest(1)).error, error);
        EXPECT_EQ(folder.Read("r"), content);
    }
    EXPECT_EQ(Recorder(folder.Path(""), RecordingMode::Append).Error(), "what isn't a regular file can't be continued");
}

TEST(Recorder, NeedsTheFolder) {
    const Folder folder;
    Recorder recorder(std::filesystem::path(folder.Path("missing")) / "r");
    EXPECT_EQ(recorder.Error(), "the file can't be written: No such file or directory");
    EXPECT_EQ(recorder.Write(1, CodesRequest(1)).error, "the file can't be written: No such file or directory");
    EXPECT_EQ(recorder.BeginExchange(), 2U);
}

TEST(Recorder, ReportsADiskThatIsFull) {
    const std::filesystem::path full = "/dev/full";
    std::error_code ignored;
    if (!std::filesystem::is_character_file(full, ignored)) {
        GTEST_SKIP() << "there is no device that is always full";
    }
    Recorder recorder(full, RecordingMode::Overwrite);
    EXPECT_EQ(recorder.Error(), "the file can't be written: No space left on device");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(recorder.Write(1, CodesRequest(1)).error, "the file can't be written: No space left on device");
    }
}

// The sink takes so many bytes in all, then nothing for some calls, then everything: a disk that was full for a while.
TEST(Recorder, LosesOnlyWhatItReportsWhenTheDiskIsFullForAWhile) {
    const std::string whole = Sample();
    for (std::size_t room = 0; room <= whole.size(); ++room) {
        std::string text;
        std::size_t left = room;
        int refusals = 2;
        Recorder recorder(
            [&](std::string_view bytes) {
                if (refusals == 0) {
                    left = bytes.size();
                }
                const std::size_t taken = std::min(left, bytes.size());
                refusals -= taken < bytes.size() ? 1 : 0;
                left -= taken;
                text += bytes.substr(0, taken);
                return taken;
            },
            TickingClock());
        std::vector<std::string> expected;
        for (std::uint64_t exchange = 1; exchange <= 6; ++exchange) {
            const krm::RecordingResult result = recorder.Write(exchange, CodesRequest(2016));
            EXPECT_EQ(static_cast<bool>(result), result.error.empty());
            if (result) {
                expected.push_back(std::to_string(exchange) + ": GetDTC request");
            } else {
                EXPECT_THAT(result.error, StartsWith("the sink took "));
                EXPECT_EQ(recorder.Error(), result.error);
            }
        }
        // What is reported as lost may be there all the same, for a line that lacks its end alone; or be a torn one.
        std::vector<std::string> read;
        std::istringstream in(text);
        RecordingReader reader(in);
        while (const std::optional<krm::RecordedMessage> recorded = reader.Next()) {
            const std::string message = std::to_string(recorded->exchange) + ": GetDTC request";
            if (!*recorded) {
                EXPECT_TRUE(recorded->fault.torn) << krm::ToText(recorded->fault);
            } else if (std::find(expected.begin(), expected.end(), message) != expected.end()) {
                read.push_back(message);
            }
        }
        ASSERT_EQ(read, expected) << "room for " << room << " bytes\n" << text;
        ASSERT_GE(expected.size(), 4U);
    }
}

TEST(Recorder, SaysHowMuchASinkTook) {
    std::string text;
    Recorder recorder([&](std::string_view bytes) { return text.empty() ? (text = bytes, bytes.size()) : 10U; },
                      TickingClock());
    EXPECT_EQ(recorder.Error(), "");
    EXPECT_EQ(recorder.Write(1, VinAnswer("KRM00000000000001")).error,
              "the sink took 10 of " + std::to_string(kVinLine.size()) + " bytes");
}

TEST(Recorder, GoesOnAfterASinkThatThrew) {
    std::string text;
    bool throws = false;
    Recorder recorder(
        [&](std::string_view bytes) {
            if (throws) {
                text += bytes.substr(0, 5);
                throw std::runtime_error("unplugged");
            }
            text += bytes;
            return bytes.size();
        },
        TickingClock());
    throws = true;
    EXPECT_THROW(recorder.Write(1, CodesRequest(1)), std::runtime_error);
    throws = false;
    EXPECT_TRUE(recorder.Write(2, CodesRequest(1)));
    EXPECT_THAT(ReadAll(text), ElementsAre(HasSubstr("line 2, "), "2: GetDTC request"));
}

TEST(Recorder, NeedsASink) {
    Recorder recorder{Recorder::Sink()};
    EXPECT_EQ(recorder.Error(), "there is no sink");
    EXPECT_EQ(recorder.Write(1, CodesRequest(1)).error, "there is no sink");
}

TEST(Recorder, MayBeUsedBySeveralThreads) {
    constexpr int kThreads = 4;
    constexpr int kExchanges = 100;
    const Folder folder;
    Recorder recorder(folder.Path("r"));
    std::atomic<int> failed = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < kExchanges; ++j) {
                const std::uint64_t exchange = recorder.BeginExchange();
                const bool isWritten = recorder.Write(exchange, CodesRequest(static_cast<krm_ulong>(exchange))) &&
                                       recorder.Write(exchange, VinAnswer(std::string(500, 'x').c_str()));
                failed += isWritten ? 0 : 1;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(failed, 0);
    std::set<std::uint64_t> requests;
    std::set<std::uint64_t> answers;
    krm::RecordedTime last{};
    RecordingReader reader{std::filesystem::path(folder.Path("r"))};
    while (const std::optional<krm::RecordedMessage> recorded = reader.Next()) {
        ASSERT_TRUE(*recorded) << krm::ToText(recorded->fault);
        if (const auto* const request = recorded->As<CKRMCGetDTCCmdAdaptDataSnd>()) {
            EXPECT_EQ(request->m_ulEcuId, recorded->exchange);
            EXPECT_TRUE(requests.insert(recorded->exchange).second);
        } else {
            EXPECT_TRUE(requests.contains(recorded->exchange));
            EXPECT_TRUE(answers.insert(recorded->exchange).second);
        }
        last = std::max(last, recorded->time);
    }
    EXPECT_EQ(answers.size(), static_cast<std::size_t>(kThreads * kExchanges));
    EXPECT_EQ(*answers.rbegin(), static_cast<std::uint64_t>(kThreads * kExchanges));
}

TEST(Recorder, CopiesARecording) {
    std::string copied;
    std::istringstream in(Sample());
    RecordingReader reader(in);
    Recorder recorder(Into(copied));
    while (const std::optional<krm::RecordedMessage> recorded = reader.Next()) {
        EXPECT_TRUE(recorder.Write(*recorded));
    }
    EXPECT_EQ(copied, Sample());

    krm::RecordedMessage none;
    none.fault = {2, 7, "", "the line is cut off", true};
    EXPECT_EQ(recorder.Write(none).error, "there is no message: line 2, offset 7: the line is cut off");
    EXPECT_EQ(copied, Sample());
}

TEST(RecordingReader, ReadsWhatWasWritten) {
    std::istringstream in(Sample());
    RecordingReader reader(in);
    EXPECT_EQ(reader.Library(), "");
    std::optional<krm::RecordedMessage> read = reader.Next();
    EXPECT_EQ(reader.Library(), "1.0.0");
    ASSERT_TRUE(read && *read);
    EXPECT_EQ(read->exchange, 1U);
    EXPECT_EQ(read->line, 2U);
    EXPECT_EQ(read->offset, kHeader.size());
    ASSERT_NE(read->As<CKRMCGetDTCCmdAdaptDataSnd>(), nullptr);
    EXPECT_EQ(read->As<CKRMCGetDTCCmdAdaptDataSnd>()->m_ulEcuId, 2016U);
    EXPECT_EQ(read->As<CKRMCGetDTCCmdAdaptDataRcv>(), nullptr);

    read = reader.Next();
    ASSERT_TRUE(read && *read);
    ASSERT_NE(read->As<CKRMCGetVinCodeCmdAdaptDataRcv>(), nullptr);
    EXPECT_EQ(read->As<CKRMCGetVinCodeCmdAdaptDataRcv>()->m_strVinCode,
              "Gr\xFC\xDF"
              "e");
    EXPECT_TRUE(reader.Next());
    EXPECT_FALSE(reader.Next());
    EXPECT_FALSE(reader.Next());
}

TEST(RecordingReader, ReadsEveryClassAsItWas) {
    std::string text;
    Recorder recorder(Into(text));
    std::vector<std::string> written;
    for (const krm::MessageDescription& description : krm::AllMessages()) {
        const auto message = krm::test::RandomMessage(description, static_cast<std::uint32_t>(written.size() + 1));
        written.push_back(krm::ToJson(*message, description));
        ASSERT_TRUE(recorder.Write(written.size(), *message, description));
    }
    std::istringstream in(text);
    RecordingReader reader(in);
    for (std::size_t i = 0; i < written.size(); ++i) {
        const std::optional<krm::RecordedMessage> read = reader.Next();
        ASSERT_TRUE(read && *read) << krm::ToText(read->fault);
        ASSERT_EQ(read->exchange, i + 1);
        ASSERT_EQ(krm::ToJson(*read->message, *read->description), written[i]);
    }
    EXPECT_FALSE(reader.Next());
}

TEST(RecordingReader, ReadsAllBeforeATornLine) {
    const std::string sample = Sample();
    const std::vector<std::string> whole = ReadAll(sample);
    ASSERT_EQ(whole.size(), 3U);
    for (std::size_t size = 0; size < sample.size(); ++size) {
        const std::string cut = sample.substr(0, size);
        const auto ended = static_cast<std::size_t>(std::count(cut.begin(), cut.end(), '\n'));
        const bool lacksItsEndAlone = sample[size] == '\n';
        const std::vector<std::string> read = ReadAll(cut);
        if (ended == 0 && !lacksItsEndAlone) {
            ASSERT_THAT(read, ElementsAre(size == 0 ? "the file is empty, and so no recording"
                                                    : "line 1, offset " + std::to_string(size) +
                                                          ", $: the file is no recording: its first line is cut off"))
                << size;
            continue;
        }
        std::vector<std::string> expected = whole;
        expected.resize(std::max<std::size_t>(ended, 1) - 1 + (ended > 0 && lacksItsEndAlone ? 1 : 0));
        if (!cut.ends_with('\n') && !lacksItsEndAlone) {
            expected.push_back("line " + std::to_string(ended + 1) + ", offset " + std::to_string(size) +
                               ", $: the line is cut off");
        }
        ASSERT_EQ(read, expected) << size;

        // Torn is what the reader calls it, and what stands behind is read too.
        std::istringstream in(cut);
        RecordingReader reader(in);
        bool isTorn = false;
        while (const std::optional<krm::RecordedMessage> recorded = reader.Next()) {
            isTorn = recorded->fault.torn;
        }
        ASSERT_EQ(isTorn, !cut.ends_with('\n') && !lacksItsEndAlone) << size;
        if (ended > 0) {
            expected.push_back("1: GetVinCode answer");
            ASSERT_EQ(ReadAll(cut + '\n' + std::string(kVinLine)), expected) << size;
        }
    }
}

TEST(RecordingReader, ReadsTheFormsThatOtherProgramsGiveIt) {
    const std::vector<std::string> whole = ReadAll(Sample());
    EXPECT_EQ(ReadAll("\xEF\xBB\xBF" + Sample()), whole);
    std::string other;
    for (const char c : Sample()) {
        other += c == '\n' ? "\r\n\r\n\n" : std::string(1, c);
    }
    EXPECT_EQ(ReadAll(other), whole);
    EXPECT_THAT(ReadAll(" { \"library\" : \"x\\\"y\", \"note\": [1, {\"a\": \"]\"}], \"version\" : 1 , \"format\" : "
                        "\"krm recording\" } \n"
                        "\t{ \"message\" : {\"content\": {\"m_strVinCode\": \"} ] \\\" direction\"}, \"direction\" : "
                        "\"answer\", \"family\":\"Cmd\", \"command\": \"GetVinCode\" } , \"id\": 79 , \"type\" :1, "
                        "\"time\" : \"2026-11-22T09:35:00Z\" , \"exchange\" : 12 } "),
                ElementsAre("12: GetVinCode answer"));
}

TEST(RecordingReader, SaysWhatIsWrongWithALine) {
    const std::string message =
        R"({"command":"ClearDTC","family":"Cmd","direction":"request","content":{"m_ulEcuId":1}})";
    const std::string time = R"("time":"2026-11-22T09:35:00.123456Z")";
    const std::string whole = "{\"exchange\":1," + time + ",\"type\":1,\"id\":5,\"message\":" + message + "}";
    const struct {
        std::string line;
        std::size_t offset;
        std::string fault;
    } cases[] = {
        {"x", 0, "$: expected an object"},
        {"[]", 0, "$: expected an object"},
        {"{}", 1, "$: expected a member's name"},
        {"{\"exchange\" 1}", 12, "$: expected a colon"},
        {"{\"exchange\":1,}", 14, "$: expected a member's name"},
        {"{\"exchange\":1 2}", 14, "$: expected a comma or }"},
        {"{\"exchange\":1}", 0, "$: expected the member time"},
        {"{\"exchange\":-1}", 12, "$.exchange: expected a whole number from 0 to 18446744073709551615"},
        {"{\"exchange\":18446744073709551616}", 12,
         "$.exchange: expected a whole number from 0 to 18446744073709551615"},
        {"{\"exchange\":1.5}", 13, "$: expected a comma or }"},
        {"{\"exchange\":1,\"exchange\":1}", 14, "$.exchange: this member comes twice"},
        {"{\"time\":5}", 8, "$.time: expected a time"},
        {"{\"time\":\"yesterday\"}", 8, "$.time: expected a time in UTC, such as \"2026-11-22T09:35:00.123456Z\""},
        {"{\"time\":\"202\"}", 8, "$.time: expected a time in UTC, such as \"2026-11-22T09:35:00.123456Z\""},
        {"{\"time\":\"\"}", 8, "$.time: expected a time in UTC, such as \"2026-11-22T09:35:00.123456Z\""},
        {"{\"type\":4294967296}", 8, "$.type: expected a whole number from 0 to 4294967295"},
        {"{\"id\":\"2\"}", 6, "$.id: expected a whole number from 0 to 4294967295"},
        {"{\"message\":}", 11, "$.message: expected a value"},
        {"{\"colour\":1}", 1, "$: unknown member"},
        {whole + "x", whole.size(), "$: expected the end of the line"},
        {"{\"exchange\":1," + time + ",\"type\":1,\"id\":5,\"message\":5}", 77, "$.message: expected an object"},
        {"{\"exchange\":1," + time + ",\"type\":2,\"id\":5,\"message\":" + message + "}", 58,
         "$.type: the message has 1"},
        {"{\"exchange\":1," + time + ",\"type\":1,\"id\":79,\"message\":" + message + "}", 65,
         "$.id: the message has 5"},
        // The same in their lower 16 bits.
        {"{\"exchange\":1," + time + ",\"type\":65537,\"id\":5,\"message\":" + message + "}", 58,
         "$.type: the message has 1"},
        {"{\"exchange\":1," + time + ",\"type\":1,\"id\":65541,\"message\":" + message + "}", 65,
         "$.id: the message has 5"},
    };
    for (const auto& [line, offset, fault] : cases) {
        const std::string text = std::string(kHeader) + line + "\n" + std::string(kVinLine);
        EXPECT_THAT(ReadAll(text),
                    ElementsAre("line 2, offset " + std::to_string(kHeader.size() + offset) + ", " + fault,
                                "1: GetVinCode answer"))
            << line;
    }
}

TEST(RecordingReader, SaysWhatIsWrongWithAMessage) {
    const std::string start =
        R"({"exchange":1,"time":"2026-11-22T09:35:00.123456Z","type":1,"id":5,"message":{"command":"ClearDTC",)"
        R"("family":"Cmd","direction":"request","content":{"m_ulEcuId":)";
    EXPECT_THAT(ReadAll(std::string(kHeader) + start + "-1}}}\n" + std::string(kVinLine)),
                ElementsAre("line 2, offset " + std::to_string(kHeader.size() + start.size()) +
                                ", $.message.content.m_ulEcuId: expected a whole number from 0 to 4294967295",
                            "1: GetVinCode answer"));
}

TEST(RecordingReader, TellsTimesFromWhatIsNone) {
    const auto read = [](const std::string& time) {
        std::string line(kVinLine);
        line.replace(line.find("2026"), std::string_view("2026-11-22T09:35:00.123456Z").size(), time);
        std::istringstream in(std::string(kHeader) + line);
        return RecordingReader(in).Next().value();
    };
    for (const char* const time : {"2026-11-22T09:35:00.123456Z", "2026-11-22T09:35:00.123456789Z",
                                   "2024-02-29T00:00:00Z", "0000-01-01T00:00:00.5Z", "9999-12-31T23:59:59.999999Z"}) {
        EXPECT_TRUE(read(time)) << time;
    }
    using namespace std::chrono;
    EXPECT_EQ(read("9999-12-31T23:59:59.999999Z").time,
              sys_time<microseconds>(sys_days(10000y / January / 1)) - microseconds(1));
    EXPECT_EQ(read("1970-01-01T00:00:00.5Z").time, krm::RecordedTime(microseconds(500000)));
    for (const char* const time :
         {"", "2026-11-22", "2026-11-22T09:35:00.123456", "2026-11-22 09:35:00.123456Z", "2026-02-29T09:35:00.123456Z",
          "2026-00-22T09:35:00Z", "2026-13-22T09:35:00Z", "2026-11-31T09:35:00Z", "2026-11-22T24:35:00Z",
          "2026-11-22T09:60:00Z", "2026-11-22T09:35:60Z", "2026-11-22T09:35:00.Z", "-026-11-22T09:35:00Z",
          "2026-11-22T09:35:00.1Z ", "2026-11-22T09:35:00+01:00", "2026-11-22T09:35:0xZ"}) {
        EXPECT_THAT(read(time).fault.text, StartsWith("expected a time in UTC")) << time;
    }
}

TEST(RecordingReader, SaysWhatIsNoRecording) {
    const struct {
        std::string text;
        std::string fault;
    } cases[] = {
        {"", "the file is empty, and so no recording"},
        {"\n\r\n", "the file is empty, and so no recording"},
        {"(1436509052.249713) vcan0 7DF#02010D\n", "line 1, offset 0: the file is no recording"},
        {"{}\n", "line 1, offset 0: the file is no recording"},
        {"\xEF\xBB\xBF{}\n", "line 1, offset 3: the file is no recording"},
        {"\n\r\n{}\n", "line 3, offset 3: the file is no recording"},
        {"{\"format\":\"recording\",\"version\":1}\n", "line 1, offset 0: the file is no recording"},
        {"{\"format\":\"krm recording\"}\n", "line 1, offset 0: the file is no recording"},
        {"{\"format\":\"krm recording\",\"version\":0}\n", "line 1, offset 0: the file is no recording"},
        {std::string("\xFF\xFE{\0\"\0", 6) + "\n", "line 1, offset 0: the file is no recording"},
        {"{\"format\":\"krm recording\",\"version\":2,\"packed\":true}\n",
         "line 1, offset 0: the recording is of version 2, this library reads up to version 1"},
    };
    for (const auto& [text, fault] : cases) {
        // Nothing behind it is taken for a message.
        const bool isEmpty = text.find_first_not_of("\r\n") == std::string::npos;
        EXPECT_THAT(ReadAll(text + (isEmpty ? "" : std::string(kVinLine))), ElementsAre(HasSubstr(fault))) << text;
    }
}

TEST(RecordingReader, PassesOverALineThatIsTooLong) {
    const std::string sample = Sample();
    const std::string tooLong = "{\"exchange\":" + std::string(200000, ' ');
    const std::string text = std::string(kHeader) + tooLong + "\n" + std::string(kVinLine);
    EXPECT_THAT(ReadAll(text, {.maxLine = 1000}),
                ElementsAre("line 2, offset " + std::to_string(kHeader.size()) + ": the line is longer than 1000 bytes",
                            "1: GetVinCode answer"));
    EXPECT_THAT(ReadAll(text, {.maxLine = kVinLine.size() - 1}), ElementsAre(testing::_, "1: GetVinCode answer"));
    EXPECT_THAT(ReadAll(text, {.maxLine = kVinLine.size() - 2}), ElementsAre(testing::_, testing::_));
    EXPECT_THAT(ReadAll(sample, {.maxLine = 10}), ElementsAre("line 1, offset 0: the line is longer than 10 bytes"));
}

TEST(RecordingReader, SaysThatAFileCannotBeRead) {
    const Folder folder;
    RecordingReader missing{std::filesystem::path(folder.Path("missing"))};
    EXPECT_THAT(ReadAll(missing), ElementsAre("the file can't be opened: No such file or directory"));
    EXPECT_EQ(missing.Library(), "");
#if !defined(_WIN32)
    const auto why = [](const std::string& file) {
        RecordingReader reader{std::filesystem::path(file)};
        return ReadAll(reader).front();
    };
    const std::string file = folder.Write("file", "");
    EXPECT_EQ(why(file + "/file"), "the file can't be opened: Not a directory");
    EXPECT_EQ(why(folder.Path(std::string(300, 'x'))), "the file can't be opened: File name too long");
#endif
}

#if !defined(_WIN32)
TEST(RecordingReader, SaysThatTooManyFilesAreOpen) {
    KRM_NOT_UNDER(AddressSanitizer, krm::test::NoMoreFiles::kNotSanitized);
    const Folder folder;
    const std::filesystem::path file(folder.Write("file", ""));
    const krm::test::NoMoreFiles none;
    RecordingReader reader(file);
    EXPECT_THAT(ReadAll(reader), ElementsAre("the file can't be opened: Too many open files"));
}
#endif

/// Gives some bytes, and then fails.
class BrokenBuffer : public std::streambuf {
public:
    explicit BrokenBuffer(std::string text) : m_text(std::move(text)) {
        setg(m_text.data(), m_text.data(), m_text.data() + m_text.size());
    }

protected:
    int_type underflow() override { throw std::runtime_error("the disk is gone"); }

private:
    std::string m_text;
};

TEST(RecordingReader, SaysThatTheRestCannotBeRead) {
    std::string text(kHeader);
    for (int i = 0; i < 1000; ++i) {
        text += kVinLine;
    }
    BrokenBuffer buffer(text);
    std::istream in(&buffer);
    RecordingReader reader(in);
    const std::vector<std::string> read = ReadAll(reader);
    ASSERT_GT(read.size(), 100U);
    EXPECT_EQ(read.front(), "1: GetVinCode answer");
    EXPECT_EQ(read.back(), "the rest of the file can't be read");
    EXPECT_FALSE(reader.Next());

    BrokenBuffer broken("");
    std::istream nothing(&broken);
    RecordingReader ofNothing(nothing);
    EXPECT_THAT(ReadAll(ofNothing), ElementsAre("the file can't be read"));
}

TEST(Recorder, LosesNothingThatWasWrittenWhenTheProgramIsKilled) {
#if defined(_WIN32)
    GTEST_SKIP() << "Windows has no fork; what the file is given there is the system's at once as well";
#else
    KRM_NOT_UNDER(Memcheck, "a hundred programs that are killed would take minutes");
    KRM_NOT_UNDER(ThreadSanitizer, "it doesn't follow a process that is forked and killed");
    const Folder folder;
    krm::test::Seed random(20261122);
    const CKRMCGetVinCodeCmdAdaptDataRcv large = VinAnswer(std::string(200000, 'x').c_str());
    int torn = 0;
    for (int round = 0; round < 100; ++round) {
        const std::string path = folder.Path("r" + std::to_string(round));
        int reports[2];
        ASSERT_EQ(pipe(reports), 0);
        const pid_t child = fork();
        ASSERT_NE(child, -1);
        if (child == 0) {
            close(reports[0]);
            Recorder recorder{std::filesystem::path(path)};
            for (std::uint64_t exchange = 1;; ++exchange) {
                const bool isWritten = exchange % 4 == 0 ? static_cast<bool>(recorder.Write(exchange, large))
                                                         : static_cast<bool>(recorder.Write(exchange, CodesRequest(1)));
                if (!isWritten || write(reports[1], &exchange, sizeof exchange) != sizeof exchange) {
                    _exit(1);
                }
            }
        }
        close(reports[1]);
        std::uint64_t last = 0;
        const auto next = [&] { return read(reports[0], &last, sizeof last) == static_cast<ssize_t>(sizeof last); };
        const unsigned enough = 1 + random.Next() % 40;
        while (next() && last < enough) {
        }
        EXPECT_GE(last, enough);
        usleep(random.Next() % 1000);
        kill(child, SIGKILL);
        while (next()) {
        }
        close(reports[0]);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status));

        std::uint64_t found = 0;
        RecordingReader reader{std::filesystem::path(path)};
        while (const std::optional<krm::RecordedMessage> recorded = reader.Next()) {
            if (*recorded) {
                ASSERT_EQ(recorded->exchange, ++found);
            } else {
                EXPECT_TRUE(recorded->fault.torn) << krm::ToText(recorded->fault);
                ++torn;
            }
        }
        ASSERT_GE(found, last);
        ASSERT_LE(found, last + 1);
        std::filesystem::remove(path);
    }
    RecordProperty("torn", torn);
#endif
}

}  // namespace
