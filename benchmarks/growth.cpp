// How the cost of what may get large grows with its size.
#include "benchmarks/answer.h"
#include "benchmarks/counting_sink.h"
#include "benchmarks/workload.h"
#include "krm/core/list.h"
#include "krm/tree/element.h"

namespace krm::bench {
namespace {

CKRMList<krm_ulong> Numbers(benchmark::State& state) {
    CKRMList<krm_ulong> list;
    for (krm_ulong i = 0; i < static_cast<krm_ulong>(state.range(0)); ++i) {
        list.AddTail(i);
    }
    return list;
}

void ListAppend(benchmark::State& state) {
    for (auto _ : state) {
        CKRMList<krm_ulong> list = Numbers(state);
        benchmark::DoNotOptimize(list);
        benchmark::ClobberMemory();
    }
    state.SetComplexityN(state.range(0));
}

void ListWalk(benchmark::State& state) {
    const CKRMList<krm_ulong> list = Numbers(state);
    for (auto _ : state) {
        krm_ulong sum = 0;
        for (const krm_ulong number : list) {
            sum += number;
        }
        benchmark::DoNotOptimize(sum);
        benchmark::ClobberMemory();
    }
    state.SetComplexityN(state.range(0));
}

void ListCopy(benchmark::State& state) {
    const CKRMList<krm_ulong> list = Numbers(state);
    for (auto _ : state) {
        CKRMList<krm_ulong> copy(list);
        benchmark::DoNotOptimize(copy);
        benchmark::ClobberMemory();
    }
    state.SetComplexityN(state.range(0));
}

void WriteAnswer(benchmark::State& state) {
    Answer answer;
    Fill(answer, 0, static_cast<int>(state.range(0)));
    CountingSink sink;
    const ScopedLogSink scope(sink);
    for (auto _ : state) {
        answer.ErrWriteOperationLog();
    }
    state.SetComplexityN(state.range(0));
}

void BuildTree(CKRMCElement& root, benchmark::State& state) {
    CKRMError error;
    for (krm_ulong i = 0; i < static_cast<krm_ulong>(state.range(0)); ++i) {
        root.CreateElement(&error, "Ecu")->CreateAttribute(&error, "Id")->SetValue(&error, i);
    }
}

void TreeAppend(benchmark::State& state) {
    for (auto _ : state) {
        CKRMCElement root("Vehicle");
        BuildTree(root, state);
        benchmark::DoNotOptimize(root);
        benchmark::ClobberMemory();
    }
    state.SetComplexityN(state.range(0));
}

void TreeDescribe(benchmark::State& state) {
    CKRMCElement root("Vehicle");
    BuildTree(root, state);
    for (auto _ : state) {
        CKRMString text;
        root.Description(text);
        benchmark::DoNotOptimize(text.GetText());
        benchmark::ClobberMemory();
    }
    state.SetComplexityN(state.range(0));
}

}  // namespace

void RegisterGrowth() {
    constexpr int kFew = 64;
    constexpr int kMany = 65536;
    Grow("list of numbers, append and destroy", ListAppend, kFew, kMany);
    Grow("list of numbers, walk", ListWalk, kFew, kMany);
    Grow("list of numbers, copy and destroy", ListCopy, kFew, kMany);
    Grow("trouble-code answer, dump", WriteAnswer, 4, 1024);
    Grow("tree of elements with an attribute, append and destroy", TreeAppend, kFew, kMany);
    Grow("tree of elements with an attribute, describe", TreeDescribe, kFew, kMany);
}

}  // namespace krm::bench
