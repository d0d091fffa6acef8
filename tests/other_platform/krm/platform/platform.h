// A second platform, for the tests: it offers what the library asks of one (docs/guide/platform.md) and differs in all
// else from the stand-in. Strings have no room of their own, maps are sorted arrays, the error object and the messages'
// base have further members, the log is kept in memory.
//
// Whoever adapts the real libraries writes a header of this name, krm/platform/platform.h, in an include root of his own.
#ifndef KRM_TESTS_OTHER_PLATFORM_PLATFORM_H_
#define KRM_TESTS_OTHER_PLATFORM_PLATFORM_H_

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "krm/core/list.h"
#include "krm/core/types.h"

/// A text of bytes in one block, or nowhere while it is empty.
class KRM_PLATFORM_API CKRMString {
public:
    CKRMString() = default;
    CKRMString(const char* text);  // NOLINT: a text converts by itself
    CKRMString(const CKRMString& other);
    CKRMString(CKRMString&& other) noexcept;
    CKRMString& operator=(const char* text);
    CKRMString& operator=(const CKRMString& other);
    CKRMString& operator=(CKRMString&& other) noexcept;
    CKRMString& operator+=(const char* text);
    CKRMString& operator+=(const CKRMString& other);
    ~CKRMString();

    CKRMString& Combine(const char* text) { return *this += text; }
    CKRMString& Combine(const CKRMString& other) { return *this += other; }
    CKRMString& Copy(const char* text) { return *this = text; }
    CKRMString& Copy(const CKRMString& other) { return *this = other; }

    int Compare(const char* text) const;
    void Empty();
    void Format(const char* format, ...) KRM_PRINTF_LIKE(2, 3);
    void FormatV(const char* format, std::va_list arguments) KRM_PRINTF_LIKE(2, 0);

    const char* GetText() const { return m_text == nullptr ? "" : m_text; }
    krm_ulong GetLength() const { return static_cast<krm_ulong>(m_length); }

private:
    void Append(const char* bytes, std::size_t count);
    void Assign(const char* bytes, std::size_t count);

    char* m_text = nullptr;
    std::size_t m_length = 0;
};

template <class Key, class Value>
class CKRMMap;

/// Texts by text, in an array sorted by key.
template <>
class CKRMMap<CKRMString, CKRMString> {
    using Entries = std::vector<std::pair<CKRMString, CKRMString>>;

public:
    using iterator = Entries::iterator;
    using const_iterator = Entries::const_iterator;

    void SetAt(const CKRMString& key, const CKRMString& value) { (*this)[key] = value; }
    bool Lookup(const CKRMString& key, CKRMString& value) const {
        const auto place = static_cast<std::size_t>(Place(key));
        if (!Holds(place, key)) {
            return false;
        }
        value = m_entries[place].second;
        return true;
    }
    CKRMString& operator[](const CKRMString& key) {
        const std::ptrdiff_t place = Place(key);
        if (!Holds(static_cast<std::size_t>(place), key)) {
            m_entries.insert(m_entries.begin() + place, {key, CKRMString()});
        }
        return m_entries[static_cast<std::size_t>(place)].second;
    }
    bool RemoveKey(const CKRMString& key) {
        const std::ptrdiff_t place = Place(key);
        if (!Holds(static_cast<std::size_t>(place), key)) {
            return false;
        }
        m_entries.erase(m_entries.begin() + place);
        return true;
    }
    void RemoveAll() { m_entries.clear(); }
    int GetCount() const { return static_cast<int>(m_entries.size()); }
    bool IsEmpty() const { return m_entries.empty(); }

    iterator begin() { return m_entries.begin(); }
    iterator end() { return m_entries.end(); }
    const_iterator begin() const { return m_entries.begin(); }
    const_iterator end() const { return m_entries.end(); }

private:
    /// Where `key` is or would be inserted.
    std::ptrdiff_t Place(const CKRMString& key) const {
        return std::lower_bound(m_entries.begin(), m_entries.end(), key,
                                [](const auto& entry, const CKRMString& sought) {
                                    return entry.first.Compare(sought.GetText()) < 0;
                                }) -
               m_entries.begin();
    }
    bool Holds(std::size_t place, const CKRMString& key) const {
        return place < m_entries.size() && m_entries[place].first.Compare(key.GetText()) == 0;
    }

    Entries m_entries;
};

extern template class CKRMList<unsigned char>;
extern template class CKRMList<unsigned short>;
extern template class CKRMList<krm_ulong>;

/// Base of every message. Until its first Clear it holds what no message is: the library may not count on zeros.
class KRM_PLATFORM_API CKRMBaseAdaptationData {
public:
    CKRMBaseAdaptationData() = default;
    CKRMBaseAdaptationData(const CKRMBaseAdaptationData&) = default;
    CKRMBaseAdaptationData& operator=(const CKRMBaseAdaptationData&) = default;
    virtual ~CKRMBaseAdaptationData();
    virtual void Clear();

    krm_ulong GetCommandType() const { return m_type; }
    void SetCommandType(krm_ulong type) { m_type = type; }
    krm_ulong GetCommandID() const { return m_id; }
    void SetCommandID(krm_ulong id) { m_id = id; }

private:
    krm_ulong m_type = 0xFEED;
    krm_ulong m_id = 0xBEEF;
    unsigned char m_status = 0x5A;
    void* m_transport = nullptr;
};

/// What went wrong, before that what, and how often anything was set.
class KRM_PLATFORM_API CKRMError {
public:
    CKRMError() = default;
    CKRMError(const CKRMError&) = default;
    CKRMError& operator=(const CKRMError&) = default;
    virtual ~CKRMError();

    virtual void SetError(krm_ulong code, const CKRMString& moduleName, const CKRMString& className,
                          const CKRMString& functionName, const CKRMString& functionArgs, const CKRMString& message);
    virtual krm_ulong GetErrorCode() const;
    virtual void SetErrorCode(krm_ulong code);

    krm_ulong a_ulTimesSet = 0;
    CKRMString a_strMessage;
    CKRMString a_strErrorFunctionArgs;
    CKRMString a_strErrorFunctionName;
    CKRMString a_strErrorClassName;
    CKRMString a_strErrorModuleName;
    krm_ulong a_ulEarlierCode = 0;
    krm_ulong a_ulReturnCode = 0;
};

KRM_PLATFORM_API krm_long KRMC_ER_WriteOperationLog(const char* text, krm_ulong textLength, int first, int second);

/// The log of this platform: lines in memory, unless somebody watches, who then gets them instead.
namespace other_platform {

using LogWatcher = krm_long (*)(void* context, const char* text, krm_ulong textLength, int first, int second);

/// Null lets the lines be kept again. Not while other threads write.
KRM_PLATFORM_API void WatchLog(LogWatcher watcher, void* context);
/// The lines kept so far, which are forgotten.
KRM_PLATFORM_API std::vector<std::string> TakeLog();

}  // namespace other_platform

#endif  // KRM_TESTS_OTHER_PLATFORM_PLATFORM_H_
