// What every fuzz target needs: the fuzzer's bytes taken apart, and a check that stops the process.
#ifndef KRM_FUZZ_SUPPORT_INPUT_H_
#define KRM_FUZZ_SUPPORT_INPUT_H_

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <type_traits>
#include <vector>

/// Stops the fuzzer, which then keeps the input, unless `condition` holds.
#define KRM_FUZZ_CHECK(condition)                                                               \
    do {                                                                                        \
        if (!(condition)) {                                                                     \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                       \
        }                                                                                       \
    } while (false)

namespace krm::fuzz {

/// Reads the fuzzer's bytes from the front, numbers with their least significant byte first, so that a corpus file can
/// be read and written by hand. At the end everything is zero and empty.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : m_at(data), m_end(data + size) {}

    bool IsEmpty() const { return m_at == m_end; }

    std::uint8_t Byte() { return IsEmpty() ? std::uint8_t{0} : *m_at++; }
    bool Flag() { return (Byte() & 1U) != 0; }
    /// A number from 0 to `most`.
    std::size_t UpTo(std::size_t most) { return (most < 256 ? Byte() : Number<std::uint16_t>()) % (most + 1); }

    template <class T>
    T Number() {
        static_assert(std::is_integral_v<T>);
        std::uint64_t number = 0;
        for (unsigned i = 0; i < sizeof(T); ++i) {
            number |= static_cast<std::uint64_t>(Byte()) << (8 * i);
        }
        return static_cast<T>(number);
    }

    /// Every bit pattern is a double: infinities and NaN too.
    double Double() { return std::bit_cast<double>(Number<std::uint64_t>()); }

    /// A length byte, then so many bytes; `most` is at most 255.
    std::vector<std::uint8_t> Bytes(std::size_t most) {
        const std::size_t length = std::min(UpTo(most), static_cast<std::size_t>(m_end - m_at));
        const std::vector<std::uint8_t> bytes(m_at, m_at + length);
        m_at += length;
        return bytes;
    }
    /// The same as text up to a NUL.
    std::string Text(std::size_t most) {
        const std::vector<std::uint8_t> bytes = Bytes(most);
        return std::string(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
    }
    /// All that is left.
    std::string Rest() {
        const std::string rest(m_at, m_end);
        m_at = m_end;
        return rest;
    }

private:
    const std::uint8_t* m_at;
    const std::uint8_t* m_end;
};

}  // namespace krm::fuzz

#endif  // KRM_FUZZ_SUPPORT_INPUT_H_
