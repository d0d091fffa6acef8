// What the library needs of the four libraries that it builds on: strings and lists of numbers, the base of every
// message, the error object and the writer of the operation log.
//
// krm::platform implements just this, so that the library builds and runs anywhere. Whoever has the real libraries
// links them instead: -DKRM_PLATFORM_TARGET=<CMake target>.
#ifndef KRM_PLATFORM_PLATFORM_H_
#define KRM_PLATFORM_PLATFORM_H_

#include <cstdarg>
#include <map>
#include <string>

#include "krm/core/list.h"
#include "krm/core/types.h"

/// A text of bytes. Copies are deep; an empty string allocates nothing.
///
/// Its first data word is the address of the text and its second the length, in a build with GCC's standard library.
/// Callers of the operation log's writer want just these two; they are better taken from GetText and GetLength.
class KRM_PLATFORM_API CKRMString {
public:
    /// An empty string.
    CKRMString() = default;
    /// A copy of `text` up to its NUL; null gives an empty string.
    CKRMString(const char* text);  // NOLINT: a text converts by itself

    CKRMString& operator=(const char* text);
    CKRMString& operator+=(const char* text);
    CKRMString& operator+=(const CKRMString& other);
    CKRMString(const CKRMString&) = default;
    CKRMString(CKRMString&&) noexcept = default;
    CKRMString& operator=(const CKRMString&) = default;
    CKRMString& operator=(CKRMString&&) noexcept = default;
    ~CKRMString() = default;

    /// Appends, as `+=` does.
    CKRMString& Combine(const char* text);
    CKRMString& Combine(const CKRMString& other);
    /// Replaces the text, as `=` does.
    CKRMString& Copy(const char* text);
    CKRMString& Copy(const CKRMString& other);

    /// Compares bytes: 0 when equal, else the sign tells which comes first. A null text compares as an empty one.
    int Compare(const char* text) const;

    /// Makes the string empty.
    void Empty();

    /// Replaces the text by `format` filled with the arguments, as printf prints them in the C locale, whatever the
    /// process locale; however long it gets. The arguments may be texts of this very string. A null `format` is empty,
    /// a null text argument prints as "(null)", and "%n" prints and writes nothing.
    void Format(const char* format, ...) KRM_PRINTF_LIKE(2, 3);
    void FormatV(const char* format, std::va_list arguments) KRM_PRINTF_LIKE(2, 0);

    /// The text, never null, valid until the string changes or dies.
    const char* GetText() const { return m_text.c_str(); }
    /// The length in bytes.
    krm_ulong GetLength() const { return static_cast<krm_ulong>(m_text.size()); }

private:
    std::string m_text;
};

/// A map with unique keys in order; the library uses `CKRMMap<CKRMString, CKRMString>`.
template <class Key, class Value>
class CKRMMap;

/// Texts by text. Keys are compared as CKRMString::Compare does.
template <>
class CKRMMap<CKRMString, CKRMString> {
    struct Before {
        bool operator()(const CKRMString& left, const CKRMString& right) const {
            return left.Compare(right.GetText()) < 0;
        }
    };
    using Entries = std::map<CKRMString, CKRMString, Before>;

public:
    using iterator = Entries::iterator;
    using const_iterator = Entries::const_iterator;

    /// Sets the value of `key`, adding the key where it is new.
    void SetAt(const CKRMString& key, const CKRMString& value) { m_entries.insert_or_assign(key, value); }
    /// Copies the value of `key` to `value` and returns true; returns false and leaves `value` alone without that key.
    bool Lookup(const CKRMString& key, CKRMString& value) const {
        const const_iterator found = m_entries.find(key);
        if (found == m_entries.end()) {
            return false;
        }
        value = found->second;
        return true;
    }
    /// The value of `key`, added empty where it is new.
    CKRMString& operator[](const CKRMString& key) { return m_entries[key]; }
    /// Removes `key`; false where it is not there.
    bool RemoveKey(const CKRMString& key) { return m_entries.erase(key) != 0; }
    void RemoveAll() { m_entries.clear(); }
    int GetCount() const { return static_cast<int>(m_entries.size()); }
    bool IsEmpty() const { return m_entries.empty(); }

    // Walks the pairs (first: key, second: value) in the order of their keys.
    iterator begin() { return m_entries.begin(); }
    iterator end() { return m_entries.end(); }
    const_iterator begin() const { return m_entries.begin(); }
    const_iterator end() const { return m_entries.end(); }

private:
    Entries m_entries;
};

// Lists of numbers are instantiated in the platform library.
extern template class CKRMList<unsigned char>;
extern template class CKRMList<unsigned short>;
extern template class CKRMList<krm_ulong>;

/// Base of every message: which family (command type) and which command (command ID) it belongs to.
class KRM_PLATFORM_API CKRMBaseAdaptationData {
public:
    CKRMBaseAdaptationData() = default;
    CKRMBaseAdaptationData(const CKRMBaseAdaptationData&) = default;
    CKRMBaseAdaptationData& operator=(const CKRMBaseAdaptationData&) = default;
    virtual ~CKRMBaseAdaptationData();

    /// Resets type, ID and status to 0.
    virtual void Clear();

    krm_ulong GetCommandType() const { return m_dwCommandType; }
    void SetCommandType(krm_ulong type) { m_dwCommandType = type; }
    krm_ulong GetCommandID() const { return m_dwCommandID; }
    void SetCommandID(krm_ulong id) { m_dwCommandID = id; }

private:
    krm_ulong m_dwCommandType = 0;
    krm_ulong m_dwCommandID = 0;
    unsigned char m_uchStatus = 0;  // belongs to whoever transports the message; copied, never read here
};

/// What went wrong, as the failing operation reports it.
class KRM_PLATFORM_API CKRMError {
public:
    CKRMError() = default;
    CKRMError(const CKRMError&) = default;
    CKRMError& operator=(const CKRMError&) = default;
    virtual ~CKRMError();

    /// Sets the code and its five details: module, class, function, the function's arguments, message.
    virtual void SetError(krm_ulong code, const CKRMString& moduleName, const CKRMString& className,
                          const CKRMString& functionName, const CKRMString& functionArgs, const CKRMString& message);
    /// The code; 0 is success.
    virtual krm_ulong GetErrorCode() const;
    /// Sets the code alone; the details stay.
    virtual void SetErrorCode(krm_ulong code);

    krm_ulong a_ulReturnCode = 0;
    CKRMString a_strErrorModuleName;
    CKRMString a_strErrorClassName;
    CKRMString a_strErrorFunctionName;
    CKRMString a_strErrorFunctionArgs;
    CKRMString a_strMessage;
};

/// Receives each line of the operation log with the arguments of KRMC_ER_WriteOperationLog. `text` is valid during the
/// call only.
using KRMC_ER_OperationLogSink = krm_long (*)(void* context, const char* text, krm_ulong textLength, int first,
                                              int second);

/// Hands one line to the sink and returns the sink's result. A null text counts as an empty one.
KRM_PLATFORM_API krm_long KRMC_ER_WriteOperationLog(const char* text, krm_ulong textLength, int first, int second);

/// Replaces the sink; null restores the default, which writes each line to standard error. The sink serves the whole
/// process: set it before other threads write, and let it do its own locking.
KRM_PLATFORM_API void KRMC_ER_SetOperationLogSink(KRMC_ER_OperationLogSink sink, void* context);

#endif  // KRM_PLATFORM_PLATFORM_H_
