// The diagnosis application of the example, and its command line.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_SESSION_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_SESSION_H_

#include <ostream>
#include <string>
#include <vector>

namespace diagnosis_session {

/// Exit statuses.
inline constexpr int kGood = 0;
inline constexpr int kBadInput = 1;  ///< parts of the input were bad; each is told, the rest was decoded
inline constexpr int kFailed = 2;    ///< bad arguments, or a file that can't be read or written

/// Runs the program. `arguments` begin with the program's own path, as main's do. What the vehicle said goes to `out`,
/// faults go to `err`. Uses the process's operation log while it runs.
int RunDiagnosisSession(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_SESSION_H_
