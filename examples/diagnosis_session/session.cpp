#include "session.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <system_error>

#include "complaints.h"
#include "engine.h"
#include "exchange.h"
#include "item_table.h"
#include "operation_log_file.h"
#include "report.h"

namespace diagnosis_session {
namespace {

constexpr const char* kUsage =
    "usage: diagnosis_session [RECORDING [ITEMS]] [--log FILE] [--values FILE] [--help]\n"
    "\n"
    "Decodes what a vehicle said in a recording.\n"
    "\n"
    "  RECORDING      as `candump -l` writes it; default: the example's own\n"
    "  ITEMS          JSON table of the values in the answers; default: the example's own\n"
    "  --log FILE     operation log of every message; default: diagnosis_session.log\n"
    "  --values FILE  every value as CSV: exchange,request,item,raw,value,unit\n"
    "  --help         this text\n"
    "\n"
    "Exit status: 0 all decoded; 1 parts of the input were bad (told on standard error, the rest is decoded); 2 bad\n"
    "arguments, or a file that can't be read or written.\n";

struct Options {
    std::optional<std::string> recording;
    std::optional<std::string> items;
    std::string log = "diagnosis_session.log";
    std::optional<std::string> values;
    bool help = false;
};

/// What is wrong with the command line.
struct UsageError {
    std::string what;
};

Options ParseArguments(const std::vector<std::string>& arguments) {
    Options options;
    bool onlyFiles = false;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const bool isOption = !onlyFiles && argument.size() > 1 && argument[0] == '-';
        if (isOption && argument == "--") {
            onlyFiles = true;
        } else if (isOption && argument == "--help") {
            options.help = true;
        } else if (isOption && (argument == "--log" || argument == "--values")) {
            if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
                throw UsageError{argument + " needs a file"};
            }
            ++i;
            if (argument == "--log") {
                options.log = arguments[i];
            } else {
                options.values = arguments[i];
            }
        } else if (isOption) {
            throw UsageError{"unknown option " + argument};
        } else if (argument.empty()) {
            throw UsageError{"an empty file name"};
        } else if (!options.recording) {
            options.recording = argument;
        } else if (!options.items) {
            options.items = argument;
        } else {
            throw UsageError{"one argument too many: " + argument};
        }
    }
    return options;
}

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

/// The whole file; nothing where it can't be read.
std::optional<std::string> ReadFile(const std::string& path) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    return file.bad() ? std::nullopt : std::optional(std::move(text));
}

bool IsSameFile(const std::string& left, const std::string& right) {
    std::error_code error;
    return left == right || std::filesystem::equivalent(left, right, error);
}

// ---- The application ----

/// Asks the engine one question. Both messages go into the operation log, a line for each of their fields.
template <class Request, class Reply>
void Ask(DiagnosisEngine& engine, Request& request, Reply& reply) {
    request.ErrWriteOperationLog();
    engine.Answer(request, reply);
    reply.ErrWriteOperationLog();
}

/// Asks which ECUs there are and connects to each. Returns those that are connected.
std::vector<krm_ulong> ConnectEcus(DiagnosisEngine& engine, Report& report) {
    CKRMCGetGroupEcuListCmdAdaptDataSnd listRequest;
    CKRMCGetGroupEcuListCmdAdaptDataRcv list;
    Ask(engine, listRequest, list);

    std::vector<krm_ulong> connected;
    for (const CKRMCCommandEcuGroupData& group : list.Data) {
        for (const CKRMCCommandEcuData& ecu : group.m_cEcuList) {
            CKRMCEcuConnectCmdAdaptDataSnd request;
            request.m_ulEcuId = ecu.m_ulEcuId;
            request.m_ushGroupId = group.m_ushGroupId;
            request.m_ushBusId = ecu.m_ushBusId;
            CKRMCEcuConnectCmdAdaptDataRcv reply;
            Ask(engine, request, reply);
            report.AddEcu(reply.m_ulEcuId, reply.m_bConnect, reply.m_strDescription.GetText());
            if (reply.m_bConnect) {
                connected.push_back(reply.m_ulEcuId);
            }
        }
    }
    return connected;
}

void ReadVin(DiagnosisEngine& engine, const EcuAnswer& said, Report& report) {
    CKRMCGetVinCodeCmdAdaptDataSnd request;
    request.m_ulEcuId = said.ecu;
    CKRMCGetVinCodeCmdAdaptDataRcv reply;
    Ask(engine, request, reply);
    if (reply.m_strVinCode.GetLength() != 0) {
        report.AddVin(said.ecu, reply.m_strVinCode.GetText());
    }
}

void ReadTroubleCodes(DiagnosisEngine& engine, const EcuAnswer& said, DtcPhase phase, const char* kind,
                      Report& report) {
    // Step 1: construct the request, which has its command type and ID by that, and set its fields.
    CKRMCGetDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = said.ecu;
    request.m_uchPhaseType = static_cast<unsigned char>(phase);
    // Step 2: the engine fills the answer, a record for each code.
    CKRMCGetDTCCmdAdaptDataRcv reply;
    Ask(engine, request, reply);
    // Step 3: read the records.
    if (!said.IsNegative()) {
        report.AddTroubleCodes(said.ecu, kind, reply);
    }
}

void ClearTroubleCodes(DiagnosisEngine& engine, const EcuAnswer& said, Report& report) {
    CKRMCClearDTCCmdAdaptDataSnd request;
    request.m_ulEcuId = said.ecu;
    CKRMCClearDTCCmdAdaptDataRcv reply;
    Ask(engine, request, reply);
    report.AddClearing(said.ecu, reply.m_ulResult);
}

void ReadValues(DiagnosisEngine& engine, const Exchange& exchange, const EcuAnswer& said, Report& report) {
    CKRMCGetFFDCmdAdaptDataSnd request;
    request.m_ulEcuId = said.ecu;
    // The PIDs asked for: one byte each, with the number of the freeze frame behind it in service 02, two in service 22.
    const Bytes& bytes = exchange.request;
    const bool two = exchange.Service() == 0x02 || exchange.Service() == 0x22;
    for (std::size_t i = 1; i + (two ? 1 : 0) < bytes.size(); i += two ? 2 : 1) {
        if (exchange.Service() == 0x22) {
            request.m_cPidId.AddTail(static_cast<unsigned short>(bytes[i] << 8U | bytes[i + 1]));
        } else {
            request.m_cPidId.AddTail(bytes[i]);
        }
        if (exchange.Service() == 0x02) {
            request.m_uchFFDId = bytes[i + 1];
        }
    }
    CKRMCGetFFDCmdAdaptDataRcv reply;
    Ask(engine, request, reply);
    report.AddValues(exchange.number, HexOf(exchange.request), said.ecu, reply.Data);
}

/// Runs a data monitor on one ECU: lists what there is to watch, starts, and polls until nothing comes any more.
void RunDataMonitor(DiagnosisEngine& engine, krm_ulong ecu, unsigned short monitorId, Report& report) {
    CKRMCGetDataMonitorListCmdAdaptDataSnd listRequest;
    listRequest.m_ulEcuId = ecu;
    CKRMCGetDataMonitorListCmdAdaptDataRcv list;
    Ask(engine, listRequest, list);
    report.AddSupport(ecu, list.m_uchA8SupportData);
    if (list.Data.GetCount() == 0) {
        return;
    }

    // Watch everything that is listed. Several items may lie in the answer to one PID.
    std::set<krm_ulong> pids;
    for (const CKRMCCommandFFDData& item : list.Data) {
        pids.insert(item.m_cDataLayout.m_ulPidNo);
    }
    CKRMCCommandStartDataMonitorData watched;
    watched.m_ushDataMonitorId = monitorId;
    watched.m_ulEcuId = ecu;
    for (const krm_ulong pid : pids) {
        watched.m_cPidIdList.AddTail(static_cast<unsigned short>(pid));
    }
    CKRMCStartDataMonitorCmdAdaptDataSnd start;
    start.m_ulEcuId = ecu;
    start.Data.AddTail(watched);
    CKRMCStartDataMonitorCmdAdaptDataRcv started;
    Ask(engine, start, started);
    if (!started.m_bDataMonitorEnable) {
        return;
    }

    // No command stops a monitor: it ends when nobody polls it any more.
    std::size_t polls = 0;
    std::size_t values = 0;
    while (true) {
        CKRMCGetDataMonitorValueCmdAdaptDataSnd poll;
        poll.m_ulEcuId = ecu;
        poll.m_ushDataMonitorId = monitorId;
        CKRMCGetDataMonitorValueCmdAdaptDataRcv reply;
        Ask(engine, poll, reply);
        if (reply.Data.GetCount() == 0) {
            break;
        }
        ++polls;
        for (const CKRMCCommandFFDData& item : reply.Data) {
            values += static_cast<std::size_t>(item.m_cDispDataList.GetCount());
        }
    }
    report.AddMonitor(ecu, static_cast<std::size_t>(list.Data.GetCount()), polls, values);
}

/// The whole session, in the recording's order.
void RunSession(const std::vector<Exchange>& recording, DiagnosisEngine& engine, Report& report) {
    const std::vector<krm_ulong> ecus = ConnectEcus(engine, report);
    for (const Exchange& exchange : recording) {
        const bool isVin = exchange.request == Bytes{0x09, 0x02};
        for (const EcuAnswer& said : exchange.answers) {
            engine.Hear(exchange, said);
            if (isVin) {
                ReadVin(engine, said, report);
            } else if (exchange.request == Bytes{0x03}) {
                ReadTroubleCodes(engine, said, DtcPhase::Stored, "stored", report);
            } else if (exchange.request == Bytes{0x07}) {
                ReadTroubleCodes(engine, said, DtcPhase::Pending, "pending", report);
            } else if (exchange.request == Bytes{0x0A}) {
                ReadTroubleCodes(engine, said, DtcPhase::Permanent, "permanent", report);
            } else if (exchange.request == Bytes{0x04}) {
                ClearTroubleCodes(engine, said, report);
            } else {
                ReadValues(engine, exchange, said, report);
            }
        }
        engine.EndExchange(exchange);
    }
    unsigned short monitorId = 0;
    for (const krm_ulong ecu : ecus) {
        RunDataMonitor(engine, ecu, ++monitorId, report);
    }
}

}  // namespace

int RunDiagnosisSession(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Options options;
    try {
        options = ParseArguments(arguments);
    } catch (const UsageError& error) {
        err << "diagnosis_session: " << error.what << '\n' << kUsage;
        return kFailed;
    }
    if (options.help) {
        out << kUsage;
        return kGood;
    }

    const std::string program = arguments.empty() ? "" : arguments[0];
    const std::string recordingFile = options.recording.value_or(OwnFile(program, "session.log"));
    const std::string itemsFile = options.items.value_or(OwnFile(program, "session.items.json"));
    const std::optional<std::string> recordingText = ReadFile(recordingFile);
    const std::optional<std::string> itemsText = ReadFile(itemsFile);
    if (!recordingText || !itemsText) {
        err << (recordingText ? itemsFile : recordingFile) << ": cannot be read\n";
        return kFailed;
    }
    for (const std::string& output : {options.log, options.values.value_or(options.log)}) {
        if (IsSameFile(output, recordingFile) || IsSameFile(output, itemsFile)) {
            err << output << ": is an input; it will not be overwritten\n";
            return kFailed;
        }
    }
    if (options.values && IsSameFile(options.log, *options.values)) {
        err << options.log << ": can't be both operation log and values\n";
        return kFailed;
    }
    OperationLogFile log(options.log);
    if (!log.IsGood()) {
        err << options.log << ": cannot be written\n";
        return kFailed;
    }
    std::ofstream values;
    if (options.values) {
        values.open(*options.values, std::ios::binary);
        if (!values) {
            err << *options.values << ": cannot be written\n";
            return kFailed;
        }
    }

    Complaints complaints(err);
    const ItemTable table = ItemTable::Parse(*itemsText, complaints.About(itemsFile));
    const std::vector<Exchange> recording = ReadExchanges(*recordingText, complaints.About(recordingFile));
    DiagnosisEngine engine(table, recording, complaints.About(recordingFile));
    Report report;
    RunSession(recording, engine, report);

    report.Print(out);
    out << recording.size() << " exchanges, " << report.ValueCount() << " values, " << log.LineCount()
        << " log lines\n";
    if (options.values) {
        report.WriteCsv(values);
        if (!values.flush()) {
            err << *options.values << ": cannot be written\n";
            return kFailed;
        }
    }
    if (!log.Flush()) {
        err << options.log << ": cannot be written\n";
        return kFailed;
    }
    return complaints.Count() == 0 ? kGood : kBadInput;
}

}  // namespace diagnosis_session
