// Runs the example diagnosis_session in this process, on files of the test's own.
#ifndef KRM_TESTS_SUPPORT_SESSION_RUN_H_
#define KRM_TESTS_SUPPORT_SESSION_RUN_H_

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "examples/diagnosis_session/session.h"
#include "tests/support/folder.h"

namespace krm::test {

using SessionFolder = TestFolder;

struct SessionResult {
    int status;
    std::string out;
    std::string err;
};

inline SessionResult RunSession(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "diagnosis_session");
    std::ostringstream out;
    std::ostringstream err;
    const int status = diagnosis_session::RunDiagnosisSession(arguments, out, err);
    return {status, out.str(), err.str()};
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_SESSION_RUN_H_
