#include "cli/terminal/progress.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace terminal {
namespace {

/// In every locale with a point.
std::string Megabytes(double bytes) {
    char text[32];
    return std::string(text, std::to_chars(text, text + sizeof text, bytes / 1e6, std::chars_format::fixed, 1).ptr);
}

}  // namespace

std::string ProgressLine(const char* doing, std::uint64_t bytes, std::optional<std::uint64_t> total,
                         std::uint64_t count, const char* counted, double seconds) {
    char text[128];
    const double done = static_cast<double>(bytes);
    if (!total || *total == 0) {
        std::snprintf(text, sizeof text, "%s %s MB  %llu %s", doing, Megabytes(done).c_str(),
                      static_cast<unsigned long long>(count), counted);
        return text;
    }
    const double all = static_cast<double>(*total);
    const double part = std::min(1.0, done / all);
    const std::string bar(static_cast<std::size_t>(part * 10), '#');
    std::snprintf(text, sizeof text, "%s [%-10s] %3d %%  %s of %s MB", doing, bar.c_str(), static_cast<int>(part * 100),
                  Megabytes(done).c_str(), Megabytes(all).c_str());
    std::string line = text;
    if (count != 0) {
        std::snprintf(text, sizeof text, "  %llu %s", static_cast<unsigned long long>(count), counted);
        line += text;
    }
    if (part > 0) {
        const double left = seconds / part - seconds;
        std::snprintf(text, sizeof text, left < 100 ? "  %.0f s left" : "  %.0f min left",
                      left < 100 ? left : left / 60);
        line += text;
    }
    return line;
}

void Progress::Begin(const char* doing) {
    m_doing = doing;
    m_begin = std::chrono::steady_clock::now();
}

void Progress::Show(std::uint64_t bytes, std::optional<std::uint64_t> total, std::uint64_t count) {
    const std::chrono::duration<double> since = std::chrono::steady_clock::now() - m_begin;
    const std::string line = ProgressLine(m_doing, bytes, total, count, m_counted, since.count());
    Hide();
    m_out << line << std::flush;
    m_shown = line.size();
}

void Progress::Hide() {
    if (m_shown != 0) {
        m_out << '\r' << std::string(m_shown, ' ') << '\r' << std::flush;
        m_shown = 0;
    }
}

}  // namespace terminal
