#include "session.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "application.h"
#include "cli/terminal/progress.h"
#include "complaints.h"
#include "engine.h"
#include "exchange.h"
#include "item_table.h"
#include "json_output.h"
#include "operation_log_file.h"
#include "options.h"
#include "recorded_session.h"
#include "recording_file.h"
#include "report.h"
#include "values_file.h"

namespace diagnosis_session {
namespace {

/// The example's own input: in the source tree that it was built from, or near the program.
std::string OwnFile(const std::string& program, const char* name) {
    namespace fs = std::filesystem;
    const fs::path beside = fs::path(program).parent_path();
    std::error_code ignored;
    for (const fs::path& folder : {fs::path(KRM_EXAMPLE_DATA_DIR), beside / "data", beside}) {
        if (fs::exists(folder / name, ignored)) {
            return (folder / name).string();
        }
    }
    return name;
}

std::string ReadWholeFile(const std::string& path) {
    std::error_code ignored;
    errno = 0;
    const bool isDirectory = std::filesystem::is_directory(path, ignored);
    std::ifstream file(path, std::ios::binary);
    if (isDirectory || !file) {
        throw FileError(path + ": cannot be read: " + ReasonOf(isDirectory ? EISDIR : errno));
    }
    std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (file.bad()) {
        throw FileError(path + ": cannot be read: " + ReasonOf(errno));
    }
    return text;
}

/// Whether both paths lead to the same file, by whatever name. Devices take what they are given, again and again.
bool IsSameFile(const std::string& left, const std::string& right) {
    std::error_code error;
    if (std::filesystem::exists(left, error) && !std::filesystem::is_regular_file(left, error)) {
        return false;
    }
    return left == right || std::filesystem::equivalent(left, right, error);
}

void CheckOutputs(const Options& options, const std::vector<std::string>& inputs) {
    const struct {
        const std::optional<std::string>& path;
        const char* what;
    } outputs[] = {{options.operationLog, "operation log"}, {options.values, "values"}, {options.record, "recording"}};
    for (const auto& output : outputs) {
        for (const std::string& input : inputs) {
            if (output.path && IsSameFile(*output.path, input)) {
                throw FileError(*output.path + ": is an input; it will not be overwritten");
            }
        }
    }
    for (std::size_t i = 0; i < std::size(outputs); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (outputs[i].path && outputs[j].path && IsSameFile(*outputs[j].path, *outputs[i].path)) {
                throw FileError(*outputs[i].path + ": can't be both " + outputs[j].what + " and " + outputs[i].what);
            }
        }
    }
}

std::size_t LongestName(const ItemTable& table) {
    std::size_t longest = 0;
    for (const ItemCommand& command : table.Commands()) {
        for (const Item& item : command.items) {
            longest = std::max(longest, item.name.empty() ? item.id.size() : item.name.size());
        }
    }
    return longest;
}

std::string Amount(std::uint64_t number, const char* what) {
    return " (" + std::to_string(number) + ' ' + what + (number == 1 ? ")" : "s)");
}

/// What the session writes beside the report.
class OutputFiles {
public:
    explicit OutputFiles(const Options& options) {
        if (options.operationLog) {
            log.emplace(*options.operationLog);
        }
        if (options.values) {
            values.emplace(*options.values);
        }
    }

    /// Ends them, and says in `summary` what they hold.
    void Close(const Options& options, SessionSummary& summary) {
        if (values) {
            values->Close();
            summary.written.push_back("values " + *options.values + Amount(values->RowCount(), "row"));
        }
        if (log) {
            log->Close();
            summary.written.push_back("operation log " + *options.operationLog + Amount(log->LineCount(), "line"));
        }
    }

    std::optional<OperationLogFile> log;
    std::optional<ValuesFile> values;
};

/// The application's session with an engine, and its outputs. `atEnd` adds to the summary before they are ended.
SessionSummary RunApplication(const Options& options, Engine& engine, const SessionStart& start, TextStream& text,
                              OutputFiles& files, std::function<bool(std::uint64_t)> goOn,
                              const std::function<void(SessionSummary&)>& atEnd) {
    std::unique_ptr<Output> report;
    if (options.json) {
        report = std::make_unique<JsonOutput>(text);
    } else {
        report = std::make_unique<Report>(text, start.longestName);
    }
    Application::Settings settings;
    settings.recording.file = start.file;
    settings.recording.isEmpty = start.isEmpty;
    settings.units = start.units;
    settings.log = files.log ? &*files.log : nullptr;
    settings.outputs = {report.get()};
    if (files.values) {
        settings.outputs.push_back(&*files.values);
    }
    settings.goOn = std::move(goOn);
    if (files.log && start.first != kNoTime) {
        files.log->SetTime(start.first);
    }
    SessionSummary summary = Application(engine, std::move(settings)).Run();
    atEnd(summary);
    files.Close(options, summary);
    report->End(summary);
    return summary;
}

bool IsInterrupted(const Surroundings& surroundings) {
    return surroundings.interrupt != nullptr && *surroundings.interrupt != 0;
}

/// What the session comes to; throws FileError where the input broke off.
int StatusOf(const SessionSummary& summary, const std::string& breakOff, std::ostream& err) {
    if (summary.interrupted) {
        err << "diagnosis_session: interrupted; what was decoded until then is there\n";
    }
    if (!breakOff.empty()) {
        throw FileError(breakOff + "; what was decoded until then is there");
    }
    return summary.faults == 0 && !summary.interrupted ? kGood : kBadInput;
}

/// Everything that the options ask for, over a recording that is open.
int Run(const Options& options, const std::string& program, std::ostream& out, std::ostream& err,
        const Surroundings& surroundings) {
    const std::string recordingPath = options.recording.value_or(OwnFile(program, "session.log"));
    const std::string itemsPath = options.items.value_or(OwnFile(program, "session.items.json"));
    CheckOutputs(options, {recordingPath, itemsPath});
    RecordingFile file(recordingPath);
    const std::string itemsText = ReadWholeFile(itemsPath);
    OutputFiles files(options);

    terminal::Progress progress(err, "exchanges");
    TextStream text(out, "standard output");
    Complaints complaints(err);
    text.BeforeWriting([&] { progress.Hide(); });
    complaints.BeforeTelling([&] { progress.Hide(); });
    const ItemTable table = ItemTable::Parse(itemsText, complaints.About(itemsPath));
    const Complain complain = complaints.About(file.Name());

    // Now and then: what is found out so far becomes visible, and how far it is.
    auto shown = std::chrono::steady_clock::now();
    unsigned untilNext = 0;
    const auto goOn = [&](std::uint64_t exchanges) {
        if (IsInterrupted(surroundings)) {
            return false;
        }
        // Asking for the time costs as much as a short exchange.
        if (++untilNext % 64 == 0) {
            const auto now = std::chrono::steady_clock::now();
            if (now - shown > std::chrono::milliseconds(200)) {
                shown = now;
                text.Flush();
                if (surroundings.hasTerminal) {
                    progress.Show(file.BytesRead(), file.Size(), exchanges);
                }
            }
        }
        return true;
    };

    // A file is read twice: first for what stands at the head of the report, then for what is said in it. One that can't be
    // read to its end, such as a packed file that a logger without power left, is decoded as far as it goes.
    std::optional<ExchangeReader> reader;
    std::string breakOff;
    const auto read = [&](char* buffer, std::size_t size) -> std::size_t {
        try {
            return breakOff.empty() ? file.Read(buffer, size) : 0;
        } catch (const FileError& error) {
            breakOff = error.what();
            return 0;
        }
    };
    const auto open = [&](Complain to) {
        breakOff.clear();
        reader.emplace(read, std::move(to));
    };
    DiagnosisEngine engine(
        table, [&] { return reader->Next(); }, [&] { return reader->Totals(); }, complain);
    SessionStart start;
    bool interrupted = false;
    if (file.CanRewind()) {
        progress.Begin("surveying");
        open([](const Place&, const std::string&) {});
        engine.Survey(
            [&]() -> std::optional<Exchange> {
                interrupted = interrupted || !goOn(0);
                return interrupted ? std::nullopt : reader->Next();
            },
            [&] { return reader->Totals(); });
        if (!breakOff.empty() && reader->Totals().frames == 0) {
            throw FileError(breakOff);
        }
        start.first = reader->Totals().first;
        file.Rewind();
    }
    progress.Begin("decoding");
    open(complain);
    file.BeforeWaiting([&] { text.Flush(); });

    start.file = file.Name();
    start.isEmpty = file.IsEmpty();
    start.units = options.units;
    start.longestName = LongestName(table);
#if defined(KRM_HAVE_EXCHANGE)
    std::optional<RecordingEngine> recorded;
    if (options.record) {
        recorded.emplace(engine, *options.record, start);
    }
    Engine& asked = recorded ? static_cast<Engine&>(*recorded) : engine;
#else
    Engine& asked = engine;
#endif
    const SessionSummary summary = RunApplication(options, asked, start, text, files, goOn, [&](SessionSummary& ended) {
        ended.interrupted = ended.interrupted || IsInterrupted(surroundings);
        ended.faults = complaints.Count();
        progress.Hide();
    });
    complaints.TellRest();
#if defined(KRM_HAVE_EXCHANGE)
    if (recorded) {
        recorded->End({summary.faults, summary.interrupted, breakOff});
    }
#endif
    return StatusOf(summary, breakOff, err);
}

#if defined(KRM_HAVE_EXCHANGE)
/// The same over what such a session recorded. What was wrong with its input was told then.
int Replay(const Options& options, std::ostream& out, std::ostream& err, const Surroundings& surroundings) {
    CheckOutputs(options, {*options.replay});
    ReplayingEngine engine(*options.replay);
    OutputFiles files(options);
    TextStream text(out, "standard output");
    SessionSummary summary;
    try {
        summary = RunApplication(
            options, engine, engine.Start(), text, files,
            [&](std::uint64_t) { return engine.HasMore() && !IsInterrupted(surroundings); },
            [&](SessionSummary& ended) {
                ended.interrupted = ended.interrupted || engine.End().interrupted || IsInterrupted(surroundings);
                ended.faults = engine.End().faults;
            });
    } catch (const FileError&) {
        // What came before the answer that is missing is kept.
        text.Flush();
        files.Close(options, summary);
        throw;
    }
    return StatusOf(summary, engine.End().breakOff, err);
}
#endif

}  // namespace

int RunDiagnosisSession(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                        const Surroundings& surroundings) {
    const CommandLine line = ReadCommandLine(arguments);
    if (line.answer) {
        (line.isWrong ? err : out) << *line.answer;
        return line.isWrong ? kFailed : kGood;
    }
    try {
#if defined(KRM_HAVE_EXCHANGE)
        if (line.options.replay) {
            return Replay(line.options, out, err, surroundings);
        }
#endif
        return Run(line.options, arguments.empty() ? "" : arguments[0], out, err, surroundings);
    } catch (const FileError& error) {
        err << "diagnosis_session: " << error.what() << '\n';
        return kFailed;
    }
}

}  // namespace diagnosis_session
