// Sinks of the operation log, for programs that want it somewhere else than on standard error:
//
//     std::ofstream file("operation.log");
//     krm::PlainLog plain(file);              // the documented lines as they are
//     krm::HeadedLog headed(std::clog);       // for people: time, thread, a heading per message
//     krm::TeeLog both(plain, headed);        // two sinks at once; a TeeLog is a sink too
//     krm::ScopedLogSink scope(both);         // from here on, until `scope` dies
//
// A sink is any object with
//
//     krm_long Write(std::string_view line, int first, int second);
//
// `line` is one line of the log without its end, valid during the call only. It may hold line breaks and NULs, which come from
// a text among the values. The result goes back to whoever wrote the line: 0 is success; the dumps ignore it. `first` and
// `second` are two numbers of the log's writer, for the log library to interpret; every line of this library carries 4 and
// 2, so they tell nothing apart. The operation log serves the whole process: Write is called by every thread that dumps,
// possibly at the same time, and does its own locking. It must not write to the operation log itself.
//
// Flushing is up to who owns the stream: PlainLog and HeadedLog hand lines to it and never flush. What the stream still holds
// when the program crashes is lost. Where the log has to tell of a crash, either let the stream flush by itself
// (`file << std::unitbuf`, which calls the system for every line), or flush it at points of your own, between messages and
// while no other thread dumps: the sinks' locks are not yours. An std::ofstream flushes when it is closed or destroyed; who
// wants to know whether all was written calls close() and looks at the stream.
//
// ScopedLogSink alone needs KRMC_ER_SetOperationLogSink, which this library's stand-in for the platform has. With another
// platform use the sinks by WriteToSink, or call their Write from that platform's own log.
#ifndef KRM_FRAMEWORK_LOG_SINKS_H_
#define KRM_FRAMEWORK_LOG_SINKS_H_

#include <charconv>
#include <chrono>
#include <concepts>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <map>
#include <mutex>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

#include "krm/core/types.h"
#include "krm/framework/commands.h"
#include "krm/platform/platform.h"

namespace krm {

/// Whether `Sink` can be a sink: whether it has the Write that the head of this file describes.
template <class Sink>
concept LogSink = requires(Sink& sink, std::string_view line, int number) {
    { sink.Write(line, number, number) } -> std::convertible_to<krm_long>;
};

/// What KRMC_ER_SetOperationLogSink takes as its first argument when the second is the address of a `Sink`.
template <LogSink Sink>
krm_long WriteToSink(void* sink, const char* text, krm_ulong textLength, int first, int second) {
    return static_cast<Sink*>(sink)->Write(std::string_view(text, textLength), first, second);
}

/// Makes a sink the operation log's while it lives, and gives the log back to its default then. The sink must live longer.
/// One at a time: an inner one would end the outer one's time.
template <LogSink Sink>
class ScopedLogSink {
public:
    /// The log is `sink`'s from now on.
    explicit ScopedLogSink(Sink& sink) { KRMC_ER_SetOperationLogSink(&WriteToSink<Sink>, &sink); }
    // The null has a type so that a platform without this function is asked for it only by who uses the class.
    ~ScopedLogSink() { KRMC_ER_SetOperationLogSink(nullptr, static_cast<Sink*>(nullptr)); }
    ScopedLogSink(const ScopedLogSink&) = delete;
    ScopedLogSink& operator=(const ScopedLogSink&) = delete;
};

/// Writes every line as it is, and a line feed. The stream must live longer; nobody else may write to it meanwhile.
///
/// Holds nothing back and flushes nothing: each line is in the stream when Write returns, and out of the stream's own buffer
/// when its owner flushes or closes it, or at once where it has std::unitbuf set.
class PlainLog {
public:
    /// Writes to `stream`.
    explicit PlainLog(std::ostream& stream) : m_stream(stream) {}

    /// 0, or 1 where the stream is bad.
    krm_long Write(std::string_view line, int, int) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stream << line << '\n';
        return m_stream.good() ? 0 : 1;
    }

private:
    std::mutex m_mutex;
    std::ostream& m_stream;
};

/// `text` with each line feed as `\n`, each carriage return as `\r`, and each backslash as `\\`, so that it is one line and
/// can be told what it was.
inline std::string EscapeLineBreaks(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char character : text) {
        switch (character) {
            case '\n':
                escaped += "\\n";
                break;
            case '\r':
                escaped += "\\r";
                break;
            case '\\':
                escaped += "\\\\";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

/// `time` in UTC, to the millisecond: "2024-02-29T23:59:59.999Z". A time of a coarser unit than the system clock's may lie in
/// any year of four digits.
template <class Unit>
std::string TimeStamp(std::chrono::sys_time<Unit> time) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(time);
    const auto day = std::chrono::floor<std::chrono::days>(milliseconds);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(milliseconds - day);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()), static_cast<int>(clock.subseconds().count()));
    return text;
}

/// Writes for people: before every line the time in UTC and the number of its thread, counted from 1 in the order in which
/// threads first write; before the lines of every message a heading; line breaks within a line escaped.
///
///     2024-02-29T23:59:59.999Z 1 == GetDTC request (type 1, ID 2)
///     2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandType=1
///     2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptData::ErrWriteOperationLog] m_dwCommandID=2
///     2024-02-29T23:59:59.999Z 1 [CKRMCBaseCmdAdaptDataSnd::ErrWriteOperationLog] m_ulEcuId=2016
///
/// A message begins with its type and ID, and the third line of every diagnostic command tells the direction; headings of the
/// other families are without. So the first lines are held until the next one of their thread comes, or the sink dies.
/// Lines of several threads mix; the thread's number tells them apart. The stream must live longer; nobody else may write to
/// it meanwhile.
///
/// Flushes nothing, as PlainLog. While a message's first lines are held the stream hasn't even got them; of a whole message
/// none is, so that flushing between messages does.
class HeadedLog {
public:
    /// Says what time it is; called for every line.
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    /// Takes the time from `now`, such as that of the session that the messages belong to.
    explicit HeadedLog(std::ostream& stream, Clock now = &std::chrono::system_clock::now)
        : m_stream(stream), m_now(std::move(now)) {}
    ~HeadedLog() {
        for (auto& [id, thread] : m_threads) {
            WriteHeld(thread, "");
        }
    }
    HeadedLog(const HeadedLog&) = delete;
    HeadedLog& operator=(const HeadedLog&) = delete;

    /// 0, or 1 where the stream is bad.
    krm_long Write(std::string_view line, int, int) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        Thread& thread = m_threads.try_emplace(std::this_thread::get_id(), m_threads.size() + 1).first->second;
        const std::string start = TimeStamp(m_now()) + ' ' + std::to_string(thread.number) + ' ';
        const std::string text = start + EscapeLineBreaks(line) + '\n';
        if (thread.state == State::AwaitsId && ReadNumber(line, "m_dwCommandID=", thread.id)) {
            thread.state = State::AwaitsDirection;
            thread.headingStart = start;
            thread.held += text;
            if (thread.type != static_cast<krm_ulong>(CommandFamily::Diagnostic)) {
                WriteHeld(thread, "");
            }
        } else {
            WriteHeld(thread, DirectionIn(line));
            if (ReadNumber(line, "m_dwCommandType=", thread.type)) {
                thread.state = State::AwaitsId;
                thread.held = text;
            } else {
                m_stream << text;
            }
        }
        return m_stream.good() ? 0 : 1;
    }

private:
    enum class State { Within, AwaitsId, AwaitsDirection };
    struct Thread {
        explicit Thread(std::size_t itsNumber) : number(itsNumber) {}

        std::size_t number;
        State state = State::Within;
        std::string held;  ///< a message's first lines
        krm_ulong type = 0;
        krm_ulong id = 0;
        std::string headingStart;
    };

    void WriteHeld(Thread& thread, std::string_view direction) {
        if (thread.state == State::AwaitsDirection) {
            const Command* const command = FindCommand(thread.type, thread.id);
            m_stream << thread.headingStart << "== " << (command != nullptr ? command->name : "unknown command")
                     << direction << " (type " << std::to_string(thread.type) << ", ID " << std::to_string(thread.id)
                     << ")\n";
        }
        m_stream << thread.held;
        thread.held.clear();
        thread.state = State::Within;
    }

    static std::string_view DirectionIn(std::string_view line) {
        return line.starts_with("[CKRMCBaseCmdAdaptDataSnd::")   ? " request"
               : line.starts_with("[CKRMCBaseCmdAdaptDataRcv::") ? " answer"
                                                                 : "";
    }

    /// Whether `line` is a family base's for `name`; then its value, which the log has as a signed number.
    static bool ReadNumber(std::string_view line, std::string_view name, krm_ulong& value) {
        constexpr std::string_view kBehindTheClass = "AdaptData::ErrWriteOperationLog] ";
        const std::size_t end = line.find(kBehindTheClass);
        if (!line.starts_with("[CKRMCBase") || end == std::string_view::npos) {
            return false;
        }
        std::string_view rest = line.substr(end + kBehindTheClass.size());
        if (!rest.starts_with(name)) {
            return false;
        }
        rest.remove_prefix(name.size());
        krm_long number = 0;
        const auto result = std::from_chars(rest.data(), rest.data() + rest.size(), number);
        value = static_cast<krm_ulong>(number);
        return result.ec == std::errc() && result.ptr == rest.data() + rest.size();
    }

    std::mutex m_mutex;
    std::ostream& m_stream;
    Clock m_now;
    std::map<std::thread::id, Thread> m_threads;
};

/// Writes every line to two sinks, the second one also where the first one fails. Both must live longer.
template <LogSink First, LogSink Second>
class TeeLog {
public:
    /// Writes to `one`, then to `other`.
    TeeLog(First& one, Second& other) : m_one(one), m_other(other) {}

    /// The first result that is not 0.
    krm_long Write(std::string_view line, int first, int second) {
        const krm_long one = m_one.Write(line, first, second);
        const krm_long other = m_other.Write(line, first, second);
        return one != 0 ? one : other;
    }

private:
    First& m_one;
    Second& m_other;
};

}  // namespace krm

#endif  // KRM_FRAMEWORK_LOG_SINKS_H_
