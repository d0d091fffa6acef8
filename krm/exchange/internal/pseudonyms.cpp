#include "krm/exchange/internal/pseudonyms.h"

#include <algorithm>
#include <bit>
#include <random>
#include <tuple>

#include "krm/exchange/internal/text.h"

namespace krm::redacting {

namespace {

// ASCII alone, whatever the locale is.
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsLower(char c) {
    return c >= 'a' && c <= 'z';
}
bool IsUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
/// A control character that texts don't have.
bool IsControl(char c) {
    return (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\r' && c != '\n') || c == '\x7F';
}
bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}
bool IsWord(char c) {
    return IsDigit(c) || IsLower(c) || IsUpper(c);
}

char Upper(char c) {
    return IsLower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}
std::string Upper(std::string_view text) {
    std::string upper(text);
    std::ranges::transform(upper, upper.begin(), [](char c) { return Upper(c); });
    return upper;
}
/// `c` in lower case where `like` is.
char InCaseOf(char like, char c) {
    return IsLower(like) && IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The first four bytes of a value, by which it is found.
constexpr std::size_t kStart = 4;
std::uint32_t StartOf(std::string_view upper) {
    std::uint32_t start = 0;
    for (const char c : upper.substr(0, kStart)) {
        start = start << 8U | static_cast<unsigned char>(c);
    }
    return start;
}

// Hexadecimal digits in a text.

int DigitAt(std::string_view text, std::size_t at) {
    const char c = at < text.size() ? Upper(text[at]) : '\0';
    return IsDigit(c) ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}
/// What ByteAt gives where there is none.
constexpr int kNoByte = -1;
/// The byte, 0 to 255, that two digits stand for.
int ByteAt(std::string_view text, std::size_t at) {
    const int high = DigitAt(text, at);
    const int low = DigitAt(text, at + 1);
    return high >= 0 && low >= 0 ? high * 16 + low : kNoByte;
}
char CharOf(int byte) {
    return static_cast<char>(static_cast<unsigned char>(byte));
}
/// Where the byte behind the one at `at` begins: next to it, or behind separators and a mark, as in "4B, 0x52" and
/// "4Bh 52h". npos where there is none.
std::size_t NextByte(std::string_view text, std::size_t at) {
    std::size_t next = at + 2;
    if (ByteAt(text, next) != kNoByte) {
        return next;
    }
    const auto isAt = [&](std::size_t place, char upper) { return place < text.size() && Upper(text[place]) == upper; };
    next += isAt(next, 'H') ? 1 : 0;
    constexpr std::size_t kMostSeparators = 4;
    for (std::size_t i = 0; i < kMostSeparators && next < text.size() && !IsWord(text[next]); ++i) {
        ++next;
    }
    next += isAt(next, '0') && isAt(next + 1, 'X') ? 2U : isAt(next, 'X') ? 1U : 0U;
    return ByteAt(text, next) != kNoByte ? next : std::string_view::npos;
}

/// The bytes that the digits from `at` on stand for, as far as they go; sets `at` behind the last.
std::string TakeHex(std::string_view text, std::size_t& at) {
    std::string bytes;
    for (std::size_t place = at; place != std::string_view::npos; place = NextByte(text, place)) {
        bytes += CharOf(ByteAt(text, place));
        at = place + 2;
    }
    return bytes;
}
/// The same as far as there is nothing between the bytes.
std::string TakeCloseHex(std::string_view text, std::size_t at) {
    std::string bytes;
    for (int byte = 0; (byte = ByteAt(text, at)) != kNoByte; at += 2) {
        bytes += CharOf(byte);
    }
    return bytes;
}

constexpr std::size_t kVinLength = 17;

/// Whether a word, of which nothing is cut off, looks like a VIN.
bool LooksLikeVin(std::string_view word) {
    constexpr std::size_t kDigitsAtEnd = 4;
    return word.size() == kVinLength && word.find_first_of("IOQioq") == std::string_view::npos &&
           !std::ranges::all_of(word, IsDigit) && std::ranges::all_of(word.substr(kVinLength - kDigitsAtEnd), IsDigit);
}

/// SipHash-2-4: numbers from which nobody finds out what went in, nor the key.
std::uint64_t SipHash(const std::array<std::uint64_t, 2>& key, std::string_view bytes) {
    std::uint64_t v0 = key[0] ^ 0x736F6D6570736575U;
    std::uint64_t v1 = key[1] ^ 0x646F72616E646F6DU;
    std::uint64_t v2 = key[0] ^ 0x6C7967656E657261U;
    std::uint64_t v3 = key[1] ^ 0x7465646279746573U;
    const auto rounds = [&](int count) {
        for (int i = 0; i < count; ++i) {
            v0 += v1;
            v1 = std::rotl(v1, 13) ^ v0;
            v0 = std::rotl(v0, 32);
            v2 += v3;
            v3 = std::rotl(v3, 16) ^ v2;
            v0 += v3;
            v3 = std::rotl(v3, 21) ^ v0;
            v2 += v1;
            v1 = std::rotl(v1, 17) ^ v2;
            v2 = std::rotl(v2, 32);
        }
    };
    const auto add = [&](std::uint64_t word) {
        v3 ^= word;
        rounds(2);
        v0 ^= word;
    };
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        word |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i])) << (i % 8 * 8);
        if (i % 8 == 7) {
            add(word);
            word = 0;
        }
    }
    add(word | static_cast<std::uint64_t>(bytes.size() & 0xFFU) << 56U);
    v2 ^= 0xFFU;
    rounds(4);
    return v0 ^ v1 ^ v2 ^ v3;
}

std::string BytesOf(std::uint64_t number) {
    std::string bytes;
    for (unsigned shift = 0; shift < 64; shift += 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
    }
    return bytes;
}

std::array<std::uint64_t, 2> KeyOf(std::string_view secret) {
    std::array<std::uint64_t, 2> key{};
    if (!secret.empty()) {
        for (std::size_t i = 0; i < key.size(); ++i) {
            key[i] = SipHash({0, i}, secret);
        }
        return key;
    }
    std::random_device random;
    for (std::uint64_t& half : key) {
        half = static_cast<std::uint64_t>(random()) << 32U;
        half |= random();  // 32 bits each
    }
    return key;
}

/// A character of so many bytes in UTF-8: a Latin letter with something added, or an ideograph.
template <class Draw>
void AppendCharacter(std::size_t length, std::string& out, Draw draw) {
    const auto append = [&](std::uint64_t byte) { out += static_cast<char>(static_cast<unsigned char>(byte)); };
    const std::uint64_t code = length == 2   ? 0xC0 + draw(0x190)       // to U+024F
                               : length == 3 ? 0x4E00 + draw(0x5000)    // to U+9DFF
                                             : 0x20000 + draw(0xA000);  // to U+29FFF
    append(length == 2 ? 0xC0U | code >> 6U : length == 3 ? 0xE0U | code >> 12U : 0xF0U | code >> 18U);
    for (std::size_t more = length - 1; more > 0; --more) {
        append(0x80U | (code >> (6 * (more - 1)) & 0x3FU));
    }
}

/// So many pseudonyms are tried before there is said to be none.
constexpr std::uint64_t kAttempts = 1000;

}  // namespace

Values::Values(std::string_view secret) : m_key(KeyOf(secret)) {}

bool Values::IsBinary(std::string_view bytes) {
    return std::ranges::any_of(bytes, IsControl);
}

std::size_t Values::CountReplaced(std::string_view value) {
    return IsBinary(value) ? value.size() : static_cast<std::size_t>(std::ranges::count_if(value, [](char c) {
        return IsWord(c) || !IsAscii(c);
    }));
}

void Values::Add(std::string_view value) {
    std::string upper = Upper(value);
    if (m_byValue.try_emplace(upper, m_known.size()).second) {
        m_byStart[StartOf(upper)].push_back(m_known.size());
        m_known.push_back({std::move(upper), {}});
    }
}

void Values::AddVins(std::string_view bytes) {
    const auto addWords = [this](std::string_view text) {
        for (std::size_t start = 0; start < text.size(); ++start) {
            std::size_t end = start;
            while (end < text.size() && IsWord(text[end])) {
                ++end;
            }
            if (LooksLikeVin(text.substr(start, end - start))) {
                Add(text.substr(start, end - start));
            }
            start = end;
        }
    };
    addWords(bytes);
    // As bytes with something between, and as digits close together, which may begin in the middle of a byte.
    for (std::size_t start = 0; start < bytes.size();) {
        std::size_t end = start + 1;
        if (ByteAt(bytes, start) != kNoByte) {
            addWords(TakeHex(bytes, end = start));
        }
        start = end;
    }
    for (std::size_t start = 0; start < bytes.size(); ++start) {
        std::size_t end = start;
        while (DigitAt(bytes, end) >= 0) {
            ++end;
        }
        if (end - start >= 2 * kVinLength) {
            addWords(TakeCloseHex(bytes, start));
            addWords(TakeCloseHex(bytes, start + 1));
        }
        start = end;
    }
}

std::vector<Values::Match> Values::Find(std::string_view bytes) const {
    std::vector<Match> matches;
    if (m_known.empty()) {
        return matches;
    }
    // What the bytes, one after the other by `next`, begin with. There is no byte at npos.
    const auto find = [&](std::size_t start, bool isHex, auto byteAt, auto next) {
        std::uint32_t begin = 0;
        std::size_t place = start;
        for (std::size_t i = 0; i < kStart; ++i) {
            const int byte = byteAt(place);
            if (byte == kNoByte) {
                return;
            }
            begin = begin << 8U | static_cast<unsigned char>(Upper(CharOf(byte)));
            place = next(place);
        }
        const auto found = m_byStart.find(begin);
        if (found == m_byStart.end()) {
            return;
        }
        for (const std::size_t known : found->second) {
            std::size_t at = place;
            const std::string_view rest = std::string_view(m_known[known].value).substr(kStart);
            const bool isThere = std::ranges::all_of(rest, [&](char c) {
                const int byte = byteAt(at);
                if (byte == kNoByte || Upper(CharOf(byte)) != c) {
                    return false;
                }
                at = next(at);
                return true;
            });
            if (isThere) {
                matches.push_back({known, start, isHex});
            }
        }
    };
    for (std::size_t start = 0; start + kStart <= bytes.size(); ++start) {
        find(
            start, false,
            [&](std::size_t at) { return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : kNoByte; },
            [](std::size_t at) { return at + 1; });
        find(
            start, true, [&](std::size_t at) { return ByteAt(bytes, at); },
            [&](std::size_t at) { return NextByte(bytes, at); });
    }
    return matches;
}

bool Values::Write(const Match& match, std::string_view pseudonym, std::string_view bytes, std::string& replaced,
                   std::vector<bool>& done) {
    bool any = false;
    const auto put = [&](std::size_t at, char c) {
        if (!done[at]) {
            replaced[at] = c;
            done[at] = true;
            any = true;
        }
    };
    if (!match.isHex) {
        for (std::size_t i = 0; i < pseudonym.size(); ++i) {
            put(match.start + i, InCaseOf(bytes[match.start + i], pseudonym[i]));
        }
        return any;
    }
    std::vector<std::size_t> places{match.start};
    while (places.size() < pseudonym.size()) {
        places.push_back(NextByte(bytes, places.back()));
    }
    const bool isLower = std::ranges::any_of(
        places, [&](std::size_t place) { return IsLower(bytes[place]) || IsLower(bytes[place + 1]); });
    for (std::size_t i = 0; i < places.size(); ++i) {
        std::string digits;
        exchange::AppendByte(InCaseOf(CharOf(ByteAt(bytes, places[i])), pseudonym[i]), digits);
        put(places[i], InCaseOf(isLower ? 'a' : 'A', digits[0]));
        put(places[i] + 1, InCaseOf(isLower ? 'a' : 'A', digits[1]));
    }
    return any;
}

std::uint64_t Values::Replace(std::string& bytes) {
    std::uint64_t count = 0;
    // Once is enough, but for a value that comes about by chance where a pseudonym meets what is beside it, or that was not
    // known when the pseudonym was made.
    constexpr std::uint64_t kMostRounds = 20;
    std::vector<Match> matches = Find(bytes);
    for (std::uint64_t round = 0; !matches.empty() && m_error.empty(); ++round) {
        if (round == kMostRounds) {
            m_error = "there are too many values to replace them all";
            break;
        }
        // What lies in a longer one is replaced with it, and where two overlap nothing of either stays.
        std::ranges::sort(matches, {}, [&](const Match& match) {
            return std::tuple(-static_cast<std::int64_t>(m_known[match.known].value.size()), match.start, match.isHex);
        });
        std::string replaced = bytes;
        std::vector<bool> done(bytes.size());
        for (const Match& match : matches) {
            const std::string pseudonym =
                round < 2 ? PseudonymOf(match.known) : Candidate(m_known[match.known].value, kAttempts + round);
            if (!m_error.empty()) {
                return count;
            }
            const bool any = Write(match, pseudonym, bytes, replaced, done);
            count += round == 0 && any ? 1 : 0;
        }
        bytes = std::move(replaced);
        matches = Find(bytes);
    }
    return count;
}

std::string Values::Alone(std::string_view bytes) {
    const std::string upper = Upper(bytes);
    std::string result(bytes);
    if (CountReplaced(bytes) == 0) {
        return result;
    }
    for (std::uint64_t attempt = 0; attempt < kAttempts; ++attempt) {
        const std::string candidate = Candidate(upper, attempt);
        if (candidate != upper) {
            std::ranges::transform(bytes, candidate, result.begin(), &InCaseOf);
            break;
        }
    }
    return result;
}

std::string Values::Candidate(std::string_view value, std::uint64_t attempt) const {
    const std::uint64_t state = SipHash(m_key, BytesOf(attempt) + std::string(value));
    std::uint64_t drawn = 0;
    const auto draw = [&](std::uint64_t below) { return SipHash(m_key, BytesOf(state) + BytesOf(drawn++)) % below; };
    const bool isBinary = IsBinary(value);
    const bool isUtf8 = exchange::IsUtf8(value);
    std::string out;
    while (out.size() < value.size()) {
        const char c = value[out.size()];
        constexpr std::string_view kLetters = "ABCDEFGHJKLMNPRSTUVWXYZ";
        if (isBinary) {
            out += static_cast<char>(static_cast<unsigned char>(1 + draw(0xFF)));  // no NUL, which would end a text
        } else if (IsDigit(c)) {
            out += static_cast<char>('0' + draw(10));
        } else if (IsLower(c) || IsUpper(c)) {
            out += kLetters[static_cast<std::size_t>(draw(kLetters.size()))];
        } else if (IsAscii(c)) {
            out += c;
        } else if (isUtf8) {
            const auto lead = static_cast<unsigned char>(c);
            AppendCharacter(lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4, out, draw);
        } else {
            out += static_cast<char>(static_cast<unsigned char>(0xC0 + draw(0x40)));  // mostly the code pages' letters
        }
    }
    return out;
}

const std::string& Values::PseudonymOf(std::size_t known) {
    Known& value = m_known[known];
    for (std::uint64_t attempt = 0; value.pseudonym.empty() && attempt < kAttempts; ++attempt) {
        std::string candidate = Candidate(value.value, attempt);
        std::string digits;
        for (const char byte : candidate) {
            exchange::AppendByte(byte, digits);
        }
        // Its digits would be replaced again where they are a value by chance, which many short values leave no way around.
        const bool mayHaveDigits = attempt >= kAttempts / 2;
        if (!m_taken.contains(Upper(candidate)) && Find(candidate).empty() && (mayHaveDigits || Find(digits).empty())) {
            m_taken.insert(Upper(candidate));
            value.pseudonym = std::move(candidate);
        }
    }
    if (value.pseudonym.empty()) {
        m_error = "there are so many values that one of them has no pseudonym left";
    }
    return value.pseudonym;
}

}  // namespace krm::redacting
