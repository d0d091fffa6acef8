// The program krm but for its main, so that tests can call it.
#ifndef KRM_CLI_PROGRAM_H_
#define KRM_CLI_PROGRAM_H_

#include <string>
#include <vector>

#include "cli/surroundings.h"

namespace krm_cli {

/// Runs the program. `arguments` begin with the program's own path, as main's do. Returns an exit status.
int RunKrm(const std::vector<std::string>& arguments, const Surroundings& surroundings);

}  // namespace krm_cli

#endif  // KRM_CLI_PROGRAM_H_
