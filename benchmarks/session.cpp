// The example's diagnosis session on a long recording: a whole run of the program, but that its report goes nowhere. The
// peer reads and parses the same lines, which is the least that any reader of the recording does.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <variant>

#include "benchmarks/workload.h"
#include "examples/diagnosis_session/can_recording.h"
#include "examples/diagnosis_session/recording_file.h"
#include "examples/diagnosis_session/session.h"

namespace krm::bench {
namespace {

constexpr std::size_t kKibibyte = 1024;
const std::string kFolder = KRM_BENCH_RECORDING_DIR;

/// Recorded vehicles over and over, in a file of its own.
class LongRecording {
public:
    explicit LongRecording(std::size_t size)
        : m_path((std::filesystem::temp_directory_path() / "krm_bench_recording.log").string()) {
        std::ifstream recorded(kFolder + "/recorded.log", std::ios::binary);
        const std::string text((std::istreambuf_iterator<char>(recorded)), std::istreambuf_iterator<char>());
        std::ofstream file(m_path, std::ios::binary);
        for (m_size = 0; m_size < size && !text.empty(); m_size += text.size()) {
            file << text;
        }
        if (m_size == 0 || !file.flush()) {
            throw std::runtime_error("no recording in " + kFolder + ", or can't write " + m_path);
        }
    }
    ~LongRecording() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    LongRecording(const LongRecording&) = delete;
    LongRecording& operator=(const LongRecording&) = delete;

    const std::string& Path() const { return m_path; }
    std::int64_t Size() const { return static_cast<std::int64_t>(m_size); }

private:
    std::string m_path;
    std::size_t m_size = 0;
};

/// Takes everything and counts it.
class Counter : public std::streambuf {
public:
    std::streamsize Count() const { return m_count; }

protected:
    std::streamsize xsputn(const char* text, std::streamsize count) override {
        benchmark::DoNotOptimize(text);
        m_count += count;
        return count;
    }
    int_type overflow(int_type character) override {
        ++m_count;
        return traits_type::not_eof(character);
    }

private:
    std::streamsize m_count = 0;
};

void Decode(benchmark::State& state, const LongRecording& recording) {
    for (auto _ : state) {
        Counter report;
        Counter faults;
        std::ostream out(&report);
        std::ostream err(&faults);
        const int status = diagnosis_session::RunDiagnosisSession(
            {"diagnosis_session", recording.Path(), kFolder + "/items.json"}, out, err);
        if (status != diagnosis_session::kGood || report.Count() < recording.Size() / 2 || faults.Count() != 0) {
            state.SkipWithError("the recording is not decoded whole");
        }
    }
    state.SetBytesProcessed(recording.Size() * static_cast<std::int64_t>(state.iterations()));
}

void ReadLines(benchmark::State& state, const LongRecording& recording) {
    for (auto _ : state) {
        diagnosis_session::RecordingFile file(recording.Path());
        diagnosis_session::LineReader lines([&](char* buffer, std::size_t size) { return file.Read(buffer, size); });
        std::size_t frames = 0;
        std::size_t number = 0;
        for (std::string_view line; lines.Next(line);) {
            const auto parsed = diagnosis_session::ParseCandumpLine(line, ++number);
            benchmark::DoNotOptimize(parsed);
            frames += std::holds_alternative<diagnosis_session::CanFrame>(parsed) ? 1U : 0U;
        }
        if (frames == 0 || frames != number) {
            state.SkipWithError("a line holds no frame");
        }
    }
    state.SetBytesProcessed(recording.Size() * static_cast<std::int64_t>(state.iterations()));
}

template <auto run>
void OnMebibytes(benchmark::State& state) {
    run(state, LongRecording(4 * kKibibyte * kKibibyte));
}

template <auto run>
void OnKibibytes(benchmark::State& state) {
    run(state, LongRecording(static_cast<std::size_t>(state.range(0)) * kKibibyte));
    state.SetComplexityN(state.range(0));
}

}  // namespace

void RegisterSession() {
    Compare("session: decode 4 MiB of recording", OnMebibytes<&Decode>,
            {{"read and parse its lines", OnMebibytes<&ReadLines>}});
    Grow("session: decode a recording, by KiB", OnKibibytes<&Decode>, 4096, 16384);
    Grow("session: read and parse its lines, by KiB", OnKibibytes<&ReadLines>, 4096, 16384);
}

}  // namespace krm::bench
