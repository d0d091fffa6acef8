#include "operation_log_file.h"

#include <chrono>
#include <cstdio>

namespace diagnosis_session {

std::string TimeText(Microseconds time) {
    if (time == kNoTime) {
        return "-";
    }
    constexpr std::int64_t kMillion = 1'000'000;
    char text[64];
    if (!HasDate(time)) {
        std::snprintf(text, sizeof text, "%lld.%06lld", static_cast<long long>(time / kMillion),
                      static_cast<long long>(time % kMillion));
        return text;
    }
    const auto sinceEpoch = std::chrono::sys_time<std::chrono::microseconds>(std::chrono::microseconds(time));
    const auto midnight = std::chrono::floor<std::chrono::days>(sinceEpoch);
    const std::chrono::year_month_day date(midnight);
    const std::chrono::hh_mm_ss clock(sinceEpoch - midnight);
    std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d:%02d:%02d.%06d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()), static_cast<int>(clock.subseconds().count()));
    return text;
}

OperationLogFile::OperationLogFile(const std::string& path) : m_file(path, kFirstLine, "an operation log") {
    m_file.Write(kFirstLine);
    KRMC_ER_SetOperationLogSink(&Write, this);
}

OperationLogFile::~OperationLogFile() {
    KRMC_ER_SetOperationLogSink(nullptr, nullptr);
}

void OperationLogFile::BeginMessage(Microseconds time, std::string_view name) {
    m_file.Write("# " + TimeText(time) + ' ');
    m_file.Write(name);
    m_file.Write("\n");
}

void OperationLogFile::Close() {
    m_file.Close();
}

krm_long OperationLogFile::Write(void* context, const char* text, krm_ulong textLength, int, int) {
    auto& self = *static_cast<OperationLogFile*>(context);
    self.m_file.Write({text, textLength});
    self.m_file.Write("\n");
    ++self.m_lines;
    return 0;
}

}  // namespace diagnosis_session
