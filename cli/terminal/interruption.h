// The user's wish that the program ends, and whether there is a user who looks on.
#ifndef KRM_CLI_TERMINAL_INTERRUPTION_H_
#define KRM_CLI_TERMINAL_INTERRUPTION_H_

#include <csignal>
#include <initializer_list>

namespace terminal {

/// Lets these signals set the flag that is returned, and even a read that waits for input come back. The second signal of
/// a kind does what it does by default: it ends the program.
const volatile std::sig_atomic_t& CatchSignals(std::initializer_list<int> signals);

/// Whether this file descriptor (0 to 2) is a terminal.
bool IsTerminal(int descriptor);

}  // namespace terminal

#endif  // KRM_CLI_TERMINAL_INTERRUPTION_H_
