// Decodes what a recorded vehicle said: a diagnosis application and its engine in one program, talking to each other in
// the messages of the library. `diagnosis_session --help` tells how to call it; session.cpp is the place to read on.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "session.h"

int main(int argc, char** argv) {
    try {
        return diagnosis_session::RunDiagnosisSession(std::vector<std::string>(argv, argv + argc), std::cout,
                                                      std::cerr);
    } catch (const std::exception& error) {
        std::cerr << "diagnosis_session: " << error.what() << '\n';
        return diagnosis_session::kFailed;
    }
}
