#include "krm/framework/record.h"

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

CKRMCBaseAdaptDataStructure::~CKRMCBaseAdaptDataStructure() = default;

void CKRMCBaseAdaptDataStructure::Clear() {}

krm_long CKRMCBaseAdaptDataStructure::ER_WriteOperationLogFormatStructure(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const krm_long result = krm::WriteOperationLogLine(format, arguments);
    va_end(arguments);
    return result;
}

void CKRMCBaseAdaptDataStructure::DumpUnderPrefix(const char* format, std::va_list arguments,
                                                  void (*dump)(CKRMCBaseAdaptDataStructure& record,
                                                               const krm::RecordLines& line)) {
    CKRMString prefix;
    prefix.FormatV(format, arguments);
    dump(*this, krm::RecordLines(*this, prefix.GetText()));
}
