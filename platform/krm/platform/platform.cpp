#include "krm/platform/platform.h"

#include <cstdio>
#include <string>
#include <string_view>

#include "krm/platform/internal/format.h"

template class CKRMList<unsigned char>;
template class CKRMList<unsigned short>;
template class CKRMList<krm_ulong>;

namespace {

const char* OrEmpty(const char* text) {
    return text == nullptr ? "" : text;
}

}  // namespace

CKRMString::CKRMString(const char* text) : m_text(OrEmpty(text)) {}

CKRMString& CKRMString::operator=(const char* text) {
    m_text = OrEmpty(text);
    return *this;
}

CKRMString& CKRMString::operator+=(const char* text) {
    m_text += OrEmpty(text);
    return *this;
}

CKRMString& CKRMString::operator+=(const CKRMString& other) {
    m_text += other.m_text;
    return *this;
}

CKRMString& CKRMString::Combine(const char* text) {
    return *this += text;
}

CKRMString& CKRMString::Combine(const CKRMString& other) {
    return *this += other;
}

CKRMString& CKRMString::Copy(const char* text) {
    return *this = text;
}

CKRMString& CKRMString::Copy(const CKRMString& other) {
    return *this = other;
}

int CKRMString::Compare(const char* text) const {
    return m_text.compare(OrEmpty(text));
}

void CKRMString::Empty() {
    m_text.clear();
}

void CKRMString::Format(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CKRMString::FormatV(const char* format, std::va_list arguments) {
    // Not into this string: the arguments may be texts of it.
    krm::platform::Output out;
    krm::platform::AppendFormatted(out, OrEmpty(format), arguments);
    out.AssignTo(m_text);
}

// Here and not in the header, where every source that includes it would compile the map's inside.

void CKRMMap<CKRMString, CKRMString>::SetAt(const CKRMString& key, const CKRMString& value) {
    m_entries.insert_or_assign(key, value);
}

bool CKRMMap<CKRMString, CKRMString>::Lookup(const CKRMString& key, CKRMString& value) const {
    const const_iterator found = m_entries.find(key);
    if (found == m_entries.end()) {
        return false;
    }
    value = found->second;
    return true;
}

CKRMString& CKRMMap<CKRMString, CKRMString>::operator[](const CKRMString& key) {
    return m_entries[key];
}

bool CKRMMap<CKRMString, CKRMString>::RemoveKey(const CKRMString& key) {
    return m_entries.erase(key) != 0;
}

void CKRMMap<CKRMString, CKRMString>::RemoveAll() {
    m_entries.clear();
}

CKRMBaseAdaptationData::~CKRMBaseAdaptationData() = default;

void CKRMBaseAdaptationData::Clear() {
    m_dwCommandType = 0;
    m_dwCommandID = 0;
    m_uchStatus = 0;
}

CKRMError::~CKRMError() = default;

void CKRMError::SetError(krm_ulong code, const CKRMString& moduleName, const CKRMString& className,
                         const CKRMString& functionName, const CKRMString& functionArgs, const CKRMString& message) {
    a_ulReturnCode = code;
    a_strErrorModuleName = moduleName;
    a_strErrorClassName = className;
    a_strErrorFunctionName = functionName;
    a_strErrorFunctionArgs = functionArgs;
    a_strMessage = message;
}

krm_ulong CKRMError::GetErrorCode() const {
    return a_ulReturnCode;
}

void CKRMError::SetErrorCode(krm_ulong code) {
    a_ulReturnCode = code;
}

namespace {

krm_long WriteToStandardError(void*, const char* text, krm_ulong textLength, int, int) {
    // One write per line, so that the lines of two threads don't mix.
    std::string line(text, textLength);
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
    return 0;
}

struct {
    KRMC_ER_OperationLogSink write = WriteToStandardError;
    void* context = nullptr;
} g_sink;

}  // namespace

krm_long KRMC_ER_WriteOperationLog(const char* text, krm_ulong textLength, int first, int second) {
    return text == nullptr ? g_sink.write(g_sink.context, "", 0, first, second)
                           : g_sink.write(g_sink.context, text, textLength, first, second);
}

krm_long KRMC_ER_FormatOperationLog(const char* format, std::va_list arguments, int first, int second) {
    krm::platform::Output out;
    krm::platform::AppendFormatted(out, OrEmpty(format), arguments);
    const std::string_view line = out.Text();
    return KRMC_ER_WriteOperationLog(line.data(), static_cast<krm_ulong>(line.size()), first, second);
}

void KRMC_ER_SetOperationLogSink(KRMC_ER_OperationLogSink sink, void* context) {
    g_sink.write = sink == nullptr ? WriteToStandardError : sink;
    g_sink.context = sink == nullptr ? nullptr : context;
}
