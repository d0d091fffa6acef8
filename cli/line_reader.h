// A text file line by line, in blocks, however long it and its lines are.
#ifndef KRM_CLI_LINE_READER_H_
#define KRM_CLI_LINE_READER_H_

#include <cstddef>
#include <cstdint>
#include <future>
#include <memory>
#include <string>
#include <string_view>

#include "cli/byte_source.h"

namespace krm_cli {

/// One line, without its end; a carriage return before it belongs to the end. Valid until the next one is read.
struct Line {
    std::string_view text;
    std::uint64_t number = 0;    ///< from 1
    std::uint64_t cutBytes = 0;  ///< how many bytes of it are not in `text`, as it is longer than a line may be
    bool ended = true;           ///< false for what the file ends with, without a line feed behind it
};

class LineReader {
public:
    /// A longer line is cut: it is no line of a log that anybody reads, and one without end must not fill the memory.
    static constexpr std::size_t kMaxLine = std::size_t{1024} * 1024;

    explicit LineReader(ByteSource& source, std::size_t maxLine = kMaxLine);

    /// Goes to the next line; false at the end.
    bool Next();
    const Line& Current() const { return m_line; }

    /// Passes over the lines that follow as long as `endOf(const char* begin, const char* end)` says where the line that
    /// begins there ends: at which line feed before `end`, or null to stop. Returns how many; it may stop earlier, where a
    /// block ends. A carriage return before a line's end belongs to the text here. Current() is still the line that Next went
    /// to, without its text.
    template <class EndOf>
    std::uint64_t SkipWhile(EndOf endOf) {
        const char* begin = m_buffer.get() + m_begin;
        const char* const end = m_buffer.get() + m_end;
        std::uint64_t count = 0;
        for (;;) {
            const char* const feed = endOf(begin, end);
            if (feed == nullptr || static_cast<std::size_t>(feed - begin) > m_maxLine) {
                break;
            }
            begin = feed + 1;
#ifdef __GNUC__
            // Another thread has read the block: its bytes lie in that one's cache, some lines ahead of the hardware's look.
            __builtin_prefetch(begin + 1024);
            __builtin_prefetch(begin + 1088);
#endif
            ++count;
        }
        m_begin = static_cast<std::size_t>(begin - m_buffer.get());
        m_line.number += count;
        return count;
    }

private:
    /// Large, as each one waits for another thread, which may not run at once where there is other work.
    static constexpr std::size_t kBlock = std::size_t{2} * 1024 * 1024;

    std::unique_ptr<char[]> NewBuffer() const;
    bool Fill();
    void Cut();

    ByteSource& m_source;
    std::size_t m_maxLine;
    std::unique_ptr<char[]> m_buffer;  ///< a block, and room in front of it for what was left of the one before
    std::size_t m_begin = 0;           ///< of what is left of the buffer
    std::size_t m_end = 0;
    bool m_isFirst = true;
    std::string m_cut;  ///< the begin of a line that is too long
    Line m_line;

    // The next block of a large source is read while this one is worked on. The future waits before its buffer goes.
    std::unique_ptr<char[]> m_nextBuffer;
    std::future<std::size_t> m_nextRead;
};

}  // namespace krm_cli

#endif  // KRM_CLI_LINE_READER_H_
