// The progress bar while a file is read.
#ifndef KRM_CLI_READING_PROGRESS_H_
#define KRM_CLI_READING_PROGRESS_H_

#include <chrono>

#include "cli/byte_source.h"
#include "cli/input.h"
#include "cli/surroundings.h"
#include "cli/terminal/progress.h"

namespace krm_cli {

/// Shows how much of the source is read while it lives, if there is a terminal and it takes longer than a moment. Who writes
/// to the terminal meanwhile calls Hide before.
class ReadingProgress {
public:
    ReadingProgress(ByteSource& source, const Input& input, const Surroundings& surroundings, const char* doing)
        : m_source(source), m_bar(surroundings.err, "messages") {
        if (!surroundings.hasTerminal) {
            return;
        }
        m_bar.Begin(doing);
        m_last = std::chrono::steady_clock::now();
        source.OnRead([this, &input] {
            constexpr std::chrono::milliseconds kMoment(200);
            const auto now = std::chrono::steady_clock::now();
            if (now - m_last > kMoment) {
                m_last = now;
                m_bar.Show(m_source.BytesRead(), m_source.Size(), input.Totals().messages);
            }
        });
    }
    ~ReadingProgress() {
        m_source.OnRead([] {});
    }
    void Hide() { m_bar.Hide(); }
    ReadingProgress(const ReadingProgress&) = delete;
    ReadingProgress& operator=(const ReadingProgress&) = delete;

private:
    ByteSource& m_source;
    terminal::Progress m_bar;
    std::chrono::steady_clock::time_point m_last;
};

}  // namespace krm_cli

#endif  // KRM_CLI_READING_PROGRESS_H_
