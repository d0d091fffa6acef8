// The example as a program: command line, files, application and engine put together.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_SESSION_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_SESSION_H_

#include <csignal>
#include <ostream>
#include <string>
#include <vector>

namespace diagnosis_session {

/// Exit statuses.
inline constexpr int kGood = 0;
inline constexpr int kBadInput = 1;  ///< parts of the input were bad, or not reached; the rest was decoded
inline constexpr int kFailed = 2;    ///< bad arguments, or a file that can't be read or written

/// What the program's surroundings are.
struct Surroundings {
    bool hasTerminal = false;                               ///< faults go to a terminal: it gets a progress bar
    const volatile std::sig_atomic_t* interrupt = nullptr;  ///< becomes 1 when the user wants the program to end
};

/// Runs the program. `arguments` begin with the program's own path, as main's do. What the vehicle said goes to `out`,
/// faults go to `err`. Uses the process's operation log while it runs, if the arguments ask for one.
int RunDiagnosisSession(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                        const Surroundings& surroundings = {});

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_SESSION_H_
