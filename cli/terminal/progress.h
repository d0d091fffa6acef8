// A bar on the terminal that shows how far a long file is read.
#ifndef KRM_CLI_TERMINAL_PROGRESS_H_
#define KRM_CLI_TERMINAL_PROGRESS_H_

#include <chrono>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

namespace terminal {

/// Appears when the work takes longer than a moment. Everybody else who writes to the terminal calls Hide before.
class Progress {
public:
    /// `counted` is what the file consists of: "exchanges".
    Progress(std::ostream& out, const char* counted) : m_out(out), m_counted(counted) {}
    ~Progress() { Hide(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// What the program begins to do, which `doing` names, and the time left is counted for.
    void Begin(const char* doing);
    /// Draws the bar. `total` is missing where nobody knows it.
    void Show(std::uint64_t bytes, std::optional<std::uint64_t> total, std::uint64_t count);
    void Hide();

private:
    std::ostream& m_out;
    const char* m_counted;
    const char* m_doing = "";
    std::chrono::steady_clock::time_point m_begin;
    std::size_t m_shown = 0;  ///< characters on the line
};

/// The bar's line: "decoding [####      ]  40 %  80.0 of 200.0 MB  1234567 exchanges  12 s left".
std::string ProgressLine(const char* doing, std::uint64_t bytes, std::optional<std::uint64_t> total,
                         std::uint64_t count, const char* counted, double seconds);

}  // namespace terminal

#endif  // KRM_CLI_TERMINAL_PROGRESS_H_
