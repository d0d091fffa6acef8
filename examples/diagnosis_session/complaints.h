// Where bad input is told: one line per fault on standard error, and a count that decides the exit status.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_COMPLAINTS_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_COMPLAINTS_H_

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>

namespace diagnosis_session {

/// Takes one fault of one input file: the line it stands on, from 1, and what is wrong with it.
using Complain = std::function<void(std::size_t line, const std::string& what)>;

/// Writes faults as "FILE:LINE: what" and counts them. What is told may quote a file that holds anything: control
/// characters are shown as question marks, so that a fault stays one line.
class Complaints {
public:
    explicit Complaints(std::ostream& out) : m_out(out) {}

    /// The complaints about `file`. They write to this object: it must outlive them.
    Complain About(std::string file) {
        return [this, file = std::move(file)](std::size_t line, const std::string& what) {
            m_out << file << ':' << line << ": ";
            for (const char character : what) {
                const bool isControl = (character >= 0 && character < ' ') || character == '\x7F';
                m_out << (isControl ? '?' : character);
            }
            m_out << '\n';
            ++m_count;
        };
    }

    std::size_t Count() const { return m_count; }

private:
    std::ostream& m_out;
    std::size_t m_count = 0;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_COMPLAINTS_H_
