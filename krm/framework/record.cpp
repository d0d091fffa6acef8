#include "krm/framework/record.h"

#include "krm/framework/dump.h"

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
