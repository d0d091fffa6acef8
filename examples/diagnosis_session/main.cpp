// Decodes what a recorded vehicle said: a diagnosis application and its engine in one program, talking to each other in
// the messages of the library. `diagnosis_session --help` tells how to call it; application.cpp is the place to read on.
#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "session.h"

namespace {

volatile std::sig_atomic_t interrupted = 0;

extern "C" void Interrupt(int signal) {
    interrupted = 1;
    // A second time means it.
    std::signal(signal, SIG_DFL);
}

void CatchSignals() {
#ifdef _WIN32
    std::signal(SIGINT, &Interrupt);
#else
    // std::signal would let a read that waits for input go on waiting.
    struct sigaction action {};
    action.sa_handler = &Interrupt;
    sigaction(SIGINT, &action, nullptr);
    // Writing to a pipe that nobody reads then is an error like any other.
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

bool HasTerminal() {
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return isatty(2) != 0;
#endif
}

}  // namespace

int main(int argc, char** argv) {
    CatchSignals();
    try {
        return diagnosis_session::RunDiagnosisSession(std::vector<std::string>(argv, argv + argc), std::cout, std::cerr,
                                                      {HasTerminal(), &interrupted});
    } catch (const std::exception& error) {
        std::cerr << "diagnosis_session: " << error.what() << '\n';
        return diagnosis_session::kFailed;
    }
}
