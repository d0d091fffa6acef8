// Writes the schema, and below it documents of every message of the library, one a line: new ones, and some with random
// content. check_schema.py reads them.
#include <cstdint>
#include <cstdio>
#include <string>

#include "krm/exchange/json.h"
#include "krm/exchange/schema.h"
#include "tests/exchange/random_content.h"

int main(int argc, char** argv) {
    std::FILE* const out = argc == 2 ? std::fopen(argv[1], "wb") : nullptr;
    if (out == nullptr) {
        std::fprintf(stderr, "usage: %s OUTPUT\n", argv[0]);
        return 2;
    }
    std::string schema = krm::Schema();
    for (char& c : schema) {
        c = c == '\n' ? ' ' : c;
    }
    std::fprintf(out, "%s\n", schema.c_str());
    for (const krm::MessageDescription& message : krm::AllMessages()) {
        std::fprintf(out, "%s\n", krm::ToJson(*message.create(), message).c_str());
        for (std::uint32_t seed = 1; seed <= 3; ++seed) {
            std::fprintf(out, "%s\n", krm::ToJson(*krm::test::RandomMessage(message, seed), message).c_str());
        }
    }
    const bool written = std::ferror(out) == 0;
    return std::fclose(out) == 0 && written ? 0 : 1;
}
