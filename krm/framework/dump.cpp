#include "krm/framework/dump.h"

namespace krm {

krm_long WriteOperationLogLine(const char* format, std::va_list arguments) {
    // What the operation log's writer is told with every line: constants of this library, the log's to interpret.
    constexpr int kFirst = 4;
    constexpr int kSecond = 2;
    CKRMString text;
    text.FormatV(format, arguments);
    return KRMC_ER_WriteOperationLog(text.GetText(), text.GetLength(), kFirst, kSecond);
}

}  // namespace krm
