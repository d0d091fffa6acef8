// The answer with 20 trouble codes: copy, build, clear and refill, dump. The peer is a protobuf message.
#include <google/protobuf/text_format.h>

#include <algorithm>
#include <string>
#include <vector>

#include "benchmarks/answer.h"
#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

template <class Message>
Message Filled(unsigned variant) {
    Message message;
    Fill(message, variant);
    return message;
}

/// Construction of a copy, and its destruction: whoever copies an answer destroys the copy some day.
template <class Message>
void Copy(benchmark::State& state) {
    const std::vector<Message> originals = {Filled<Message>(0), Filled<Message>(7)};
    std::size_t i = 0;
    for (auto _ : state) {
        Message copy(originals[i++ % originals.size()]);
        benchmark::DoNotOptimize(copy);
        benchmark::ClobberMemory();
    }
}

template <class Message, auto fill>
void Build(benchmark::State& state) {
    unsigned variant = 0;
    for (auto _ : state) {
        Message message;
        fill(message, variant++, kCodes);
        benchmark::DoNotOptimize(message);
        benchmark::ClobberMemory();
    }
}

template <class Message>
void ClearAndRefill(benchmark::State& state) {
    unsigned variant = 0;
    Message message;
    Fill(message, variant++);
    for (auto _ : state) {
        message.Clear();
        Fill(message, variant++);
        benchmark::DoNotOptimize(message);
        benchmark::ClobberMemory();
    }
}

struct Counter {
    std::size_t lines = 0;
    std::size_t bytes = 0;
};

krm_long Count(void* context, const char* text, krm_ulong textLength, int, int) {
    auto& counter = *static_cast<Counter*>(context);
    benchmark::DoNotOptimize(text);
    ++counter.lines;
    counter.bytes += textLength;
    return 0;
}

void Dump(benchmark::State& state) {
    std::vector<Answer> answers = {Filled<Answer>(0), Filled<Answer>(7)};  // of as many lines
    Counter counter;
    KRMC_ER_SetOperationLogSink(&Count, &counter);
    answers[0].ErrWriteOperationLog();
    state.counters[kLines] = static_cast<double>(counter.lines);
    std::size_t i = 0;
    for (auto _ : state) {
        answers[i++ % answers.size()].ErrWriteOperationLog();
        benchmark::DoNotOptimize(counter.bytes);
    }
    KRMC_ER_SetOperationLogSink(nullptr, nullptr);
}

void PrintToString(benchmark::State& state) {
    const std::vector<ProtoAnswer> answers = {Filled<ProtoAnswer>(0), Filled<ProtoAnswer>(7)};
    std::string text;
    google::protobuf::TextFormat::PrintToString(answers[0], &text);
    state.counters[kLines] = static_cast<double>(std::count(text.begin(), text.end(), '\n'));
    std::size_t i = 0;
    for (auto _ : state) {
        google::protobuf::TextFormat::PrintToString(answers[i++ % answers.size()], &text);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
    }
}

constexpr auto kFill = static_cast<void (*)(Answer&, unsigned, int)>(&Fill);
constexpr auto kFillProto = static_cast<void (*)(ProtoAnswer&, unsigned, int)>(&Fill);

}  // namespace

void RegisterMessages() {
    const std::string answer = "answer with 20 trouble codes: ";
    Compare(answer + "copy", Copy<Answer>, {{"protobuf", Copy<ProtoAnswer>, 0.8}});
    Compare(answer + "build field by field", Build<Answer, kFill>, {{"protobuf", Build<ProtoAnswer, kFillProto>, 1.0}});
    Compare(answer + "build by appending filled records", Build<Answer, &FillByCopies>,
            {{"protobuf", Build<ProtoAnswer, kFillProto>}});
    Compare(answer + "clear and refill", ClearAndRefill<Answer>, {{"protobuf", ClearAndRefill<ProtoAnswer>, 1.0}});
    Compare(answer + "dump", Dump, {{"protobuf TextFormat", PrintToString, 0.5}});
}

}  // namespace krm::bench
