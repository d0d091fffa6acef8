// A bar on the terminal that shows how far a long recording is decoded.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_PROGRESS_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_PROGRESS_H_

#include <chrono>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

namespace diagnosis_session {

/// Appears when the work takes longer than a moment. Everybody else who writes to the terminal calls Hide before.
class Progress {
public:
    explicit Progress(std::ostream& out) : m_out(out) {}
    ~Progress() { Hide(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// What the program begins to do, which `doing` names, and the time left is counted for.
    void Begin(const char* doing);
    /// Draws the bar. `total` is missing where nobody knows it.
    void Show(std::uint64_t bytes, std::optional<std::uint64_t> total, std::uint64_t exchanges);
    void Hide();

private:
    std::ostream& m_out;
    const char* m_doing = "";
    std::chrono::steady_clock::time_point m_begin;
    std::size_t m_shown = 0;  ///< characters on the line
};

/// The bar's line: "decoding [####      ]  40 %  80.0 of 200.0 MB  1234567 exchanges  12 s left".
std::string ProgressLine(const char* doing, std::uint64_t bytes, std::optional<std::uint64_t> total,
                         std::uint64_t exchanges, double seconds);

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_PROGRESS_H_
