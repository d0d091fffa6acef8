#include "cli/terminal/interruption.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace terminal {
namespace {

volatile std::sig_atomic_t interrupted = 0;

extern "C" void Interrupt(int signal) {
    interrupted = 1;
    // A second time means it.
    std::signal(signal, SIG_DFL);
}

}  // namespace

const volatile std::sig_atomic_t& CatchSignals(std::initializer_list<int> signals) {
    for (const int signal : signals) {
#ifdef _WIN32
        std::signal(signal, &Interrupt);
#else
        // std::signal would let a read that waits for input go on waiting.
        struct sigaction action {};
        action.sa_handler = &Interrupt;
        sigaction(signal, &action, nullptr);
#endif
    }
    return interrupted;
}

bool IsTerminal(int descriptor) {
#ifdef _WIN32
    return _isatty(descriptor) != 0;
#else
    return isatty(descriptor) != 0;
#endif
}

}  // namespace terminal
