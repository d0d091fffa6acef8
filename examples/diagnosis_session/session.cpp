#include "session.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "application.h"
#include "complaints.h"
#include "engine.h"
#include "exchange.h"
#include "item_table.h"
#include "json_output.h"
#include "operation_log_file.h"
#include "options.h"
#include "progress.h"
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

void CheckOutputs(const Options& options, const std::string& recording, const std::string& items) {
    for (const std::optional<std::string>& output : {options.operationLog, options.values}) {
        if (output && (IsSameFile(*output, recording) || IsSameFile(*output, items))) {
            throw FileError(*output + ": is an input; it will not be overwritten");
        }
    }
    if (options.operationLog && options.values && IsSameFile(*options.operationLog, *options.values)) {
        throw FileError(*options.values + ": can't be both operation log and values");
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

/// Everything that the options ask for, over a recording that is open.
int Run(const Options& options, const std::string& program, std::ostream& out, std::ostream& err,
        const Surroundings& surroundings) {
    const std::string recordingPath = options.recording.value_or(OwnFile(program, "session.log"));
    const std::string itemsPath = options.items.value_or(OwnFile(program, "session.items.json"));
    CheckOutputs(options, recordingPath, itemsPath);
    RecordingFile file(recordingPath);
    const std::string itemsText = ReadWholeFile(itemsPath);
    std::optional<OperationLogFile> log;
    std::optional<ValuesFile> values;
    if (options.operationLog) {
        log.emplace(*options.operationLog);
    }
    if (options.values) {
        values.emplace(*options.values);
    }

    Progress progress(err);
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
        if (surroundings.interrupt != nullptr && *surroundings.interrupt != 0) {
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
        if (log) {
            log->SetTime(reader->Totals().first);
        }
        file.Rewind();
    }
    progress.Begin("decoding");
    open(complain);
    file.BeforeWaiting([&] { text.Flush(); });

    std::unique_ptr<Output> report;
    if (options.json) {
        report = std::make_unique<JsonOutput>(text);
    } else {
        report = std::make_unique<Report>(text, LongestName(table));
    }
    Application::Settings settings;
    settings.recording.file = file.Name();
    settings.recording.isEmpty = file.IsEmpty();
    settings.units = options.units;
    settings.log = log ? &*log : nullptr;
    settings.outputs = {report.get()};
    if (values) {
        settings.outputs.push_back(&*values);
    }
    settings.goOn = goOn;
    SessionSummary summary = Application(engine, std::move(settings)).Run();
    summary.interrupted = summary.interrupted || (surroundings.interrupt != nullptr && *surroundings.interrupt != 0);

    progress.Hide();
    if (values) {
        values->Close();
        summary.written.push_back("values " + *options.values + Amount(values->RowCount(), "row"));
    }
    if (log) {
        log->Close();
        summary.written.push_back("operation log " + *options.operationLog + Amount(log->LineCount(), "line"));
    }
    summary.faults = complaints.Count();
    report->End(summary);
    complaints.TellRest();
    if (summary.interrupted) {
        err << "diagnosis_session: interrupted; what was decoded until then is there\n";
    }
    if (!breakOff.empty()) {
        throw FileError(breakOff + "; what was decoded until then is there");
    }
    return complaints.Count() == 0 && !summary.interrupted ? kGood : kBadInput;
}

}  // namespace

int RunDiagnosisSession(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                        const Surroundings& surroundings) {
    const CommandLine line = ReadCommandLine(arguments);
    if (line.answer) {
        (line.isWrong ? err : out) << *line.answer;
        return line.isWrong ? kFailed : kGood;
    }
    try {
        return Run(line.options, arguments.empty() ? "" : arguments[0], out, err, surroundings);
    } catch (const FileError& error) {
        err << "diagnosis_session: " << error.what() << '\n';
        return kFailed;
    }
}

}  // namespace diagnosis_session
