// The program krm. `krm --help` tells how to call it; each subcommand has a file of its name.
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include "cli/program.h"
#include "cli/terminal/interruption.h"

namespace {

/// Whether standard output is to have colours: https://no-color.org.
bool WantsColours() {
#ifdef _WIN32
    return false;  // older consoles show the sequences themselves
#else
    const char* const none = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    return terminal::IsTerminal(1) && (none == nullptr || *none == '\0') && terminal != nullptr &&
           std::string(terminal) != "dumb";
#endif
}

}  // namespace

int main(int argc, char** argv) {
    const volatile std::sig_atomic_t& interrupted = terminal::CatchSignals({SIGINT, SIGTERM});
    std::ios::sync_with_stdio(false);
#ifdef _WIN32
    // Line feeds stay as they are, in a pipe as in a file.
    _setmode(1, _O_BINARY);
#endif
    return krm_cli::RunKrm(std::vector<std::string>(argv, argv + argc),
                           {std::cout, std::cerr, WantsColours(), terminal::IsTerminal(2), &interrupted});
}
