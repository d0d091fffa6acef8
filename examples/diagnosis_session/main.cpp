// Decodes what a recorded vehicle said: a diagnosis application and its engine in one program, talking to each other in
// the messages of the library. `diagnosis_session --help` tells how to call it; application.cpp is the place to read on.
#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "cli/terminal/interruption.h"
#include "session.h"

int main(int argc, char** argv) {
    const volatile std::sig_atomic_t& interrupted = terminal::CatchSignals({SIGINT});
#ifndef _WIN32
    // Writing to a pipe that nobody reads then is an error like any other.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    try {
        return diagnosis_session::RunDiagnosisSession(std::vector<std::string>(argv, argv + argc), std::cout, std::cerr,
                                                      {terminal::IsTerminal(2), &interrupted});
    } catch (const std::exception& error) {
        std::cerr << "diagnosis_session: " << error.what() << '\n';
        return diagnosis_session::kFailed;
    }
}
