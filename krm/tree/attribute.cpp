#include "krm/tree/attribute.h"

#include <new>

#include "krm/tree/internal/chain.h"
#include "krm/tree/internal/operation.h"

using namespace krm::tree;

namespace {

/// A copy of `text`, or null when memory is short.
CKRMString* NewString(const char* text) {
    try {
        return new (std::nothrow) CKRMString(text);
    } catch (const std::bad_alloc&) {  // the text's own memory
        return nullptr;
    }
}

}  // namespace

CKRMCAttribute::CKRMCAttribute(const char* name)
    : CKRMCNode(kAttributeKind, name), m_ulValueType(kEmptyValue), m_pValue(nullptr) {}

// Qualified calls: overriding setters can't be reached from here anyway.

CKRMCAttribute::CKRMCAttribute(const char* name, const char* value) : CKRMCAttribute(name) {
    CKRMCAttribute::SetValue(nullptr, value);
}

CKRMCAttribute::CKRMCAttribute(const char* name, double value) : CKRMCAttribute(name) {
    CKRMCAttribute::SetValue(nullptr, value);
}

CKRMCAttribute::CKRMCAttribute(const char* name, krm_long value) : CKRMCAttribute(name) {
    CKRMCAttribute::SetValue(nullptr, value);
}

CKRMCAttribute::CKRMCAttribute(const char* name, krm_ulong value) : CKRMCAttribute(name) {
    CKRMCAttribute::SetValue(nullptr, value);
}

CKRMCAttribute::~CKRMCAttribute() {
    CKRMCAttribute::ClearValue();
}

krm_ulong CKRMCAttribute::Description(CKRMString& out) {
    DescriptionWriter text(out);
    Chain::AppendAttribute(*this, text);  // this one in any case: a derived class calls its base's
    CKRMCNode* const other = Chain::AppendAttributes(m_pcNext, text);
    text.Flush();
    return other != nullptr ? other->Description(out) : 0;
}

bool CKRMCAttribute::ClearValue() {
    if (m_ulValueType == kStringValue) {
        delete static_cast<CKRMString*>(m_pValue);
    } else {
        ::operator delete(m_pValue);
    }
    m_pValue = nullptr;
    m_ulValueType = kEmptyValue;
    return true;
}

bool CKRMCAttribute::CompareValue(CKRMError* error, CKRMCAttribute* other) {
    Operation operation(error);
    if (other == nullptr) {
        operation.Fail(kNullArgument);
        return false;
    }
    if (m_pValue == nullptr || other->m_pValue == nullptr) {
        operation.Fail(kValueUnset);
        return false;
    }
    if (m_ulValueType != other->m_ulValueType) {
        operation.Fail(kDifferentTypes);
        return false;
    }
    switch (m_ulValueType) {
        case kStringValue:
            return static_cast<const CKRMString*>(m_pValue)->Compare(other->GetString()) == 0;
        case kDoubleValue:
            return GetDouble() == other->GetDouble();
        case kLongValue:
            return GetLong() == other->GetLong();
        case kULongValue:
            return GetULong() == other->GetULong();
        default:
            operation.Fail(kUnknownValueType);
            return false;
    }
}

template <class Number>
bool CKRMCAttribute::SetNumber(CKRMError* error, krm_ulong type, Number value) {
    Operation operation(error);
    ClearValue();
    void* const memory = ::operator new(sizeof(Number), std::nothrow);
    m_pValue = memory;
    if (memory == nullptr) {
        operation.Fail(kOutOfMemory);
        return false;
    }
    new (memory) Number(value);
    m_ulValueType = type;
    return true;
}

bool CKRMCAttribute::SetValue(CKRMError* error, krm_ulong value) {
    return SetNumber(error, kULongValue, value);
}

bool CKRMCAttribute::SetValue(CKRMError* error, krm_long value) {
    return SetNumber(error, kLongValue, value);
}

bool CKRMCAttribute::SetValue(CKRMError* error, double value) {
    return SetNumber(error, kDoubleValue, value);
}

bool CKRMCAttribute::SetValue(CKRMError* error, const char* text) {
    Operation operation(error);
    if (text == nullptr) {
        operation.Fail(kNullArgument);
        return false;
    }
    // A text that replaces a text may be that very one, from GetString: it is copied before the old one goes.
    const bool replacesText = GetString() != nullptr;
    CKRMString* copy = replacesText ? NewString(text) : nullptr;
    ClearValue();
    if (!replacesText) {
        copy = NewString(text);
    }
    m_pValue = copy;
    if (copy == nullptr) {
        operation.Fail(kOutOfMemory);
        return false;
    }
    m_ulValueType = kStringValue;
    return true;
}

template <class T>
T* CKRMCAttribute::Held(krm_ulong type) const {
    return m_ulValueType == type ? static_cast<T*>(m_pValue) : nullptr;
}

const char* CKRMCAttribute::GetString() const {
    const CKRMString* const text = Held<CKRMString>(kStringValue);
    return text != nullptr ? text->GetText() : nullptr;
}

double CKRMCAttribute::GetDouble() const {
    const double* const number = Held<double>(kDoubleValue);
    return number != nullptr ? *number : 0;
}

krm_long CKRMCAttribute::GetLong() const {
    const krm_long* const number = Held<krm_long>(kLongValue);
    return number != nullptr ? *number : 0;
}

krm_ulong CKRMCAttribute::GetULong() const {
    const krm_ulong* const number = Held<krm_ulong>(kULongValue);
    return number != nullptr ? *number : 0;
}
