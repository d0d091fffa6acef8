// A file for what memory is too small for.
#ifndef KRM_CLI_TEMPORARY_FILE_H_
#define KRM_CLI_TEMPORARY_FILE_H_

#include <cstdio>

namespace krm_cli {

/// A file that nobody else sees and that is gone when it is closed; null, and errno, where there is none.
std::FILE* OpenTemporary();

}  // namespace krm_cli

#endif  // KRM_CLI_TEMPORARY_FILE_H_
