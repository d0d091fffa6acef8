// The bytes of a file, or of standard input, in large pieces.
#ifndef KRM_CLI_BYTE_SOURCE_H_
#define KRM_CLI_BYTE_SOURCE_H_

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <future>
#include <istream>
#include <memory>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/surroundings.h"

namespace krm_cli {

class ByteSource {
public:
    /// "-" is standard input. Throws Failure where the file can't be opened.
    ByteSource(const std::string& file, const Surroundings& surroundings);
    /// Bytes that are there already, such as a test's.
    ByteSource(std::string bytes, std::string name, const Surroundings& surroundings);

    /// Reads up to so many bytes; none at the end alone. Throws Failure, and Interrupted.
    std::size_t Read(char* to, std::size_t size);
    /// Begins to read up to so many bytes in another thread; where none can be had, FinishRead reads them. REQUIRES: until the
    /// future is ready or gone, nothing but FinishRead is called that reads or rewinds, and both `to` and the source live.
    std::future<std::size_t> BeginRead(char* to, std::size_t size);
    /// Waits for what BeginRead began. Gives and throws what Read does.
    std::size_t FinishRead(std::future<std::size_t>& reading);
    /// Whether there is so much that reading ahead pays. Never of what may have its reader wait, such as a pipe: there the user
    /// must be able to interrupt.
    bool IsLarge() const { return m_size.value_or(0) >= kLarge; }
    /// Up to so many of the first bytes, which Read gives all the same. REQUIRES: nothing was read yet.
    std::string_view Peek(std::size_t size);
    /// Begins again at the first byte. What can't be read twice, such as a pipe, must have been kept: see KeepForAgain.
    void Rewind();
    /// Copies what can't be read twice into a temporary file. REQUIRES: nothing was read yet.
    void KeepForAgain();

    /// How many bytes there are, where somebody knows.
    std::optional<std::uint64_t> Size() const { return m_size; }
    std::uint64_t BytesRead() const { return m_read; }
    /// Called after each block that was read.
    void OnRead(std::function<void()> call) { m_onRead = std::move(call); }
    /// For people.
    const std::string& Name() const { return m_name; }

private:
    struct Close {
        void operator()(std::FILE* file) const {
            if (file != nullptr && file != stdin) {
                std::fclose(file);
            }
        }
    };

    static constexpr std::uint64_t kLarge = std::uint64_t{4} * 1024 * 1024;

    std::size_t ReadFile(char* to, std::size_t size);
    std::size_t ReadNow(char* to, std::size_t size);
    std::size_t Counted(std::size_t count);

    const Surroundings& m_surroundings;
    std::string m_name;
    std::unique_ptr<std::FILE, Close> m_file;
    std::optional<std::uint64_t> m_size;
    bool m_canRewind = true;
    std::string m_ahead;          ///< bytes that come before those of the file
    std::size_t m_aheadRead = 0;  ///< of these, how many were read
    std::uint64_t m_read = 0;
    std::function<void()> m_onRead = [] {};
};

/// A source as a stream. What reading throws goes through it where the stream's exceptions are on (std::ios::badbit).
class SourceBuffer : public std::streambuf {
public:
    explicit SourceBuffer(ByteSource& source) : m_source(source), m_block(std::size_t{64} * 1024) {}

protected:
    int_type underflow() override;
    /// To the begin alone.
    pos_type seekoff(off_type offset, std::ios_base::seekdir from, std::ios_base::openmode) override;
    pos_type seekpos(pos_type position, std::ios_base::openmode mode) override;

private:
    ByteSource& m_source;
    std::vector<char> m_block;
    std::uint64_t m_end = 0;  ///< offset of what comes behind the block
};

/// Throws Failure where both are standard input, which has nothing for the second to read.
void CheckStandardInput(const std::string& file1, const std::string& file2);

/// Why the last call failed, for people, in English: "no such file".
std::string ReasonOf(int error);

}  // namespace krm_cli

#endif  // KRM_CLI_BYTE_SOURCE_H_
