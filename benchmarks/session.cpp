// The example's diagnosis session on a long recording: a whole run of the program, but that its report goes nowhere. The
// peer reads and parses the same lines, which is the least that any reader of the recording does.
//
// And the same recording from its bytes to the log: the example's application asks its engine, and every message between
// them, with all its values, goes into the operation log. The peer is benchmarks/peer_session.h.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <variant>

#include "benchmarks/counting_sink.h"
#include "benchmarks/peer_session.h"
#include "benchmarks/workload.h"
#include "examples/diagnosis_session/application.h"
#include "examples/diagnosis_session/can_recording.h"
#include "examples/diagnosis_session/engine.h"
#include "examples/diagnosis_session/recording_file.h"
#include "examples/diagnosis_session/session.h"

namespace krm::bench {
namespace {

constexpr std::size_t kKibibyte = 1024;
const std::string kFolder = KRM_BENCH_RECORDING_DIR;

std::string ReadFile(const std::string& name) {
    std::ifstream file(kFolder + '/' + name, std::ios::binary);
    return {(std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>()};
}

/// Recorded vehicles over and over, in a file of its own.
class LongRecording {
public:
    explicit LongRecording(std::size_t size)
        : m_path((std::filesystem::temp_directory_path() / "krm_bench_recording.log").string()) {
        const std::string text = ReadFile("recorded.log");
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

/// The recorded vehicles as often as make a MiB, in memory.
class Recording {
public:
    Recording() {
        const std::string once = ReadFile("recorded.log");
        while (!once.empty() && m_text.size() < kKibibyte * kKibibyte) {
            m_text += once;
        }
    }
    std::int64_t Size() const { return static_cast<std::int64_t>(m_text.size()); }

    diagnosis_session::ExchangeReader Open(const diagnosis_session::Complain& complain) const {
        return {[this, at = std::size_t{0}](char* buffer, std::size_t size) mutable {
                    const std::size_t copied = m_text.copy(buffer, size, at);
                    at += copied;
                    return copied;
                },
                complain};
    }

private:
    std::string m_text;
};

/// An engine that puts what it is asked and what it answers into the log, with the values that the answers leave out.
class LoggingEngine : public diagnosis_session::Engine {
public:
    LoggingEngine(diagnosis_session::Engine& engine, std::string* texts) : m_engine(engine), m_texts(texts) {}

    void Answer(CKRMBaseAdaptationData& request, CKRMBaseAdaptationData& answer) override {
        Log(request);
        m_engine.Answer(request, answer);
        Log(answer);
        if (auto* const values = MessageAs<CKRMCGetDataMonitorValueCmdAdaptDataRcv>(&answer)) {
            LogValues(values->Data);
        }
    }

private:
    static void Log(CKRMBaseAdaptationData& message) {
        if (auto* const logged = dynamic_cast<LoggedMessage*>(&message)) {
            logged->ErrWriteOperationLog();
        }
    }
    void LogValues(CKRMList<CKRMCCommandFFDData>& values) {
        int index = 0;
        for (CKRMCCommandFFDData& item : values) {
            item.ErrWriteOperationLogStructure("Data[%d]", index++);
            for (const CKRMCCommandDispData& shown : item.m_cDispDataList) {
                if (m_texts != nullptr) {
                    *m_texts += std::string(shown.m_strDataPhys.GetText()) + '=' + shown.m_strData.GetText() + '\n';
                }
            }
        }
    }

    diagnosis_session::Engine& m_engine;
    std::string* m_texts;
};

/// What a session is decoded with. A recording that isn't clean throws std::runtime_error.
struct Session {
    Recording recording;
    diagnosis_session::ItemTable table = diagnosis_session::ItemTable::Parse(ReadFile("items.json"), Complain);

    /// The number of values; `texts` gets those of each.
    std::uint64_t Ours(std::string* texts = nullptr) const {
        diagnosis_session::ExchangeReader reader = recording.Open(Complain);
        diagnosis_session::DiagnosisEngine engine(
            table, [&] { return reader.Next(); }, [&] { return reader.Totals(); }, Complain);
        LoggingEngine logging(engine, texts);
        return diagnosis_session::Application(logging, {}).Run().values;
    }
    std::uint64_t Peers(std::string* texts = nullptr) const {
        diagnosis_session::ExchangeReader reader = recording.Open(Complain);
        PeerSession peer(table);
        while (const auto exchange = reader.Next()) {
            peer.Decode(*exchange, texts);
        }
        return peer.Values();
    }

private:
    static void Complain(const diagnosis_session::Place& place, const std::string& what) {
        throw std::runtime_error("line " + std::to_string(place.line) + ": " + what);
    }
};

/// Decodes with one of the two, once both show the same.
template <auto side>
void DecodeToLog(benchmark::State& state) {
    static const Session session;
    static const bool isSame = [] {
        CountingSink sink;
        const ScopedLogSink scope(sink);
        std::string ours;
        std::string theirs;
        session.Ours(&ours);
        session.Peers(&theirs);
        return !ours.empty() && ours == theirs;
    }();
    if (!isSame) {
        state.SkipWithError("the peer shows other values");
        return;
    }
    CountingSink sink;
    const ScopedLogSink scope(sink);
    for (auto _ : state) {
        benchmark::DoNotOptimize((session.*side)(nullptr));
    }
    state.SetBytesProcessed(session.recording.Size() * static_cast<std::int64_t>(state.iterations()));
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
    constexpr double kGoal = 0.4;
    Compare("session: 1 MiB of recording from bytes to log", DecodeToLog<&Session::Ours>,
            {{"protobuf, snprintf and TextFormat", DecodeToLog<&Session::Peers>, kGoal}});
    Grow("session: decode a recording, by KiB", OnKibibytes<&Decode>, 4096, 16384);
    Grow("session: read and parse its lines, by KiB", OnKibibytes<&ReadLines>, 4096, 16384);
}

}  // namespace krm::bench
