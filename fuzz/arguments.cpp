// The program krm: any arguments and any standard input, in a folder of its own. How it ends is what it says, what it writes is
// whole, and the same again does the same.
//
// The input: an argument on each line, up to an empty one; behind it what standard input has. 0x01 in an argument stands for a
// line feed.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "cli/program.h"
#include "fuzz/support/input.h"

namespace {

using Arguments = std::vector<std::string>;
/// The folder's files: what they hold, by their names.
using Files = std::map<std::string, std::string>;

const Files& GivenFiles() {
    static const Files files = {
        {"a.log",
         "10:00:00 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1\n"
         "10:00:00 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2\n"
         "10:00:00 1 [CKRMCBaseCmdAdaptDataRcv::ErrWriteOperationLog] m_bNotSupport=0\n"
         "10:00:00 1 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301\n"
         "10:00:00 1 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[1].m_strDTC=P0420\n"
         "another line\n"},
        {"a.krmrec",
         R"({"format":"krm recording","version":1,"library":"1.0.0"})"
         "\n"
         R"({"exchange":1,"time":"2026-11-22T09:35:01.123456Z","type":1,"id":79,"message":{"command":"GetVinCode",)"
         R"("family":"Cmd","direction":"request","content":{"m_ulEcuId":2016}}})"
         "\n"
         R"({"exchange":1,"time":"2026-11-22T09:35:01.223456Z","type":1,"id":79,"message":{"command":"GetVinCode",)"
         R"("family":"Cmd","direction":"answer","content":{"m_strVinCode":"KRM00000000000001"}}})"
         "\n"},
        {"secret", "a secret\n"},
        {"empty", ""}};
    return files;
}

/// The folder that the program runs in, and back out of it where it lives no longer.
class Folder {
public:
    Folder() {
        std::string name = (std::filesystem::temp_directory_path() / "krm-fuzz-XXXXXX").string();
        KRM_FUZZ_CHECK(mkdtemp(name.data()) != nullptr);
        m_folder = open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        m_home = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        KRM_FUZZ_CHECK(m_folder >= 0 && m_home >= 0);
        m_name = name;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_name, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    void Enter() const { KRM_FUZZ_CHECK(fchdir(m_folder) == 0); }
    void Leave() const { KRM_FUZZ_CHECK(fchdir(m_home) == 0); }

    Files Content() const {
        Files files;
        for (const auto& entry : std::filesystem::directory_iterator(m_name)) {
            KRM_FUZZ_CHECK(entry.is_regular_file());
            std::ifstream in(entry.path(), std::ios::binary);
            files[entry.path().filename().string()] = {std::istreambuf_iterator<char>(in), {}};
        }
        return files;
    }
    /// Leaves the given files alone there, as they are.
    void Restore(const Files& now) const {
        for (const auto& [name, content] : now) {
            if (!GivenFiles().contains(name)) {
                std::filesystem::remove(m_name / name);
            }
        }
        for (const auto& [name, content] : GivenFiles()) {
            const auto found = now.find(name);
            if (found == now.end() || found->second != content) {
                std::ofstream(m_name / name, std::ios::binary) << content;
            }
        }
    }

private:
    std::filesystem::path m_name;
    int m_folder = -1;
    int m_home = -1;
};

/// Gives the process this as its standard input, from the begin.
void SetStandardInput(std::string_view bytes) {
    static const bool isOurs = [] {
        const int file = memfd_create("stdin", 0);
        return file >= 0 && dup2(file, STDIN_FILENO) == STDIN_FILENO && close(file) == 0;
    }();
    KRM_FUZZ_CHECK(isOurs && ftruncate(STDIN_FILENO, 0) == 0);
    KRM_FUZZ_CHECK(pwrite(STDIN_FILENO, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
    std::rewind(stdin);
}

/// What a call of the program leaves behind.
struct Result {
    int status = 0;
    std::string out;
    std::string err;
    Files files;
};

Result Run(const Folder& folder, const Arguments& arguments, std::string_view standardInput) {
    SetStandardInput(standardInput);
    std::ostringstream out;
    std::ostringstream err;
    Arguments all = {"krm"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    Result result;
    folder.Enter();
    result.status = krm_cli::RunKrm(all, {out, err});
    folder.Leave();
    result.out = out.str();
    result.err = err.str();
    result.files = folder.Content();
    folder.Restore(result.files);
    return result;
}

bool Has(const Arguments& arguments, std::string_view wanted) {
    return std::ranges::find(arguments, wanted) != arguments.end();
}

/// Whether nothing in the text but line feeds commands a terminal.
bool IsHarmless(std::string_view text) {
    return std::ranges::all_of(text,
                               [](char c) { return c == '\n' || (static_cast<unsigned char>(c) >= ' ' && c != 0x7F); });
}

void CheckJsonLines(const std::string& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        KRM_FUZZ_CHECK(nlohmann::json::accept(line));
    }
}

void CheckResult(const Arguments& arguments, const Result& result) {
    KRM_FUZZ_CHECK(result.status >= 0 && result.status <= 2);
    KRM_FUZZ_CHECK(result.err.empty() || result.err.back() == '\n');
    KRM_FUZZ_CHECK(IsHarmless(result.err));
    const std::string command = arguments.empty() ? std::string() : arguments.front();
    const bool isDiff = command == "diff";
    if (result.status == 2) {
        KRM_FUZZ_CHECK(!result.err.empty());
    } else if (result.status == 1) {
        // What was bad is told; what is different, and what has no raw value, stands in the output.
        constexpr std::array<std::string_view, 4> kCommands = {"show", "diff", "redact", "convert"};
        KRM_FUZZ_CHECK(std::ranges::find(kCommands, command) != kCommands.end());
        KRM_FUZZ_CHECK(!result.err.empty() || ((isDiff || command == "convert") && !result.out.empty()));
    } else {
        // Messages of a program's own that diff can't compare are told, and no fault.
        KRM_FUZZ_CHECK(result.err.empty() || (isDiff && result.err.find(": not compared: ") != std::string::npos));
    }
    // What follows --json may be another option's value, as --json itself may be.
    if ((command == "show" || isDiff) && arguments.size() > 1 && arguments[1] == "--json" && result.status != 2) {
        // -h may have other letters behind it.
        const bool asksForHelp = std::ranges::any_of(
            arguments, [](const std::string& argument) { return argument.starts_with("-h") || argument == "--help"; });
        if (!asksForHelp) {
            CheckJsonLines(result.out);
        }
    } else if (!Has(arguments, "--json")) {
        KRM_FUZZ_CHECK(IsHarmless(result.out));
    }
    // One file is new or another at the most, and only where all went well.
    std::size_t changed = 0;
    for (const auto& [name, content] : result.files) {
        const auto given = GivenFiles().find(name);
        const bool isChanged = given == GivenFiles().end() || given->second != content;
        changed += isChanged ? 1 : 0;
        KRM_FUZZ_CHECK(!isChanged || std::ranges::any_of(arguments, [&name = name](const std::string& argument) {
            return argument.ends_with(name);
        }));
    }
    for (const auto& [name, content] : GivenFiles()) {
        KRM_FUZZ_CHECK(result.files.contains(name));
    }
    const bool writes = command == "view" || command == "redact";
    KRM_FUZZ_CHECK(changed <= (writes && result.status != 2 ? 1U : 0U));
}

/// Behind its subcommand, --help asks for nothing but the help, whatever follows that the program takes.
void CheckHelp(const Folder& folder, const Arguments& arguments) {
    Arguments asking = arguments;
    asking.insert(asking.begin() + 1, "--help");
    const Result help = Run(folder, asking, {});
    KRM_FUZZ_CHECK(help.status == 0 && help.err.empty() && help.files == GivenFiles());
    KRM_FUZZ_CHECK(help.out == Run(folder, {arguments.front(), "-h"}, {}).out);
    KRM_FUZZ_CHECK(help.out.find("Usage: krm " + arguments.front()) != std::string::npos);
}

/// Whether the argument can lead to no file beyond the folder: slashes stand between digits alone, as in 1/2.
bool StaysWithin(const std::string& argument) {
    const auto isDigit = [&](std::size_t i) { return i < argument.size() && argument[i] >= '0' && argument[i] <= '9'; };
    for (std::size_t i = 0; i < argument.size(); ++i) {
        if (argument[i] == '/' && (i == 0 || !isDigit(i - 1) || !isDigit(i + 1))) {
            return false;
        }
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    static const bool isFilled = [] {
        folder.Restore({});
        return true;
    }();
    KRM_FUZZ_CHECK(isFilled);

    std::string_view rest(reinterpret_cast<const char*>(data), size);
    Arguments arguments;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string argument(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (argument.empty()) {
            break;
        }
        std::ranges::replace(argument, '\x01', '\n');
        // A command line has no NUL.
        if (argument.find('\0') != std::string::npos || !StaysWithin(argument)) {
            return 0;
        }
        arguments.push_back(std::move(argument));
    }
    const Result result = Run(folder, arguments, rest);
    CheckResult(arguments, result);
    const Result again = Run(folder, arguments, rest);
    KRM_FUZZ_CHECK(again.status == result.status && again.out == result.out && again.err == result.err);
    // Without a secret, pseudonyms are others every time. What is said first is no other option's value.
    const bool isRandom = !arguments.empty() && arguments.front() == "redact" &&
                          (arguments.size() < 2 || !arguments[1].starts_with("--secret-file"));
    KRM_FUZZ_CHECK(isRandom || again.files == result.files);
    constexpr std::array<std::string_view, 7> kSubcommands = {"show",   "diff",     "view",   "redact",
                                                              "schema", "commands", "convert"};
    if (result.status != 2 && !arguments.empty() &&
        std::ranges::find(kSubcommands, arguments.front()) != kSubcommands.end()) {
        CheckHelp(folder, arguments);
    }
    return 0;
}
