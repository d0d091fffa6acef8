// Exchanges recorded into a file and played from it. The peer of recording is the text alone: what is recorded has to be
// written as JSON in any case.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "benchmarks/answer.h"
#include "benchmarks/workload.h"
#include "krm/exchange/json.h"
#include "krm/exchange/player.h"
#include "krm/exchange/recording.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"

namespace krm::bench {
namespace {

/// A file for a recording, removed with it.
class RecordingFile {
public:
    RecordingFile() : m_path(std::filesystem::temp_directory_path() / "krm_bench.krmrec") {}
    ~RecordingFile() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    RecordingFile(const RecordingFile&) = delete;
    RecordingFile& operator=(const RecordingFile&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

void RecordAnswer(benchmark::State& state) {
    // So that the file takes some megabytes and no disk.
    constexpr std::uint64_t kInOneFile = 50;
    const RecordingFile file;
    const CKRMCGetDTCCmdAdaptDataSnd request;
    Answer answer;
    Fill(answer, 0);
    std::unique_ptr<Recorder> recorder;
    std::uint64_t exchange = 0;
    for (auto _ : state) {
        if (exchange % kInOneFile == 0) {
            state.PauseTiming();
            recorder = nullptr;
            recorder = std::make_unique<Recorder>(file.Path(), RecordingMode::Overwrite);
            state.ResumeTiming();
        }
        exchange = recorder->BeginExchange();
        if (!recorder->Write(exchange, request) || !recorder->Write(exchange, answer)) {
            state.SkipWithError("not recorded");
        }
    }
}

void WriteAnswer(benchmark::State& state) {
    const CKRMCGetDTCCmdAdaptDataSnd request;
    Answer answer;
    Fill(answer, 0);
    for (auto _ : state) {
        std::string texts[] = {ToJson(request), ToJson(answer)};
        benchmark::DoNotOptimize(texts);
        benchmark::ClobberMemory();
    }
}

/// The request that the exchange of this number has: many different ones, each of them several times.
CKRMCGetVinCodeCmdAdaptDataSnd Request(std::int64_t exchange) {
    CKRMCGetVinCodeCmdAdaptDataSnd request;
    request.m_ulEcuId = static_cast<krm_ulong>(exchange % 10007);
    return request;
}

void RecordVins(const std::filesystem::path& file, benchmark::State& state) {
    Recorder recorder(file, RecordingMode::Overwrite);
    CKRMCGetVinCodeCmdAdaptDataRcv answer;
    answer.m_strVinCode = "KRM00000000000001";
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        const std::uint64_t exchange = recorder.BeginExchange();
        recorder.Write(exchange, Request(i));
        recorder.Write(exchange, answer);
    }
    if (!recorder.Error().empty()) {
        state.SkipWithError("not recorded");
    }
}

void Record(benchmark::State& state) {
    const RecordingFile file;
    for (auto _ : state) {
        RecordVins(file.Path(), state);
    }
    state.SetComplexityN(state.range(0));
}

void Play(benchmark::State& state) {
    const RecordingFile file;
    RecordVins(file.Path(), state);
    for (auto _ : state) {
        Player player(file.Path());
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            if (!player.Answer(Request(i))) {
                state.SkipWithError("not played");
            }
        }
    }
    state.SetComplexityN(state.range(0));
}

}  // namespace

void RegisterRecordings() {
    Compare("answer with 20 trouble codes: record request and answer", RecordAnswer,
            {{"their JSON text alone", WriteAnswer, 2}});
}

void RegisterRecordingGrowth() {
    constexpr int kFew = 10000;
    constexpr int kMany = 100000;
    Grow("exchanges, record", Record, kFew, kMany);
    Grow("exchanges, open the recording and play all", Play, kFew, kMany);
}

}  // namespace krm::bench
