// Log lines as one text, so that a test holds the expected log as it would be read, and a failed comparison shows the
// lines that differ.
#ifndef KRM_TESTS_SUPPORT_LOG_TEXT_H_
#define KRM_TESTS_SUPPORT_LOG_TEXT_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "krm/framework/record.h"
#include "tests/support/log_capture.h"

namespace krm::test {

inline std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    return text;
}

/// What `message` writes, each line with its end.
template <class Message>
std::string MessageText(Message& message) {
    return Joined(MessageLines(message));
}

/// What `record` writes under the prefix "P", each line with its end.
template <class Record>
std::string RecordText(Record& record) {
    return Joined(RecordLinesOf(record));
}

/// The expected lines, put together of `parts`. The newline that begins a part is dropped: so the text of a raw literal
/// can start on a line of its own.
inline std::string Log(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (std::string_view part : parts) {
        if (part.starts_with('\n')) {
            part.remove_prefix(1);
        }
        text += part;
    }
    return text;
}

/// `lines` with `prefix` before each.
inline std::string Under(std::string_view prefix, std::string_view lines) {
    std::string text;
    for (std::size_t begin = lines.starts_with('\n') ? 1 : 0; begin < lines.size();) {
        const std::size_t end = lines.find('\n', begin) + 1;
        text += prefix;
        text += lines.substr(begin, end - begin);
        begin = end;
    }
    return text;
}

/// Checks that the message or record `it` writes `expected`, a record under the prefix "P", and returns 0 even though the
/// writer of the log fails.
template <class T>
void ExpectLog(T& it, std::initializer_list<std::string_view> expected) {
    LogCapture log(-1);
    if constexpr (std::is_base_of_v<CKRMCBaseAdaptDataStructure, T>) {
        EXPECT_EQ(it.ErrWriteOperationLogStructure("%s", "P"), 0);
    } else {
        EXPECT_EQ(it.ErrWriteOperationLog(), 0);
    }
    EXPECT_EQ(Joined(log.Texts()), Log(expected));
}

}  // namespace krm::test

#endif  // KRM_TESTS_SUPPORT_LOG_TEXT_H_
