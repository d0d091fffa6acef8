#include "cli/log_line.h"

#include <algorithm>
#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace krm_cli {
namespace {

bool IsNameCharacter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_';
}

/// How long the name at the begin of `text` is.
std::size_t NameLength(std::string_view text) {
    std::size_t length = 0;
    while (length < text.size() && IsNameCharacter(text[length])) {
        ++length;
    }
    return length;
}

constexpr std::string_view kClassBegin = "[CKRMC";

}  // namespace

bool HasClassWithin(std::string_view prefix) {
    return prefix.find(kClassBegin) != std::string_view::npos;
}

FieldEnds FindFieldEnds(const char* begin, const char* end) {
    FieldEnds ends;
    const char* at = begin;
#ifdef __SSE2__
    // 16 bytes at a time: a bit for each one that is looked for.
    constexpr std::ptrdiff_t kStep = sizeof(__m128i);
    for (; end - at >= kStep; at += kStep) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const auto where = [&](char character) {
            return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(character))));
        };
        unsigned feeds = where('\n');
        if (ends.equals == nullptr) {
            const unsigned pathEnds = where('=') | where(' ') | feeds;
            if (pathEnds == 0) {
                continue;
            }
            const int first = std::countr_zero(pathEnds);
            if (at[first] != '=') {
                return {};
            }
            ends.equals = at + first;
            feeds &= ~0U << static_cast<unsigned>(first);
        }
        if (feeds != 0) {
            ends.feed = at + std::countr_zero(feeds);
            return ends;
        }
    }
#endif
    for (; at != end; ++at) {
        if (*at == '\n') {
            ends.feed = at;
            return ends.equals == nullptr ? FieldEnds() : ends;
        }
        if (ends.equals == nullptr && *at == ' ') {
            return {};
        }
        if (ends.equals == nullptr && *at == '=') {
            ends.equals = at;
        }
    }
    return {};
}

bool LogLineParser::Parse(std::string_view text, LogLine& line) {
    const auto hasHead = [&](const std::string& head) {
        return !head.empty() && text.size() > m_prefixLength + head.size() &&
               std::memcmp(text.data() + m_prefixLength, head.data(), head.size()) == 0;
    };
    if (text.size() <= m_prefixLength || text[m_prefixLength] != '[' ||
        (m_prefixLength != 0 && text[m_prefixLength - 1] == '[') || HasClassWithin(text.substr(0, m_prefixLength))) {
        return ParseAnew(text, line);
    }
    std::size_t at = m_at;
    const bool isSameHead = hasHead(m_head);
    if (!isSameHead) {
        at = m_known.empty() ? 0 : m_known[m_at].following;
        if (m_known.empty() || !hasHead(m_known[at].head)) {
            const auto found =
                std::find_if(m_known.begin(), m_known.end(), [&](const Known& one) { return hasHead(one.head); });
            if (found == m_known.end()) {
                return ParseAnew(text, line);
            }
            at = static_cast<std::size_t>(found - m_known.begin());
        }
    }
    const std::size_t behindHead = m_prefixLength + m_known[at].head.size();
    const char* const path = text.data() + behindHead;
    const void* const equals = std::memchr(path, '=', text.size() - behindHead);
    if (equals == nullptr || equals == path) {
        return ParseAnew(text, line);
    }
    const auto length = static_cast<std::size_t>(static_cast<const char*>(equals) - path);
    if (std::memchr(path, ' ', length) != nullptr) {
        return ParseAnew(text, line);
    }
    m_isSameClass = m_known[at].itsClass.number == m_class.number;
    if (!isSameHead) {
        m_head = m_known[at].head;
        m_class = m_known[at].itsClass;
        m_known[m_at].following = at;
        m_at = at;
    }
    line.prefix = text.substr(0, m_prefixLength);
    line.className = m_class.name;
    line.path = std::string_view(path, length);
    line.value = text.substr(behindHead + length + 1);
    return true;
}

/// Keeps the head of the line that was parsed last.
void LogLineParser::Remember() {
    const auto found =
        std::find_if(m_known.begin(), m_known.end(), [&](const Known& one) { return one.head == m_head; });
    auto at = static_cast<std::size_t>(found - m_known.begin());
    if (found == m_known.end()) {
        if (m_known.size() == kMostKnown) {
            at = m_oldest;
            m_oldest = (m_oldest + 1) % kMostKnown;
        } else {
            m_known.emplace_back();
        }
        m_known[at] = {m_head, m_class, at};
    }
    m_known[m_at].following = at;
    m_at = at;
}

bool LogLineParser::ParseAnew(std::string_view text, LogLine& line) {
    for (std::size_t at = text.find(kClassBegin); at != std::string_view::npos; at = text.find(kClassBegin, at + 1)) {
        std::string_view rest = text.substr(at + 1);
        const std::string_view className = rest.substr(0, NameLength(rest));
        rest.remove_prefix(className.size());
        if (!rest.starts_with("::")) {
            continue;
        }
        rest.remove_prefix(2);
        const std::size_t operation = NameLength(rest);
        rest.remove_prefix(operation);
        // "[%s]" alone is the prefix of a record that the message doesn't name: a point follows.
        const bool isNamed = rest.starts_with("] ");
        if (operation == 0 || (!isNamed && !rest.starts_with("]."))) {
            continue;
        }
        rest.remove_prefix(2);
        const auto pathBegin = static_cast<std::size_t>(rest.data() - text.data());
        const std::size_t equals = rest.find('=');
        if (equals == 0 || equals == std::string_view::npos) {
            continue;
        }
        std::string_view path = rest.substr(0, equals);
        std::size_t prefixLength = at;
        // Brackets around all of it, and around a path that goes on behind them.
        int depth = 0;
        std::size_t kept = 0;
        m_path.clear();
        for (std::size_t i = 0; i < path.size(); ++i) {
            depth += path[i] == '[' ? 1 : path[i] == ']' ? -1 : 0;
            if (path[i] == ']' && depth < 0 && prefixLength > 0 && text[prefixLength - 1] == '[' &&
                i + 2 < path.size() && (path[i + 1] == ' ' || path[i + 1] == '.')) {
                depth = 0;
                --prefixLength;
                m_path.append(path.substr(kept, i - kept)).append(".");
                kept = i + 2;
                ++i;
            }
        }
        const bool isPlain = kept == 0;
        if (!isPlain) {
            m_path.append(path.substr(kept));
            path = m_path;
        }
        if (path.find(' ') != std::string_view::npos) {
            continue;
        }
        m_isSameClass = !m_classes.empty() && className == m_class.name;
        if (!m_isSameClass) {
            auto known = m_classes.find(className);
            if (known == m_classes.end()) {
                known = m_classes.emplace(className, m_classes.size()).first;
            }
            m_class = {known->first, known->second};
        }
        m_head.clear();
        if (isPlain && isNamed) {
            m_head = text.substr(at, pathBegin - at);
            Remember();
        }
        m_prefixLength = at;
        line.prefix = text.substr(0, prefixLength);
        line.className = m_class.name;
        line.path = path;
        line.value = rest.substr(equals + 1);
        return true;
    }
    return false;
}

}  // namespace krm_cli
