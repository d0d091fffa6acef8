#include "options.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace diagnosis_session {
namespace {

std::string NotEmpty(const std::string& text) {
    return text.empty() ? "needs a file" : "";
}

std::string NotStandardOutput(const std::string& text) {
    return text == "-" ? "needs a file; standard output has the report" : NotEmpty(text);
}

std::string IsBuiltIn(const std::string&) {
#if defined(KRM_HAVE_EXCHANGE)
    return "";
#else
    return "is not built in: the program was built without krm::exchange";
#endif
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    CLI::App app("Decodes what a vehicle said in a recording of its CAN bus.", "diagnosis_session");
    app.allow_windows_style_options(false);  // a path may begin with a slash there too
    app.set_help_flag("-h,--help", "Show this text");
    app.set_version_flag("--version", "diagnosis_session " KRM_VERSION, "Show the version");
    const CLI::Validator file(NotEmpty, "");
    const CLI::Validator outputFile(NotStandardOutput, "");
    const CLI::Validator builtIn(IsBuiltIn, "");
    CLI::Option* const recording =
        app.add_option(
               "RECORDING", line.options.recording,
               "What candump -l wrote or candump printed, gzip or not; - is standard input; default: the example's")
            ->type_name("")
            ->check(file);
    CLI::Option* const items =
        app.add_option("ITEMS", line.options.items, "JSON table of the values in the answers; default: the example's")
            ->type_name("")
            ->check(file);
    app.add_option("--operation-log", line.options.operationLog, "Write every message, a line for each of its fields")
        ->type_name("FILE")
        ->check(outputFile);
    app.add_option("--values", line.options.values, "Write every value as CSV")->type_name("FILE")->check(outputFile);
    CLI::Option* const units =
        app.add_option("--units", line.options.units, "Show values in metric (default) or imperial units")
            ->type_name("SYSTEM")
            ->check(CLI::IsMember({"metric", "imperial"}));
    CLI::Option* const record = app.add_option("--record", line.options.record,
                                               "Write what application and engine say to each other, for --replay")
                                    ->type_name("FILE")
                                    ->check(outputFile)
                                    ->check(builtIn);
    app.add_option("--replay", line.options.replay,
                   "Run the application on what --record wrote, without recording and items")
        ->type_name("FILE")
        ->check(file)
        ->check(builtIn)
        ->excludes(recording, items, units, record);
    app.add_flag("--json", line.options.json, "Write JSON instead of the report");
    app.footer(
        "Exit status: 0 all decoded; 1 parts of the input were bad (told on standard error, the rest is decoded), or\n"
        "the session was interrupted; 2 wrong use, or a file that can't be read or written.");
    // The parser takes them from the back.
    std::vector<std::string> reversed(arguments.empty() ? arguments.end() : arguments.begin() + 1, arguments.end());
    std::reverse(reversed.begin(), reversed.end());
    try {
        app.parse(reversed);
    } catch (const CLI::CallForHelp&) {
        line.answer = app.help();
    } catch (const CLI::CallForVersion& version) {
        line.answer = std::string(version.what()) + '\n';
    } catch (const CLI::ParseError& error) {
        line.isWrong = true;
        line.answer =
            "diagnosis_session: " + std::string(error.what()) + "\nRun diagnosis_session --help for how to call it.\n";
    }
    return line;
}

}  // namespace diagnosis_session
