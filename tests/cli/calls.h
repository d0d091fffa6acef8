// What the suites of cli/ share: the program called as main calls it.
#ifndef KRM_TESTS_CLI_CALLS_H_
#define KRM_TESTS_CLI_CALLS_H_

#include <sstream>
#include <string>
#include <vector>

#include "cli/program.h"

namespace krm::test {

/// What a call of the program has said.
struct Call {
    int status;
    std::string out;
    std::string err;
};
inline Call Krm(std::vector<std::string> arguments, bool hasColours = false) {
    arguments.insert(arguments.begin(), "krm");
    std::ostringstream out;
    std::ostringstream err;
    const int status = krm_cli::RunKrm(arguments, {out, err, hasColours});
    return {status, out.str(), err.str()};
}

}  // namespace krm::test

#endif  // KRM_TESTS_CLI_CALLS_H_
