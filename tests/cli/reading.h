// What the suites of cli/ share: a text read as the program reads a file.
#ifndef KRM_TESTS_CLI_READING_H_
#define KRM_TESTS_CLI_READING_H_

#include <memory>
#include <sstream>
#include <string>

#include "cli/byte_source.h"
#include "cli/input.h"
#include "cli/surroundings.h"

namespace krm::test {

/// A program that has read its streams, with the text as its file.
class Reading {
public:
    explicit Reading(const std::string& text) : m_source(text, "a.log", m_surroundings) {}

    krm_cli::ByteSource& Source() { return m_source; }
    const krm_cli::Surroundings& Around() const { return m_surroundings; }

private:
    std::ostringstream m_out;
    std::ostringstream m_err;
    krm_cli::Surroundings m_surroundings{m_out, m_err};
    krm_cli::ByteSource m_source;
};

/// All of an exchange as text: "begin 1", "1 PATH=VALUE", "end 1 COMMAND", "other LINE TEXT".
inline std::string EventsOf(krm_cli::Input& input) {
    using krm_cli::Event;
    std::string text;
    for (;;) {
        const Event event = input.Next();
        const krm_cli::MessageHead& head = input.Head();
        const std::string number = std::to_string(head.number);
        switch (event) {
            case Event::Begin:
                text += "begin " + number + '\n';
                break;
            case Event::Field:
                text += number + ' ' + std::string(input.Field().path) + '=' + std::string(input.Field().value) + '\n';
                break;
            case Event::End:
                text += "end " + number + ' ' + head.command;
                text += !head.direction ? "" : head.direction == Direction::Send ? " request" : " answer";
                text += (head.ecu ? ", ECU " + std::to_string(*head.ecu) : "");
                text += head.source.empty() ? "" : ", source " + head.source;
                text += head.beginIsMissing ? ", begin is missing\n" : "\n";
                break;
            case Event::Other:
                text += "other " + std::to_string(input.Other().line) + ' ' + std::string(input.Other().text) + '\n';
                break;
            case Event::Finished:
                return text;
        }
    }
}

}  // namespace krm::test

#endif  // KRM_TESTS_CLI_READING_H_
