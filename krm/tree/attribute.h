// CKRMCAttribute: a named value of an element.
#ifndef KRM_TREE_ATTRIBUTE_H_
#define KRM_TREE_ATTRIBUTE_H_

#include "krm/tree/node.h"

namespace krm::tree {

// Types of values, as CKRMCAttribute::GetValueType gives them and descriptions print them.
inline constexpr krm_ulong kEmptyValue = 0;   ///< no value
inline constexpr krm_ulong kStringValue = 1;  ///< a text
inline constexpr krm_ulong kDoubleValue = 2;  ///< a double
inline constexpr krm_ulong kLongValue = 3;    ///< a signed 32-bit number
inline constexpr krm_ulong kULongValue = 4;   ///< an unsigned 32-bit number

}  // namespace krm::tree

/// A name with a value, which is empty, a text, a double, or a signed or unsigned 32-bit number. The type may change with
/// every SetValue; no operation converts one type into another.
///
/// An integer literal fits several of these types. Give it the one you mean, `krm_long(7)` or `krm_ulong(7)`: the plain
/// `7` and `7L` compile on some platforms only.
///
/// Copies share the value with the original, and both free it. Don't copy an attribute that has one: krm::tree::Clone
/// does that.
class KRM_API CKRMCAttribute : public CKRMCNode {
public:
    /// Empty. A null name gives an empty one, here and below; a value that can't be set (out of memory, or a null text)
    /// leaves the attribute empty, which nothing reports but GetValueType().
    explicit CKRMCAttribute(const char* name);
    CKRMCAttribute(const char* name, const char* value);         ///< with a copy of the text
    CKRMCAttribute(const char* name, double value);              ///< with a double
    CKRMCAttribute(const char* name, krm_long value);            ///< with a signed number
    CKRMCAttribute(const char* name, krm_ulong value);           ///< with an unsigned number
    CKRMCAttribute(const CKRMCAttribute&) = default;             ///< member-wise: shares the value
    CKRMCAttribute& operator=(const CKRMCAttribute&) = default;  ///< member-wise: the value held before is not freed
    /// Frees the value, then destroys the following siblings.
    ~CKRMCAttribute() override;

    /// Appends ` name[type]="value"`, then what the following siblings append. An empty value is written as NULL.
    krm_ulong Description(CKRMString& out) override;
    /// Frees the value and makes the attribute empty. Always true.
    virtual bool ClearValue();
    /// Whether both hold the same value of the same type. Doubles compare exactly: 0.0 equals -0.0, a NaN equals nothing.
    /// False with an error code when `other` is null (kNullArgument), when one of the two is empty (kValueUnset), when
    /// the types differ (kDifferentTypes) or are none of the known ones (kUnknownValueType); false without one when the
    /// values differ.
    virtual bool CompareValue(CKRMError* error, CKRMCAttribute* other);
    KRM_OVERLOADS_4(
        /// Sets value and type to an unsigned number. False when memory is short (kOutOfMemory), which leaves the attribute
        /// empty.
        virtual bool SetValue(CKRMError* error, krm_ulong value),
        /// The same with a signed number.
        virtual bool SetValue(CKRMError* error, krm_long value),
        /// The same with a double.
        virtual bool SetValue(CKRMError* error, double value),
        /// The same with a copy of a text, which may be this attribute's own. False also for a null `text`
        /// (kNullArgument), which leaves the attribute as it was.
        virtual bool SetValue(CKRMError* error, const char* text));

    /// The type of the value: krm::tree::kStringValue and so on, kEmptyValue while there is none.
    krm_ulong GetValueType() const { return m_ulValueType; }
    /// The text, valid until the value changes; null unless the value is a text.
    const char* GetString() const;
    double GetDouble() const;    ///< the number of a kDoubleValue; 0 for a value of any other type
    krm_long GetLong() const;    ///< the number of a kLongValue; 0 for a value of any other type
    krm_ulong GetULong() const;  ///< the number of a kULongValue; 0 for a value of any other type

protected:
    krm_ulong m_ulValueType;  ///< krm::tree::kEmptyValue and so on
    /// Owned: a CKRMString from `new` for a text, else plain memory from `operator new`; null while empty.
    void* m_pValue;

private:
    template <class T>
    T* Held(krm_ulong type) const;
    template <class Number>
    bool SetNumber(CKRMError* error, krm_ulong type, Number value);

    friend struct krm::tree::Chain;
};

#endif  // KRM_TREE_ATTRIBUTE_H_
