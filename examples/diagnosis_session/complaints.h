// Where bad input is told: one line per fault on standard error, and a count that decides the exit status.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_COMPLAINTS_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_COMPLAINTS_H_

#include <cstddef>
#include <functional>
#include <map>
#include <ostream>
#include <string>

#include "cli/terminal/control_characters.h"

namespace diagnosis_session {

/// A place in a text file, from 1. A line alone stands for all of it: then the column is 0.
struct Place {
    std::size_t line = 1;
    std::size_t column = 0;

    Place() = default;
    Place(std::size_t inLine, std::size_t inColumn = 0)
        : line(inLine), column(inColumn) {}        // NOLINT: a line is a place
    operator std::size_t() const { return line; }  // NOLINT: and back
};

/// Takes one fault of one input file: where it is, and what is wrong.
using Complain = std::function<void(const Place& place, const std::string& what)>;

/// Writes faults as "FILE:LINE: what" or "FILE:LINE:COLUMN: what" and counts them. Of each file the first kMostTold are
/// told and the others counted. What is told may quote a file that holds anything: control characters are shown as
/// question marks, so that a fault stays one line.
class Complaints {
public:
    static constexpr std::size_t kMostTold = 20;

    explicit Complaints(std::ostream& out) : m_out(out) {}

    /// The complaints about `file`. They write to this object: it must outlive them.
    Complain About(const std::string& file) {
        return [this, file, &count = m_counts[file]](const Place& place, const std::string& what) {
            ++m_count;
            if (++count > kMostTold) {
                return;
            }
            m_beforeTelling();
            m_out << file << ':' << place.line << ':';
            if (place.column != 0) {
                m_out << place.column << ':';
            }
            m_out << ' ';
            for (const char character : what) {
                m_out << (terminal::IsControl(character) ? '?' : character);
            }
            m_out << '\n';
        };
    }

    /// Tells how many faults were not told. Call it at the end.
    void TellRest() {
        for (const auto& [file, count] : m_counts) {
            if (count > kMostTold) {
                const std::size_t rest = count - kMostTold;
                m_out << file << ": " << rest << " more " << (rest == 1 ? "fault is" : "faults are") << " not shown\n";
            }
        }
    }

    std::size_t Count() const { return m_count; }

    /// Called before a line is written, by who has something on the terminal that it would run into.
    void BeforeTelling(std::function<void()> call) { m_beforeTelling = std::move(call); }

private:
    std::ostream& m_out;
    std::size_t m_count = 0;
    std::map<std::string, std::size_t> m_counts;  ///< by file
    std::function<void()> m_beforeTelling = [] {};
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_COMPLAINTS_H_
