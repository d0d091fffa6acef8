#include "krm/platform/platform.h"

#include <locale.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <mutex>

template class CKRMList<unsigned char>;
template class CKRMList<unsigned short>;
template class CKRMList<krm_ulong>;

namespace {

const char* OrEmpty(const char* text) {
    return text == nullptr ? "" : text;
}

/// Numbers are printed as the C locale prints them, whatever the process's.
class InCLocale {
public:
    InCLocale() : m_before(uselocale(CLocale())) {}
    ~InCLocale() { uselocale(m_before); }
    InCLocale(const InCLocale&) = delete;
    InCLocale& operator=(const InCLocale&) = delete;

private:
    static locale_t CLocale() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t m_before;
};

}  // namespace

CKRMString::CKRMString(const char* text) {
    Assign(OrEmpty(text), std::strlen(OrEmpty(text)));
}

CKRMString::CKRMString(const CKRMString& other) {
    Assign(other.GetText(), other.m_length);
}

CKRMString::CKRMString(CKRMString&& other) noexcept
    : m_text(std::exchange(other.m_text, nullptr)), m_length(std::exchange(other.m_length, 0)) {}

CKRMString& CKRMString::operator=(const char* text) {
    Assign(OrEmpty(text), std::strlen(OrEmpty(text)));
    return *this;
}

CKRMString& CKRMString::operator=(const CKRMString& other) {
    Assign(other.GetText(), other.m_length);
    return *this;
}

CKRMString& CKRMString::operator=(CKRMString&& other) noexcept {
    std::swap(m_text, other.m_text);
    std::swap(m_length, other.m_length);
    return *this;
}

CKRMString& CKRMString::operator+=(const char* text) {
    Append(OrEmpty(text), std::strlen(OrEmpty(text)));
    return *this;
}

CKRMString& CKRMString::operator+=(const CKRMString& other) {
    Append(other.GetText(), other.m_length);
    return *this;
}

CKRMString::~CKRMString() {
    delete[] m_text;
}

int CKRMString::Compare(const char* text) const {
    const std::size_t length = std::strlen(OrEmpty(text));
    const int common = std::memcmp(GetText(), OrEmpty(text), std::min(m_length, length));
    if (common != 0) {
        return common;
    }
    return m_length < length ? -1 : (m_length > length ? 1 : 0);
}

void CKRMString::Empty() {
    Assign("", 0);
}

void CKRMString::Format(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CKRMString::FormatV(const char* format, std::va_list arguments) {
    const InCLocale inCLocale;
    std::va_list again;
    va_copy(again, arguments);
    const int measured = std::vsnprintf(nullptr, 0, OrEmpty(format), again);
    va_end(again);
    if (measured <= 0) {
        Empty();
        return;
    }
    const auto length = static_cast<std::size_t>(measured);
    const auto text = std::make_unique<char[]>(length + 1);
    std::vsnprintf(text.get(), length + 1, OrEmpty(format), arguments);
    Assign(text.get(), length);
}

// The bytes may be of this very string, so the old block goes last.
void CKRMString::Append(const char* bytes, std::size_t count) {
    if (count == 0) {
        return;
    }
    char* const text = new char[m_length + count + 1];
    std::memcpy(text, GetText(), m_length);
    std::memcpy(text + m_length, bytes, count);
    m_length += count;
    text[m_length] = '\0';
    delete[] std::exchange(m_text, text);
}

void CKRMString::Assign(const char* bytes, std::size_t count) {
    char* text = nullptr;
    if (count != 0) {
        text = new char[count + 1];
        std::memcpy(text, bytes, count);
        text[count] = '\0';
    }
    m_length = count;
    delete[] std::exchange(m_text, text);
}

CKRMBaseAdaptationData::~CKRMBaseAdaptationData() = default;

void CKRMBaseAdaptationData::Clear() {
    m_status = 0;
    m_id = 0;
    m_type = 0;
    m_transport = nullptr;
}

CKRMError::~CKRMError() = default;

void CKRMError::SetError(krm_ulong code, const CKRMString& moduleName, const CKRMString& className,
                         const CKRMString& functionName, const CKRMString& functionArgs, const CKRMString& message) {
    CKRMError::SetErrorCode(code);
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
    ++a_ulTimesSet;
    a_ulEarlierCode = std::exchange(a_ulReturnCode, code);
}

namespace {

std::mutex g_mutex;
std::vector<std::string> g_lines;
other_platform::LogWatcher g_watcher = nullptr;
void* g_context = nullptr;

}  // namespace

krm_long KRMC_ER_WriteOperationLog(const char* text, krm_ulong textLength, int first, int second) {
    if (text == nullptr) {
        textLength = 0;
    }
    if (g_watcher != nullptr) {
        return g_watcher(g_context, OrEmpty(text), textLength, first, second);
    }
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_lines.emplace_back(OrEmpty(text), textLength);
    return 0;
}

void other_platform::WatchLog(LogWatcher watcher, void* context) {
    g_watcher = watcher;
    g_context = context;
}

std::vector<std::string> other_platform::TakeLog() {
    const std::lock_guard<std::mutex> lock(g_mutex);
    return std::exchange(g_lines, {});
}
