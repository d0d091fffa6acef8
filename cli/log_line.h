// One line of the operation log: what the sink wrote in front, the class that dumped it, path and value.
//
//     2024-02-29T23:59:59.999Z 1 [CKRMCGetDTCCmdAdaptDataRcv::ErrWriteOperationLog] Data[0].m_strDTC=P0301
#ifndef KRM_CLI_LOG_LINE_H_
#define KRM_CLI_LOG_LINE_H_

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace krm_cli {

/// A line taken apart. Valid as long as the text that it was, and until the next one is.
struct LogLine {
    std::string_view prefix;     ///< what the sink wrote in front, a time or a thread, with the blanks behind it
    std::string_view className;  ///< "CKRMCGetDTCCmdAdaptDataRcv"
    std::string_view path;       ///< "Data[0].m_strDTC"
    std::string_view value;      ///< "P0301"
};

/// Where the path and the value of a field end.
struct FieldEnds {
    const char* equals = nullptr;  ///< behind the path
    const char* feed = nullptr;    ///< behind the value
};
/// Looks from `begin`, which lies in a path or before it. Both are null where a blank or a line feed comes before the equals
/// sign, or one of both is missing before `end`.
FieldEnds FindFieldEnds(const char* begin, const char* end);

/// Whether a class begins in what looks like a prefix: then the line's own may be that one, and the other one in its value.
bool HasClassWithin(std::string_view prefix);

/// Takes lines apart, one after the other. Most have the same class as the one before, at the same place: that makes them
/// fast.
class LogLineParser {
public:
    /// False where the text is no line of the log; `line` is of no use then.
    ///
    /// A list of numbers within a record has the record's prefix in brackets, `[[CLASS::OPERATION] Data[0]] m_uchSSRNo[1]`, as
    /// has the list of a raw value, with a point behind. Their paths are told as all others: `Data[0].m_uchSSRNo[1]`.
    bool Parse(std::string_view text, LogLine& line);
    /// Whether the line that was parsed last has the class of the one before it.
    bool IsSameClass() const { return m_isSameClass; }
    /// The number of that class: from 0, in the order in which they came first.
    std::size_t ClassNumber() const { return m_class.number; }
    /// Of the line that was parsed last: "[CLASS::OPERATION] ", and how much stands in front of it. Empty where it had another
    /// form.
    const std::string& Head() const { return m_head; }
    std::size_t PrefixLength() const { return m_prefixLength; }

private:
    struct Class {
        std::string_view name;
        std::size_t number = 0;
    };
    struct HashOfName {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>()(name); }
    };
    struct Known {
        std::string head;
        Class itsClass;
        std::size_t following;  ///< which one came behind it the last time: mostly it comes again
    };

    bool ParseAnew(std::string_view text, LogLine& line);
    void Remember();

    std::size_t m_prefixLength = 0;
    std::string m_head;  ///< "[CLASS::OPERATION] " of the line before; empty where it had another form
    Class m_class;
    std::string m_path;  ///< a path that doesn't stand in the line as it is
    bool m_isSameClass = false;

    std::unordered_map<std::string, std::size_t, HashOfName, std::equal_to<>> m_classes;  ///< numbers of names

    /// Heads of lines before: a message has those of its bases and its own, and the next one has most of them again.
    static constexpr std::size_t kMostKnown = 64;
    std::vector<Known> m_known;
    std::size_t m_at = 0;  ///< which one came last
    std::size_t m_oldest = 0;
};

}  // namespace krm_cli

#endif  // KRM_CLI_LOG_LINE_H_
