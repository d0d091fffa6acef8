// What the library needs of the four libraries that it builds on: strings and lists of numbers, the base of every
// message, the error object and the writer of the operation log. Slots and layouts are in docs/interface.md.
//
// It may include krm/core/ alone.
//
// krm::platform implements just this, so that the library builds and runs anywhere. Whoever has the real libraries
// links them instead: -DKRM_PLATFORM_TARGET=TARGET.
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

    CKRMString& operator=(const char* text);                 ///< a copy of `text`; null makes the string empty
    CKRMString& operator+=(const char* text);                ///< appends a copy of `text`; null appends nothing
    CKRMString& operator+=(const CKRMString& other);         ///< appends a copy of `other`, which may be this string
    CKRMString(const CKRMString&) = default;                 ///< a copy of its own
    CKRMString(CKRMString&&) noexcept = default;             ///< takes the text over
    CKRMString& operator=(const CKRMString&) = default;      ///< a copy of its own
    CKRMString& operator=(CKRMString&&) noexcept = default;  ///< takes the text over
    ~CKRMString() = default;                                 ///< frees the text

    /// Appends, as `+=` does.
    CKRMString& Combine(const char* text);
    CKRMString& Combine(const CKRMString& other);  ///< the same with a string
    /// Replaces the text, as `=` does.
    CKRMString& Copy(const char* text);
    CKRMString& Copy(const CKRMString& other);  ///< the same with a string

    /// Compares bytes: 0 when equal, else the sign tells which comes first. A null text compares as an empty one.
    int Compare(const char* text) const;

    /// Makes the string empty.
    void Empty();

    /// Replaces the text by `format` filled with the arguments, as printf prints them in the C locale, whatever the
    /// process locale; however long it gets. The arguments may be texts of this very string. A null `format` is empty,
    /// a null text argument prints as "(null)", and "%n" prints and writes nothing.
    void Format(const char* format, ...) KRM_PRINTF_LIKE(2, 3);
    /// The same with the arguments as a list, which is used up.
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
class KRM_PLATFORM_API CKRMMap<CKRMString, CKRMString> {
    struct Before {
        bool operator()(const CKRMString& left, const CKRMString& right) const {
            return left.Compare(right.GetText()) < 0;
        }
    };
    using Entries = std::map<CKRMString, CKRMString, Before>;

public:
    using iterator = Entries::iterator;              ///< of pairs whose values may be changed
    using const_iterator = Entries::const_iterator;  ///< of pairs

    /// Sets the value of `key`, adding the key where it is new.
    void SetAt(const CKRMString& key, const CKRMString& value);
    /// Copies the value of `key` to `value` and returns true; returns false and leaves `value` alone without that key.
    bool Lookup(const CKRMString& key, CKRMString& value) const;
    /// The value of `key`, added empty where it is new.
    CKRMString& operator[](const CKRMString& key);
    /// Removes `key`; false where it is not there.
    bool RemoveKey(const CKRMString& key);
    /// Removes all keys with their values.
    void RemoveAll();
    /// The number of keys.
    int GetCount() const { return static_cast<int>(m_entries.size()); }
    /// Whether there is no key.
    bool IsEmpty() const { return m_entries.empty(); }

    // Walks the pairs (first: key, second: value) in the order of their keys.
    iterator begin() { return m_entries.begin(); }              ///< the lowest key
    iterator end() { return m_entries.end(); }                  ///< behind the highest key
    const_iterator begin() const { return m_entries.begin(); }  ///< the lowest key
    const_iterator end() const { return m_entries.end(); }      ///< behind the highest key

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
    CKRMBaseAdaptationData() = default;                                          ///< as after Clear
    CKRMBaseAdaptationData(const CKRMBaseAdaptationData&) = default;             ///< type, ID and status
    CKRMBaseAdaptationData& operator=(const CKRMBaseAdaptationData&) = default;  ///< type, ID and status
    /// For deleting a message through its base.
    virtual ~CKRMBaseAdaptationData();

    /// Resets type, ID and status to 0.
    virtual void Clear();

    /// The family: 1, 2, 8, 10 or 14; see krm::CommandFamily.
    krm_ulong GetCommandType() const { return m_dwCommandType; }
    /// Each message sets its own; a caller has no reason to.
    void SetCommandType(krm_ulong type) { m_dwCommandType = type; }
    /// The command within the family; see krm::kCommands.
    krm_ulong GetCommandID() const { return m_dwCommandID; }
    /// Each message sets its own; Clear restores it.
    void SetCommandID(krm_ulong id) { m_dwCommandID = id; }

private:
    krm_ulong m_dwCommandType = 0;
    krm_ulong m_dwCommandID = 0;
    unsigned char m_uchStatus = 0;  // belongs to whoever transports the message; copied, never read here
};

/// What went wrong, as the failing operation reports it.
class KRM_PLATFORM_API CKRMError {
public:
    CKRMError() = default;                             ///< code 0, details empty
    CKRMError(const CKRMError&) = default;             ///< the code and all details
    CKRMError& operator=(const CKRMError&) = default;  ///< the code and all details
    /// For deleting an error of a derived class.
    virtual ~CKRMError();

    /// Sets the code and its five details: module, class, function, the function's arguments, message.
    virtual void SetError(krm_ulong code, const CKRMString& moduleName, const CKRMString& className,
                          const CKRMString& functionName, const CKRMString& functionArgs, const CKRMString& message);
    /// The code; 0 is success.
    virtual krm_ulong GetErrorCode() const;
    /// Sets the code alone; the details stay.
    virtual void SetErrorCode(krm_ulong code);

    krm_ulong a_ulReturnCode = 0;       ///< the code; 0 is success
    CKRMString a_strErrorModuleName;    ///< library or program that failed
    CKRMString a_strErrorClassName;     ///< class that failed
    CKRMString a_strErrorFunctionName;  ///< function that failed
    CKRMString a_strErrorFunctionArgs;  ///< what that function was called with
    CKRMString a_strMessage;            ///< text for people
};

/// Receives each line of the operation log with the arguments of KRMC_ER_WriteOperationLog. `text` is valid during the
/// call only.
using KRMC_ER_OperationLogSink = krm_long (*)(void* context, const char* text, krm_ulong textLength, int first,
                                              int second);

/// Hands one line to the sink and returns the sink's result. A null text counts as an empty one.
KRM_PLATFORM_API krm_long KRMC_ER_WriteOperationLog(const char* text, krm_ulong textLength, int first, int second);

/// Hands a line to KRMC_ER_WriteOperationLog that CKRMString::FormatV would make of `format` and the arguments, which are used
/// up. A line of usual length needs no block of memory on its way. A platform may leave this function out: its lines are
/// then strings first.
KRM_PLATFORM_API krm_long KRMC_ER_FormatOperationLog(const char* format, std::va_list arguments, int first, int second)
    KRM_PRINTF_LIKE(1, 0);

/// Replaces the sink; null restores the default, which writes each line to standard error. The sink serves the whole
/// process: set it before other threads write, and let it do its own locking.
KRM_PLATFORM_API void KRMC_ER_SetOperationLogSink(KRMC_ER_OperationLogSink sink, void* context);

#endif  // KRM_PLATFORM_PLATFORM_H_
