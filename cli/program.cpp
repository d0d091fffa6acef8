#include "cli/program.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <memory>

#include "cli/patterns.h"
#include "cli/subcommands.h"

namespace krm_cli {
namespace {

// The parser is a large header: this one source sees it.

/// What the command line asks for; returns an exit status.
using Chosen = std::function<int(const Surroundings& surroundings)>;

void AddShow(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<ShowOptions>();
    CLI::App* const show = app.add_subcommand("show", "Show the messages of an operation log or a recording");
    show->add_option("FILE", options->file, "The log or recording; - is standard input")->type_name("")->required();
    show->add_option("--filter", options->filter,
                     "Show only messages that pass it, such as: command:GetDTC m_strDTC=P03*")
        ->type_name("EXPR");
    show->add_option("--message", options->message, "Show this message alone, with its first level")
        ->type_name("N")
        ->check(CLI::PositiveNumber);
    show->add_flag("--full", options->isFull, "Unfold lists and records");
    show->add_flag("--json", options->isJson, "Write a JSON document per message, each on a line");
    show->footer(
        "A filter's conditions, all of which a message must meet (- in front: must not):\n"
        "  command:GetDTC family:Cmd id:1/2 direction:answer ecu:2024 exchange:7 thread:1\n"
        "  m_strDTC=P03* m_ulResult!=0 Data[*].m_ulDTCCode>=0x100 value>50    fields by name or path; value is any\n"
        "  misfire \"no answer\"                                                words in paths and values\n"
        "Example:\n"
        "  krm show build/demo-operation.log --filter \"command:GetDTC direction:answer\" --full");
    show->callback([options, &chosen] {
        chosen = [options](const Surroundings& surroundings) { return RunShow(*options, surroundings); };
    });
}

void AddDiff(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<DiffOptions>();
    CLI::App* const diff = app.add_subcommand("diff", "Tell what differs between two logs or recordings");
    diff->add_option("A", options->file1, "A log or recording; - is standard input")->type_name("")->required();
    diff->add_option("B", options->file2, "Another one, of either kind")->type_name("")->required();
    diff->add_option("--ignore", options->ignore, "Leave these fields aside: Data[*].m_ul*NameId; may be repeated")
        ->type_name("PATTERN")
        ->allow_extra_args(false);
    diff->add_option("--key", options->keys,
                     "Match elements of this list by these fields, not by position: Data=m_strDTC; may be repeated")
        ->type_name("PATH=FIELD[,FIELD...]")
        ->allow_extra_args(false);
    diff->add_option("--tolerance", options->tolerance, "How far doubles may lie apart and be equal (0)")
        ->type_name("NUMBER");
    diff->add_flag("--json", options->isJson, "Write a JSON document per difference, each on a line");
    diff->footer(
        "Messages find each other by command, direction and ECU, in their order. Times aren't compared.\n"
        "Exit status: 0 equal; 1 different; 2 trouble.\n"
        "Example:\n"
        "  krm diff monday.log tuesday.log --key Data=m_strDTC --ignore \"Data[*].m_cFFDList\"");
    diff->callback([options, &chosen] {
        chosen = [options](const Surroundings& surroundings) { return RunDiff(*options, surroundings); };
    });
}

void AddView(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<ViewOptions>();
    CLI::App* const view =
        app.add_subcommand("view", "Write a page for the browser that shows one or two logs or recordings");
    view->add_option("FILE", options->file, "A log or recording; - is standard input")->type_name("")->required();
    view->add_option("FILE2", options->file2, "Another one, to be shown beside it")->type_name("");
    view->add_option("-o,--output", options->output, "The page; it needs neither a server nor a network")
        ->type_name("FILE")
        ->required();
    view->footer(
        "The page holds the files as they are, whatever they say: who gets it can read all of it.\n"
        "Example:\n"
        "  krm view monday.log tuesday.log -o report.html");
    view->callback([options, &chosen] {
        chosen = [options](const Surroundings& surroundings) { return RunView(*options, surroundings); };
    });
}

void AddRedact(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<RedactOptions>();
    CLI::App* const redact =
        app.add_subcommand("redact", "Copy a recording with VINs, and what you name, replaced by pseudonyms");
    redact->add_option("FILE", options->file, "The recording; - is standard input")->type_name("")->required();
    redact->add_option("-o,--output", options->output, "The copy")->type_name("FILE")->required();
    redact->add_option("--field", options->redaction.fields, "Replace what this field holds, too; may be repeated")
        ->type_name("PATH")
        ->allow_extra_args(false);
    redact->add_option("--value", options->redaction.values, "Replace this value wherever it stands; may be repeated")
        ->type_name("TEXT")
        ->allow_extra_args(false);
    redact->add_flag("--leave-vins", options->leavesVins, "Don't look for VINs");
    redact->add_option("--secret-file", options->secretFile, "Make pseudonyms from what it holds, the same every time")
        ->type_name("FILE");
    redact->add_flag("--force", options->overwrites, "Overwrite a copy that is there");
    redact->footer(
        "What it finds and what it can't find is told in docs/exchange.md; look at the copy before you share it.\n"
        "Example:\n"
        "  krm redact session.krmrec -o shared.krmrec --value \"Jane Doe\" --field \"Data[*].m_strComment\"");
    redact->callback([options, &chosen] {
        chosen = [options](const Surroundings& surroundings) { return RunRedact(*options, surroundings); };
    });
}

void AddSchema(CLI::App& app, Chosen& chosen) {
    CLI::App* const schema = app.add_subcommand("schema", "Write the JSON Schema (2020-12) of all messages");
    schema->footer(
        "It describes what stands in a recording as \"message\".\n"
        "Example:\n"
        "  krm schema > messages.schema.json");
    schema->callback([&chosen] { chosen = &RunSchema; });
}

void AddCommands(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<CommandsOptions>();
    CLI::App* const commands =
        app.add_subcommand("commands", "List all commands, or tell what an ID, a name or a line of a log means");
    commands
        ->add_option("QUERY", options->query,
                     "Type and ID (1/2), an ID, a command, class or field, also with * in it, or a line of a log")
        ->type_name("");
    commands->footer(
        "Examples:\n"
        "  krm commands 1/2\n"
        "  krm commands \"*Customize*\"\n"
        "  krm commands m_ulReadynessStatus\n"
        "  krm commands \"[CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301\"");
    commands->callback([options, &chosen] {
        chosen = [options](const Surroundings& surroundings) { return RunCommands(*options, surroundings); };
    });
}

void AddConvert(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<ConvertOptions>();
    CLI::App* const convert =
        app.add_subcommand("convert", "Convert a signal from raw value to physical value and text, and back");
    convert->add_option("CODE", options->code, "Conversion type, 0 to 255; without it, a list of all")
        ->type_name("")
        ->check(CLI::Range(0, 255));
    convert->add_option("RAW", options->raw, "Raw value, 123 or 0x7B; for types 4 and 104 bytes in hexadecimal")
        ->type_name("");
    convert->add_option("--back", options->back, "The way back, from what is shown")->type_name("TEXT_OR_VALUE");
    convert->add_option("--bits", options->bits, "Bit length (8)")->type_name("N")->check(CLI::Range(1, 65535));
    convert
        ->add_option("--signed", options->signCode,
                     "Sign code: 0 unsigned (default), 1 two's complement, 3 sign and magnitude")
        ->type_name("N")
        ->check(CLI::Range(0, 255));
    convert->add_option("--mul", options->mul, "Multiplier (1)")->type_name("N");
    convert->add_option("--div", options->div, "Divisor (1)")->type_name("N");
    convert->add_option("--offset", options->offset, "Offset, in units of the last decimal place (0)")->type_name("N");
    convert->add_option("--decimals", options->decimals, "Decimal places (0)")
        ->type_name("N")
        ->check(CLI::Range(0, 255));
    convert->add_option("--min", options->min, "Lower limit, a raw value (0)")->type_name("RAW");
    convert->add_option("--max", options->max, "Upper limit, a raw value (what the bits hold)")->type_name("RAW");
    convert->add_option("--pattern", options->patterns, "Text for a key; may be repeated")
        ->type_name("KEY=TEXT")
        ->allow_extra_args(false);
    convert->add_option("--default", options->defaultText, "Text where no pattern fits")->type_name("TEXT");
    convert->footer(
        "Examples:\n"
        "  krm convert 0 0x7B --offset -40          coolant temperature: 83 degrees\n"
        "  krm convert 0 --back 83 --offset -40     and back: 0x7B\n"
        "  krm convert 1 1 --pattern 0=Off --pattern 1=On");
    convert->callback([options, &chosen] {
        chosen = [options](const Surroundings& surroundings) { return RunConvert(*options, surroundings); };
    });
}

}  // namespace

int RunKrm(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
    CLI::App app("Shows, compares and explains what a diagnosis application and its engine said to each other.", "krm");
    app.allow_windows_style_options(false);  // a path may begin with a slash there too
    app.set_help_flag("-h,--help", "Show this text");
    app.set_version_flag("--version", "krm " KRM_VERSION, "Show the version");
    app.require_subcommand(1);
    app.footer(
        "`krm SUBCOMMAND --help` tells how to call each, with an example.\n"
        "Exit status: 0 done, or equal; 1 parts of the input were bad (told on standard error, the rest is done), or\n"
        "different; 2 wrong use, or a file that can't be read or written.");
    Chosen chosen;
    AddShow(app, chosen);
    AddDiff(app, chosen);
    AddView(app, chosen);
    AddRedact(app, chosen);
    AddSchema(app, chosen);
    AddCommands(app, chosen);
    AddConvert(app, chosen);
    // The parser takes them from the back.
    std::vector<std::string> reversed(arguments.empty() ? arguments.end() : arguments.begin() + 1, arguments.end());
    std::reverse(reversed.begin(), reversed.end());
    try {
        app.parse(reversed);
        return chosen(surroundings);
    } catch (const CLI::CallForHelp&) {
        surroundings.out << app.help() << std::flush;
        return kDone;
    } catch (const CLI::CallForVersion& version) {
        surroundings.out << version.what() << '\n' << std::flush;
        return kDone;
    } catch (const CLI::ParseError& error) {
        const std::vector<CLI::App*> subcommands = app.get_subcommands();
        surroundings.err << "krm: " << Shown(error.what()) << "\nRun krm "
                         << (subcommands.empty() ? "" : subcommands.front()->get_name() + ' ')
                         << "--help for how to call it.\n";
        return kFailed;
    } catch (const std::exception& error) {
        surroundings.err << "krm: " << Shown(error.what()) << '\n';
        return kFailed;
    }
}

}  // namespace krm_cli
