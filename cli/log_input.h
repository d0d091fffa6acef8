// The operation log as an exchange of messages.
#ifndef KRM_CLI_LOG_INPUT_H_
#define KRM_CLI_LOG_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/input.h"
#include "cli/line_reader.h"
#include "cli/log_line.h"

namespace krm_cli {

/// What the sink wrote in front of a line, taken apart at blanks: what has a digit and a sign of a date or a time in it is
/// the time, the rest says who wrote it.
struct PrefixParts {
    std::string time;
    std::string source;
};
PrefixParts TakePrefixApart(std::string_view prefix);
/// Whether the text of a line, behind its prefix, is what krm::HeadedLog writes before each message.
bool IsHeading(std::string_view line);

/// A message begins with its command type, which every dump writes first. Lines of several threads are told apart by what
/// stands in front of them; while one message is read, the others' lines wait.
class LogInput : public Input {
public:
    explicit LogInput(ByteSource& source, std::size_t mostWaiting = kMaxWaiting)
        : m_mostWaiting(mostWaiting), m_lines(source) {}

    Event Next() override;
    void PassOver(std::string_view begin, std::string_view unless) override;
    bool IsRecording() const override { return false; }

    /// After so many lines of others, a message that gets no more of its own has ended.
    static constexpr std::uint64_t kStaleLines = 2000;
    /// The most that waits, in bytes.
    static constexpr std::size_t kMaxWaiting = std::size_t{64} * 1024 * 1024;

private:
    enum class Role { FamilyBase, DirectionBase, Message };
    /// What a class's name says.
    struct ClassInfo {
        Role role = Role::Message;
        std::string name;
        std::string command;
        std::string_view family;
        std::optional<krm::Direction> direction;
        const krm::MessageDescription* description = nullptr;
    };
    struct Waiting {
        std::string prefix;
        const ClassInfo* itsClass;
        std::string path;
        std::string value;
        std::uint64_t line;
        std::uint64_t cutBytes;
        bool begins;   ///< a message begins with it
        bool isFirst;  ///< as it should, with its command type

        std::size_t Size() const { return sizeof(Waiting) + prefix.size() + path.size() + value.size(); }
    };
    using Source = std::size_t;

    const ClassInfo& InfoOf(std::string_view className, std::size_t number);
    Source SourceOf(std::string_view prefix, bool isFirst);
    Event BeginMessage(std::string_view prefix, Source source, bool isFirst);
    Event BeginWaiting();
    Event TakeField(const ClassInfo& info);
    void TakeHead(const ClassInfo& info);
    void Hold(Source source, const ClassInfo& info, const LogLine& line, bool begins, bool isFirst);
    bool Fits(const ClassInfo& info) const;
    void Unhold(std::deque<Waiting>& lines);
    Event EndMessage();

    std::size_t m_mostWaiting;
    LineReader m_lines;
    LogLineParser m_parser;
    std::deque<ClassInfo> m_classes;     ///< by the parser's numbers
    const ClassInfo* m_class = nullptr;  ///< of the line before

    // Where lines come from.
    std::map<std::string, Source, std::less<>> m_sources;
    Source m_nextSource = 0;
    std::string m_prefix;                                            ///< of the line before
    std::vector<std::pair<std::size_t, std::size_t>> m_prefixSpans;  ///< begin and length of what is no time in it
    Source m_prefixSource = 0;
    Source m_lastBegun = 0;

    // The message that is read.
    bool m_isOpen = false;
    Source m_openSource = 0;
    std::uint64_t m_openLine = 0;               ///< its last line
    const ClassInfo* m_fitting = nullptr;       ///< the last class that was found to be one of its
    const ClassInfo* m_firstFieldOf = nullptr;  ///< of a message that has just begun: its first line comes next
    /// The line that ended the message before, where none waits before it: it begins the next one.
    struct Beginning {
        std::string_view prefix;
        FieldText field;
        Source source;
        bool isFirst;
    };
    std::optional<Beginning> m_beginning;
    std::string m_begunPrefix;  ///< of the message that began last
    PrefixParts m_begunParts;

    std::map<Source, std::deque<Waiting>> m_waiting;  ///< none is empty
    std::size_t m_waitingBytes = 0;
    std::string m_passed;  ///< how lines begin that are passed over
    Waiting m_item;        ///< what waited, while it is delivered
    EcusOfRequests m_ecus;
};

}  // namespace krm_cli

#endif  // KRM_CLI_LOG_INPUT_H_
