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

/// A line of a recording: GetVinCode, a "request" or an "answer", with the content as JSON.
inline std::string RecordedVin(const std::string& direction, const std::string& content, int exchange = 1,
                               const std::string& year = "2026") {
    return R"({"exchange":)" + std::to_string(exchange) + R"(,"time":")" + year +
           R"(-11-22T09:35:01.123456Z","type":1,"id":79,"message":{"command":"GetVinCode","family":"Cmd","direction":")" +
           direction + R"(","content":)" + content + "}}\n";
}

}  // namespace krm::test

#endif  // KRM_TESTS_CLI_CALLS_H_
