// The subcommands of krm: what each is asked for, and what runs it. cli/program.cpp makes the options of the command line.
#ifndef KRM_CLI_SUBCOMMANDS_H_
#define KRM_CLI_SUBCOMMANDS_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/surroundings.h"
#include "krm/exchange/redact.h"

namespace krm_cli {

// A file "-" is standard input. Each function returns an exit status, and throws Failure.

/// krm show: an exchange as an outline.
struct ShowOptions {
    std::string file;
    std::string filter;
    std::uint64_t message = 0;  ///< 0 for all
    bool isFull = false;
    bool isJson = false;
};
int RunShow(const ShowOptions& options, const Surroundings& surroundings);

/// krm diff: what differs between two exchanges.
struct DiffOptions {
    std::string file1;
    std::string file2;
    std::vector<std::string> ignore;
    std::vector<std::string> keys;
    std::string tolerance;  ///< a number; empty for 0
    bool isJson = false;
};
int RunDiff(const DiffOptions& options, const Surroundings& surroundings);

/// krm view: the page that shows logs and recordings, with one or two of them inside.
struct ViewOptions {
    std::string file;
    std::string file2;
    std::string output;
};
int RunView(const ViewOptions& options, const Surroundings& surroundings);

/// krm redact: a recording without what identifies a vehicle or a person.
struct RedactOptions {
    std::string file;
    std::string output;
    std::string secretFile;
    bool overwrites = false;
    bool leavesVins = false;
    krm::RedactOptions redaction;
};
int RunRedact(const RedactOptions& options, const Surroundings& surroundings);

/// krm schema: the JSON Schema of the messages.
int RunSchema(const Surroundings& surroundings);

/// krm commands: what commands, classes, fields and lines of the log mean.
struct CommandsOptions {
    std::string query;
};
int RunCommands(const CommandsOptions& options, const Surroundings& surroundings);

/// krm convert: a signal from raw value to physical value and text, and back.
struct ConvertOptions {
    std::optional<int> code;
    std::string raw;
    std::string back;
    int bits = 0;  ///< 0: 8; of types that take bytes, always theirs
    int signCode = 0;
    std::int32_t mul = 1;
    std::int32_t div = 1;
    std::int32_t offset = 0;
    int decimals = 0;
    std::string min;
    std::string max;
    std::vector<std::string> patterns;
    std::string defaultText;
};
int RunConvert(const ConvertOptions& options, const Surroundings& surroundings);

}  // namespace krm_cli

#endif  // KRM_CLI_SUBCOMMANDS_H_
