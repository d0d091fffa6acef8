// The fields of a message, kept until it is known what it is: in memory as long as they are few, else in a temporary file.
#ifndef KRM_CLI_FIELD_STORE_H_
#define KRM_CLI_FIELD_STORE_H_

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "cli/input.h"

namespace krm_cli {

class FieldStore {
public:
    explicit FieldStore(std::size_t mostInMemory = std::size_t{16} * 1024 * 1024) : m_mostInMemory(mostInMemory) {}

    void Clear();
    /// Throws Failure where there is no room.
    void Add(const FieldText& field);
    /// Calls `visit(const FieldText&)` for each, in order. Throws Failure.
    template <class Visitor>
    void ForEach(Visitor visit) {
        Rewind();
        FieldText field;
        while (Read(field)) {
            visit(field);
        }
    }

private:
    struct Lengths {
        std::uint64_t path;
        std::uint64_t value;
        std::uint64_t line;
        std::uint64_t cutBytes;
    };
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void Rewind();
    bool Read(FieldText& field);
    bool Take(void* to, std::size_t size);

    std::size_t m_mostInMemory;
    std::string m_bytes;                       ///< what isn't in the file
    std::unique_ptr<std::FILE, Close> m_file;  ///< null as long as memory does
    std::uint64_t m_inFile = 0;                ///< bytes of this message
    std::uint64_t m_fileLeft = 0;              ///< while it is read
    std::size_t m_read = 0;
    std::string m_field;
};

}  // namespace krm_cli

#endif  // KRM_CLI_FIELD_STORE_H_
