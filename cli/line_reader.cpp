#include "cli/line_reader.h"

#include <cstring>

namespace krm_cli {

LineReader::LineReader(ByteSource& source, std::size_t maxLine)
    : m_source(source), m_maxLine(maxLine), m_buffer(NewBuffer()) {}

std::unique_ptr<char[]> LineReader::NewBuffer() const {
    return std::make_unique_for_overwrite<char[]>(m_maxLine + kBlock);
}

/// Goes to the next block, and puts what is left in front of it; false at the end of the file. REQUIRES: no more is left than
/// a line may have.
bool LineReader::Fill() {
    const char* const left = m_buffer.get() + m_begin;
    const std::size_t leftSize = m_end - m_begin;
    const bool isReadAhead = m_nextRead.valid();
    std::size_t count = isReadAhead ? m_source.FinishRead(m_nextRead) : 0;
    char* const block = (isReadAhead ? m_nextBuffer : m_buffer).get() + m_maxLine;
    std::memmove(block - leftSize, left, leftSize);
    if (isReadAhead) {
        m_buffer.swap(m_nextBuffer);
    } else {
        count = m_source.Read(block, kBlock);
    }
    m_begin = m_maxLine - leftSize;
    m_end = m_maxLine + count;
    if (count != 0 && m_source.IsLarge()) {
        if (m_nextBuffer == nullptr) {
            m_nextBuffer = NewBuffer();
        }
        m_nextRead = m_source.BeginRead(m_nextBuffer.get() + m_maxLine, kBlock);
    }
    if (m_isFirst) {
        constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
        m_isFirst = false;
        // It may come in pieces.
        for (std::size_t more = count; more != 0 && count < kByteOrderMark.size(); count += more) {
            more = m_source.Read(block + count, kBlock - count);
        }
        m_end = m_maxLine + count;
        m_begin += std::string_view(block, count).starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    }
    return count != 0;
}

/// Takes the line's first bytes, and passes over the others up to its end. REQUIRES: more are left than a line may have, and
/// none is a line feed.
void LineReader::Cut() {
    m_cut.assign(m_buffer.get() + m_begin, m_maxLine);
    m_line.text = m_cut;
    m_line.cutBytes = m_end - m_begin - m_maxLine;
    m_line.ended = false;
    char last = m_buffer[m_end - 1];
    for (m_begin = m_end; !m_line.ended && Fill();) {
        const char* const begin = m_buffer.get() + m_begin;
        const void* const feed = std::memchr(begin, '\n', m_end - m_begin);
        m_line.ended = feed != nullptr;
        const std::size_t length =
            m_line.ended ? static_cast<std::size_t>(static_cast<const char*>(feed) - begin) : m_end - m_begin;
        last = length == 0 ? last : begin[length - 1];
        m_line.cutBytes += length;
        m_begin += length + (m_line.ended ? 1 : 0);
    }
    // A carriage return before the line's end is none of its bytes, in whichever block it lies.
    m_line.cutBytes -= last == '\r' ? 1 : 0;
}

bool LineReader::Next() {
    m_line.cutBytes = 0;
    m_line.ended = true;
    for (std::size_t searched = 0;;) {
        const char* const begin = m_buffer.get() + m_begin;
        const std::size_t size = m_end - m_begin;
        const void* const feed = std::memchr(begin + searched, '\n', size - searched);
        std::size_t length = size;
        if (feed != nullptr) {
            length = static_cast<std::size_t>(static_cast<const char*>(feed) - begin);
            m_begin += length + 1;
        } else if (size > m_maxLine) {
            ++m_line.number;
            Cut();
            return true;
        } else if (Fill()) {
            searched = size;
            continue;
        } else if (m_begin == m_end) {
            return false;
        } else {
            m_begin = m_end;
            m_line.ended = false;
        }
        // Fill may have moved what is left.
        const char* const first = feed != nullptr ? begin : m_buffer.get() + m_end - length;
        if (length != 0 && first[length - 1] == '\r') {
            --length;
        }
        if (length > m_maxLine) {
            m_line.cutBytes = length - m_maxLine;
            length = m_maxLine;
        }
        m_line.text = std::string_view(first, length);
        ++m_line.number;
        return true;
    }
}

}  // namespace krm_cli
