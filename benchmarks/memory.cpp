// What the answer with 20 trouble codes takes on the heap, and what empty things take.
#include <list>

#include "benchmarks/allocation.h"
#include "benchmarks/proto_answer.h"
#include "benchmarks/workload.h"

namespace krm::bench {
namespace {

/// Reports the bytes that `measured` returns.
template <class Measured>
Function Bytes(Measured measured) {
    return [measured](benchmark::State& state) {
        std::size_t bytes = 0;
        for (auto _ : state) {
            bytes = measured();
            benchmark::DoNotOptimize(bytes);
        }
        state.counters[kBytes] = static_cast<double>(bytes);
    };
}

/// The bytes that are allocated while `action` runs.
template <class Action>
std::size_t AllocatedBy(Action action) {
    const std::size_t before = AllocatedBytes();
    action();
    return AllocatedBytes() - before;
}

template <class Message>
std::size_t Building() {
    Message message;
    Fill(message, 0);  // the first time the contents are made
    message.Clear();
    Message counted;
    return AllocatedBy([&] { Fill(counted, 0); });
}

template <class Message>
std::size_t Copying() {
    Message message;
    Fill(message, 0);
    return AllocatedBy([&] {
        Message copy(message);
        benchmark::DoNotOptimize(copy);
    });
}

std::size_t Needed() {
    Answer answer;
    Fill(answer, 0);
    return NeededBytes(answer);
}

std::size_t EmptyThings() {
    return AllocatedBy([] {
        CKRMString text;
        CKRMString emptyText("");
        const CKRMString textCopy(emptyText);
        text = emptyText;
        text = "";
        CKRMList<krm_ulong> numbers;
        CKRMList<CKRMCCommandDTCData> codes;
        const CKRMList<CKRMCCommandDTCData> codesCopy(codes);
        codes = codesCopy;
        codes.RemoveAll();
        CKRMCCommandDTCData record;
        const CKRMCCommandDTCData recordCopy(record);
        record.Clear();
        Answer message;
        message.Clear();
        benchmark::DoNotOptimize(text);
        benchmark::DoNotOptimize(numbers);
        benchmark::DoNotOptimize(codes);
        benchmark::DoNotOptimize(record);
        benchmark::DoNotOptimize(recordCopy);
        benchmark::DoNotOptimize(message);
    });
}

}  // namespace

void RegisterMemory() {
    constexpr double kGoal = 1.2;
    const Peer needed = {"list nodes and long texts", Bytes(&Needed), kGoal};
    Compare("memory of the answer: built", Bytes(&Building<Answer>),
            {needed, {"protobuf", Bytes(&Building<ProtoAnswer>)}});
    Compare("memory of the answer: copied", Bytes(&Copying<Answer>),
            {needed, {"protobuf", Bytes(&Copying<ProtoAnswer>)}});
    Compare("memory of empty strings, lists, records and messages", Bytes(&EmptyThings),
            {{"nothing", Bytes([] { return std::size_t{0}; }), 1.0}});
}

}  // namespace krm::bench
