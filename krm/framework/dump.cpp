#include "krm/framework/dump.h"

namespace krm {

namespace {

/// Of the two ways, the one that needs no block of memory for each line where the platform has it. A template, so that the
/// other platforms need not.
template <class... Numbers>
krm_long Write(const char* format, std::va_list arguments, Numbers... numbers) {
    if constexpr (requires { KRMC_ER_FormatOperationLog(format, arguments, numbers...); }) {
        return KRMC_ER_FormatOperationLog(format, arguments, numbers...);
    } else {
        CKRMString text;
        text.FormatV(format, arguments);
        return KRMC_ER_WriteOperationLog(text.GetText(), text.GetLength(), numbers...);
    }
}

}  // namespace

krm_long WriteOperationLogLine(const char* format, std::va_list arguments) {
    // What the operation log's writer is told with every line: constants of this library, the log's to interpret.
    constexpr int kFirst = 4;
    constexpr int kSecond = 2;
    return Write(format, arguments, kFirst, kSecond);
}

}  // namespace krm
