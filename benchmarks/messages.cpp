// The answer with 20 trouble codes: copy, build, clear and refill, dump. The peer is a protobuf message.
#include <google/protobuf/text_format.h>

#include <algorithm>
#include <string>
#include <vector>

#include "benchmarks/answer_passes.h"
#include "benchmarks/proto_answer.h"
#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

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

void PrintToString(benchmark::State& state) {
    const std::vector<ProtoAnswer> answers = TwoAnswers<ProtoAnswer>();
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
constexpr auto kFillProto = static_cast<void (*)(ProtoAnswer&, unsigned, int)>(&proto::Fill);

}  // namespace

void RegisterMessages() {
    const std::string answer = "answer with 20 trouble codes: ";
    Compare(answer + "copy", Timed(&CopyAnswer<Answer>), {{"protobuf", Timed(&CopyAnswer<ProtoAnswer>), 0.8}});
    Compare(answer + "build field by field", Build<Answer, kFill>, {{"protobuf", Build<ProtoAnswer, kFillProto>, 1.0}});
    Compare(answer + "build by appending filled records", Build<Answer, &FillByCopies>,
            {{"protobuf", Build<ProtoAnswer, kFillProto>}});
    Compare(answer + "clear and refill", ClearAndRefill<Answer>, {{"protobuf", ClearAndRefill<ProtoAnswer>, 1.0}});
    Compare(answer + "dump", Timed(&DumpAnswer), {{"protobuf TextFormat", PrintToString, 0.35}});
}

}  // namespace krm::bench
