// A file that the program writes. It never takes the place of anything but an older one of its own kind.
#ifndef KRM_EXAMPLES_DIAGNOSIS_SESSION_OUTPUT_FILE_H_
#define KRM_EXAMPLES_DIAGNOSIS_SESSION_OUTPUT_FILE_H_

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

#include "recording_file.h"

namespace diagnosis_session {

class OutputFile {
public:
    /// Creates the file, or empties one that begins with `firstLine` or has nothing in it. `what` says what such a file
    /// is: "an operation log". Throws FileError where another file is there, or where it can't be written.
    OutputFile(std::string path, std::string_view firstLine, const std::string& what);

    /// Throws FileError where the file doesn't take what was written up to now: as soon as that is known.
    void Write(std::string_view text);
    /// Writes out what is still buffered, likewise.
    void Close();

    const std::string& Path() const { return m_path; }

private:
    void Flush();

    std::string m_path;
    std::ofstream m_file;
    std::string m_buffer;
};

}  // namespace diagnosis_session

#endif  // KRM_EXAMPLES_DIAGNOSIS_SESSION_OUTPUT_FILE_H_
