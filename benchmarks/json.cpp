// The answer with 20 trouble codes as JSON: written, and read again. The peer is a protobuf message.
#include "krm/exchange/json.h"

#include <google/protobuf/util/json_util.h>

#include <string>
#include <vector>

#include "benchmarks/answer_passes.h"
#include "benchmarks/proto_answer.h"
#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

std::string Text(const Answer& answer) {
    return ToJson(answer);
}
std::string Text(const ProtoAnswer& answer) {
    std::string text;
    if (!google::protobuf::util::MessageToJsonString(answer, &text).ok()) {
        text.clear();
    }
    return text;
}

bool Read(const std::string& text, Answer*) {
    MessageFromJson read = FromJson(text);
    benchmark::DoNotOptimize(read);
    return static_cast<bool>(read);
}
bool Read(const std::string& text, ProtoAnswer*) {
    ProtoAnswer answer;
    const bool read = google::protobuf::util::JsonStringToMessage(text, &answer).ok();
    benchmark::DoNotOptimize(answer);
    return read;
}

template <class Message>
void Write(benchmark::State& state) {
    std::vector<Message> answers = TwoAnswers<Message>();
    if (Text(answers[0]).empty()) {
        state.SkipWithError("no text");
    }
    std::size_t i = 0;
    for (auto _ : state) {
        std::string text = Text(answers[i++ % answers.size()]);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
    }
}

template <class Message>
void Read(benchmark::State& state) {
    std::vector<std::string> texts;
    for (const unsigned variant : {0U, 7U}) {
        Message answer;
        Fill(answer, variant);
        texts.push_back(Text(answer));
    }
    std::size_t i = 0;
    for (auto _ : state) {
        if (!Read(texts[i++ % texts.size()], static_cast<Message*>(nullptr))) {
            state.SkipWithError("not read");
        }
        benchmark::ClobberMemory();
    }
}

}  // namespace

void RegisterJson() {
    const std::string answer = "answer with 20 trouble codes: ";
    Compare(answer + "write JSON", Write<Answer>, {{"protobuf MessageToJsonString", Write<ProtoAnswer>, 0.5}});
    Compare(answer + "read JSON", Read<Answer>, {{"protobuf JsonStringToMessage", Read<ProtoAnswer>, 0.5}});
}

}  // namespace krm::bench
