// CKRMList beside std::list with the same elements.
#include <array>
#include <list>
#include <optional>
#include <string>
#include <vector>

#include "benchmarks/list_operations.h"
#include "benchmarks/workload.h"
#include "krm/core/list.h"
#include "krm/messages/diag/display.h"

namespace krm::bench {
namespace {

constexpr int kElements = 200;  // more than an answer has of anything; all sides fit into the first-level cache

template <class T>
std::vector<T> Elements();

template <>
std::vector<krm_ulong> Elements() {
    std::vector<krm_ulong> elements;
    for (krm_ulong i = 0; i < kElements; ++i) {
        elements.push_back(i * 2654435761U);
    }
    return elements;
}

// Every third text is too long to be held inline.
template <>
std::vector<CKRMString> Elements() {
    constexpr std::array<const char*, 3> kTexts = {"P0171", "12345.67 km/h", "System Too Lean (Bank 1)"};
    std::vector<CKRMString> elements;
    for (std::size_t i = 0; i < kElements; ++i) {
        elements.emplace_back(kTexts[i % kTexts.size()]);
    }
    return elements;
}

template <>
std::vector<CKRMCCommandDispData> Elements() {
    const std::vector<CKRMString> texts = Elements<CKRMString>();
    std::vector<CKRMCCommandDispData> elements;
    for (std::size_t i = 0; i < kElements; ++i) {
        CKRMCCommandDispData& element = elements.emplace_back();
        element.m_ulRawData = static_cast<krm_ulong>(i);
        element.m_dDataPhys = 0.25 * static_cast<double>(i);
        element.m_strDataPhys = texts[i];
    }
    return elements;
}

krm_ulong ValueOf(krm_ulong element) {
    return element;
}
krm_ulong ValueOf(const CKRMString& element) {
    return element.GetLength();
}
krm_ulong ValueOf(const CKRMCCommandDispData& element) {
    return element.m_ulRawData;
}

template <class List, class T>
List Filled() {
    List list;
    for (const T& element : Elements<T>()) {
        Append(list, element);
    }
    return list;
}

template <class List, class T>
void AppendAll(benchmark::State& state) {
    const std::vector<T> elements = Elements<T>();
    List list;
    for (auto _ : state) {
        TimeSection(state, [&] {
            for (const T& element : elements) {
                Append(list, element);
            }
            benchmark::DoNotOptimize(list);
        });
        Empty(list);
    }
}

template <class List, class T>
void Walk(benchmark::State& state) {
    auto list = Filled<List, T>();
    for (auto _ : state) {
        krm_ulong sum = 0;
        for (const T& element : list) {
            sum += ValueOf(element);
        }
        benchmark::DoNotOptimize(sum);
        benchmark::ClobberMemory();
    }
}

template <class T>
void WalkByPosition(benchmark::State& state) {
    auto list = Filled<CKRMList<T>, T>();
    for (auto _ : state) {
        krm_ulong sum = 0;
        for (_SKRMPOSITION* position = list.GetHeadPosition(); position != nullptr;) {
            sum += ValueOf(list.GetNext(position));
        }
        benchmark::DoNotOptimize(sum);
        benchmark::ClobberMemory();
    }
}

template <class List, class T>
void Copy(benchmark::State& state) {
    const auto original = Filled<List, T>();
    std::optional<List> copy;
    for (auto _ : state) {
        TimeSection(state, [&] {
            copy.emplace(original);
            benchmark::DoNotOptimize(*copy);
        });
        copy.reset();
    }
}

template <class List, class T>
void Clear(benchmark::State& state) {
    const auto original = Filled<List, T>();
    for (auto _ : state) {
        List copy(original);
        TimeSection(state, [&] {
            Empty(copy);
            benchmark::DoNotOptimize(copy);
        });
    }
}

template <class T>
void RegisterFor(const std::string& element) {
    using Ours = CKRMList<T>;
    using Theirs = std::list<T>;
    const auto compare = [&](const std::string& operation, void (*ours)(benchmark::State&),
                             void (*theirs)(benchmark::State&), Clock clock) {
        Compare("list of " + std::to_string(kElements) + " " + element + ": " + operation, ours,
                {{"std::list", theirs, 1.0}}, clock);
    };
    compare("append", AppendAll<Ours, T>, AppendAll<Theirs, T>, Clock::Sections);
    compare("walk, range-for", Walk<Ours, T>, Walk<Theirs, T>, Clock::Processor);
    compare("walk, GetNext", WalkByPosition<T>, Walk<Theirs, T>, Clock::Processor);
    compare("copy", Copy<Ours, T>, Copy<Theirs, T>, Clock::Sections);
    compare("clear", Clear<Ours, T>, Clear<Theirs, T>, Clock::Sections);
}

}  // namespace

void RegisterLists() {
    RegisterFor<krm_ulong>("numbers");
    RegisterFor<CKRMString>("strings");
    RegisterFor<CKRMCCommandDispData>("display values");
}

}  // namespace krm::bench
