// Distinct objects on several threads at once: each gives what it gives alone. Built with the thread sanitizer this also
// shows that JSON, recordings, comparison and redaction share nothing behind the scenes.
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "krm/exchange/compare.h"
#include "krm/exchange/json.h"
#include "krm/exchange/player.h"
#include "krm/exchange/recording.h"
#include "krm/exchange/redact.h"
#include "krm/fields/message_descriptions.h"
#include "krm/framework/message.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/string.h"
#include "tests/exchange/random_content.h"
#include "tests/exchange/recording_text.h"
#include "tests/support/not_under.h"

namespace krm::test {
namespace {

constexpr unsigned kThreads = 8;
constexpr const char* kVin = "1HGCM82633A004352";

/// A recording of a request and its answer of each command, filled with what `number` gives; as its JSON passes by, it is
/// read and compared.
std::string Record(std::uint32_t number, std::string& out) {
    std::string recording;
    Recorder recorder(Into(recording), TickingClock());
    std::uint64_t exchange = 0;
    for (const MessageDescription& description : AllMessages()) {
        const std::unique_ptr<CKRMBaseAdaptationData> message = RandomMessage(description, number);
        const std::string json = ToJson(*message, description);
        const MessageFromJson back = FromJson(json);
        out += back ? ToText(Compare(*message, *back.message, description.direction)) : "not read: " + json;
        if (description.direction == Direction::Send) {
            exchange = recorder.BeginExchange();
        }
        out += recorder.Write(exchange, *message, description.direction).error;
    }
    CKRMCGetVinCodeCmdAdaptDataRcv vin;
    vin.m_strVinCode = kVin;
    out += recorder.Write(exchange, vin).error;
    return recording;
}

/// All that a thread does with objects of its own, as a text of the results.
std::string Work(std::uint32_t number) {
    std::string out;
    const std::string recording = Record(number, out);
    out += recording;

    std::istringstream read(recording);
    RecordingReader reader(read);
    std::istringstream played(recording, std::ios::binary);
    Player player(played);
    out += player.Error();
    while (const std::optional<RecordedMessage> recorded = reader.Next()) {
        if (!*recorded) {
            out += ToText(recorded->fault);
        } else if (recorded->description->direction == Direction::Send) {
            const PlayedAnswer answer = player.Answer(*recorded->message);
            out += answer ? ToJson(*answer.message, *answer.description) : answer.error;
        }
    }

    Redactor redactor({.secret = "the same pseudonyms again"});
    std::istringstream from(recording);
    std::ostringstream to;
    out += RedactRecording(from, to, redactor).error;
    out += to.str().find(kVin) == std::string::npos ? "" : "not redacted";
    return out + to.str();
}

TEST(ThreadsOfAnExchange, DistinctObjectsGiveWhatTheyGiveAlone) {
    KRM_NOT_UNDER(Memcheck, "it runs one thread at a time");
    std::vector<std::string> alone;
    for (std::uint32_t i = 0; i < kThreads; ++i) {
        alone.push_back(Work(i));
    }
    EXPECT_NE(alone[0], alone[1]);
    EXPECT_GT(alone[0].size(), 100'000U);
    EXPECT_EQ(alone[0].find("not read"), std::string::npos);
    EXPECT_EQ(alone[0].find("not redacted"), std::string::npos);

    std::vector<std::string> together(kThreads);
    std::vector<std::thread> threads;
    for (std::uint32_t i = 0; i < kThreads; ++i) {
        threads.emplace_back([&result = together[i], i] { result = Work(i); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (std::uint32_t i = 0; i < kThreads; ++i) {
        EXPECT_TRUE(together[i] == alone[i]) << "thread " << i;
    }
}

TEST(ThreadsOfAnExchange, AComparerIsShared) {
    const MessageDescription& description = *FindMessage(1, 2, Direction::Receive);
    const std::unique_ptr<CKRMBaseAdaptationData> first = RandomMessage(description, 1);
    const std::unique_ptr<CKRMBaseAdaptationData> second = RandomMessage(description, 2);
    const Comparer comparer(*description.content, {.ignore = {"Data[*].m_strDTC"}});
    ASSERT_EQ(comparer.Error(), "");
    const auto compared = [&] {
        return ToText(comparer.Compare(description.ContentOf(*first).value(), description.ContentOf(*second).value()));
    };
    const std::string alone = compared();
    EXPECT_GT(alone.size(), 10U);
    std::vector<std::string> together(kThreads);
    std::vector<std::thread> threads;
    for (std::string& result : together) {
        threads.emplace_back([&result, &compared] {
            for (int i = 0; i < 20; ++i) {
                result = compared();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const std::string& result : together) {
        EXPECT_EQ(result, alone);
    }
}

}  // namespace
}  // namespace krm::test
