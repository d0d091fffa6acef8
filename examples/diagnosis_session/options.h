// The command line of the example.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_OPTIONS_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_OPTIONS_H_

#include <optional>
#include <string>
#include <vector>

namespace diagnosis_session {

struct Options {
    std::optional<std::string> recording;  ///< "-" is standard input
    std::optional<std::string> items;
    std::optional<std::string> operationLog;
    std::optional<std::string> values;
    std::optional<std::string> record;  ///< what application and engine say to each other goes there
    std::optional<std::string> replay;  ///< such a file, instead of recording and items
    std::string units;                  ///< "metric", "imperial", or empty
    bool json = false;
};

/// What reading the command line comes to: options, or a text to show and end with: the help or the version, or what is
/// wrong.
struct CommandLine {
    Options options;
    std::optional<std::string> answer;
    bool isWrong = false;
};

/// `arguments` begin with the program's own path, as main's do.
CommandLine ReadCommandLine(const std::vector<std::string>& arguments);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_OPTIONS_H_
