// A file that is there whole or not at all.
#ifndef KRM_CLI_OUTPUT_FILE_H_
#define KRM_CLI_OUTPUT_FILE_H_

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <string_view>

#include "cli/surroundings.h"

namespace krm_cli {

/// Until it is complete it is called as the file with ".part" behind, and is removed again where it doesn't get so far.
class OutputFile {
public:
    /// Throws Failure where it can't be written, or where the file is there already and doesn't begin with `replacesOnly`;
    /// an empty file may be replaced always, and with `replacesAll` any.
    OutputFile(const std::string& file, std::string_view replacesOnly, bool replacesAll,
               const Surroundings& surroundings);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Throws Failure where the file takes no more, and Interrupted.
    void Write(std::string_view text);
    /// The file as a stream; what goes wrong with it Complete tells.
    std::ostream& Stream() { return m_out; }
    /// Gives the file its name. Throws Failure.
    void Complete();

private:
    [[noreturn]] void Fail(int error);

    const Surroundings& m_surroundings;
    std::filesystem::path m_file;
    std::filesystem::path m_part;
    std::ofstream m_out;
    bool m_isComplete = false;
};

}  // namespace krm_cli

#endif  // KRM_CLI_OUTPUT_FILE_H_
