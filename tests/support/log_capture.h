// Catches the operation log while it lives, for tests that compare the lines.
#ifndef KRM_TESTS_SUPPORT_LOG_CAPTURE_H_
#define KRM_TESTS_SUPPORT_LOG_CAPTURE_H_

#include <string>
#include <vector>

#include "krm/platform/platform.h"
#include "tests/support/log_sink.h"

namespace krm::test {

/// Collects every line written to the operation log until it is destroyed, which restores the default sink.
class LogCapture {
public:
    struct Line {
        std::string text;
        krm_ulong length;  ///< as the writer was told it
        int first;
        int second;
    };

    /// Each line is answered with `result`.
    explicit LogCapture(krm_long result = 0) : m_result(result) { SetLogSink(&Write, this); }
    ~LogCapture() { SetLogSink(nullptr, nullptr); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    const std::vector<Line>& Lines() const { return m_lines; }
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const Line& line : m_lines) {
            texts.push_back(line.text);
        }
        return texts;
    }
    void Forget() { m_lines.clear(); }

private:
    static krm_long Write(void* context, const char* text, krm_ulong textLength, int first, int second) {
        auto& self = *static_cast<LogCapture*>(context);
        self.m_lines.push_back({std::string(text, textLength), textLength, first, second});
        return self.m_result;
    }

    std::vector<Line> m_lines;
    krm_long m_result;
};

/// The lines that `message` writes.
template <class Message>
std::vector<std::string> MessageLines(Message& message) {
    LogCapture log;
    message.ErrWriteOperationLog();
    return log.Texts();
}

/// The lines that `record` writes under the prefix "P".
template <class Record>
std::vector<std::string> RecordLinesOf(Record& record) {
    LogCapture log;
    record.ErrWriteOperationLogStructure("%s", "P");
    return log.Texts();
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_LOG_CAPTURE_H_
