// Two answers with 20 trouble codes, compared: equal ones, some that differ in each code, and one with a code more in front,
// matched by the codes. The peer is a protobuf message.
#include "krm/exchange/compare.h"

#include <google/protobuf/util/message_differencer.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "benchmarks/proto_answer.h"
#include "benchmarks/workload.h"
#include "krm/fields/diag/trouble_codes.h"

namespace krm::bench {
namespace {

/// Which codes the second answer has.
enum class Second { Equal, OtherInEachCode, OneMore };

Answer AnswerOf(Second second, Answer*) {
    Answer answer;
    Fill(answer, 0, second == Second::OneMore ? kCodes + 1 : kCodes);
    if (second == Second::OtherInEachCode) {
        for (auto& code : answer.Data) {
            code.m_strDTCName = "another text";
        }
    }
    return answer;
}
ProtoAnswer AnswerOf(Second second, ProtoAnswer*) {
    ProtoAnswer answer;
    Fill(answer, 0, second == Second::OneMore ? kCodes + 1 : kCodes);
    if (second == Second::OtherInEachCode) {
        for (auto& code : *answer.mutable_data()) {
            code.set_dtc_name("another text");
        }
    }
    return answer;
}

/// The number of lines that tell the differences.
std::size_t Differences(const Answer& first, const Answer& second, bool byCode) {
    CompareOptions options;
    if (byCode) {
        options.keys = {{.list = "Data", .fields = {"m_strDTC"}}};
    }
    const Comparison comparison = krm::Compare(first, second, options);
    const std::string text = ToText(comparison);
    benchmark::DoNotOptimize(text.data());
    return comparison.differences.size();
}
std::size_t Differences(const ProtoAnswer& first, const ProtoAnswer& second, bool byCode) {
    google::protobuf::util::MessageDifferencer differencer;
    if (byCode) {
        differencer.TreatAsMap(
            ProtoAnswer::descriptor()->FindFieldByName("data"),
            ProtoAnswer::descriptor()->FindFieldByName("data")->message_type()->FindFieldByName("dtc"));
    }
    std::string text;
    differencer.ReportDifferencesToString(&text);
    const bool equal = differencer.Compare(first, second);
    benchmark::DoNotOptimize(text.data());
    return equal ? 0 : static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

template <class Message, Second kind>
void Run(benchmark::State& state) {
    const Message first = AnswerOf(Second::Equal, static_cast<Message*>(nullptr));
    const Message second = AnswerOf(kind, static_cast<Message*>(nullptr));
    constexpr bool kByCode = kind == Second::OneMore;
    constexpr std::size_t kExpected = kind == Second::Equal ? 0 : kind == Second::OneMore ? 1 : kCodes;
    if (Differences(first, second, kByCode) != kExpected) {
        state.SkipWithError("other differences than were made");
    }
    for (auto _ : state) {
        std::size_t differences = Differences(first, second, kByCode);
        benchmark::DoNotOptimize(differences);
        benchmark::ClobberMemory();
    }
}

template <Second kind>
void Register(const std::string& name) {
    Compare("answer with 20 trouble codes: compare with " + name, Run<Answer, kind>,
            {{"protobuf MessageDifferencer", Run<ProtoAnswer, kind>, 0.5}});
}

}  // namespace

void RegisterComparison() {
    Register<Second::Equal>("an equal one");
    Register<Second::OtherInEachCode>("one that differs in each code");
    Register<Second::OneMore>("one that has a code more, by code");
}

}  // namespace krm::bench
