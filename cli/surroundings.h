// What every subcommand of krm has around it: streams, terminal, interruption; and how it ends.
#ifndef KRM_CLI_SURROUNDINGS_H_
#define KRM_CLI_SURROUNDINGS_H_

#include <csignal>
#include <ostream>
#include <stdexcept>
#include <string>

namespace krm_cli {

// Exit statuses.
inline constexpr int kDone = 0;      ///< done; of diff: equal
inline constexpr int kBadParts = 1;  ///< parts of the input were bad and told; the rest was done. Of diff: different
inline constexpr int kFailed = 2;    ///< wrong use, or a file that can't be read or written

/// Ends the program with kFailed; `what` is for people, in one line.
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Thrown where the user wanted the program to end.
struct Interrupted : Failure {
    Interrupted() : Failure("interrupted") {}
};

/// What the program's surroundings are.
struct Surroundings {
    std::ostream& out;                                      ///< what was asked for
    std::ostream& err;                                      ///< what went wrong
    bool hasColours = false;                                ///< `out` goes to a terminal that is to show colours
    bool hasTerminal = false;                               ///< `err` goes to a terminal: it gets a progress bar
    const volatile std::sig_atomic_t* interrupt = nullptr;  ///< becomes 1 when the user wants the program to end

    /// Throws Interrupted when the user wants the program to end.
    void GoOn() const {
        if (interrupt != nullptr && *interrupt != 0) {
            throw Interrupted();
        }
    }
};

}  // namespace krm_cli

#endif  // KRM_CLI_SURROUNDINGS_H_
