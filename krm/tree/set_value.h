// Sets an attribute's value from any text, as from a record's field:
//
//     krm::tree::SetValue(&error, *attribute, code.m_strDTC);
#ifndef KRM_TREE_SET_VALUE_H_
#define KRM_TREE_SET_VALUE_H_

#include <concepts>

#include "krm/platform/string.h"
#include "krm/tree/attribute.h"

namespace krm::tree {

/// As the member SetValue for a `const char*`, with its errors; any text ends at its first NUL here.
template <IsText Text>
bool SetValue(CKRMError* error, CKRMCAttribute& attribute, const Text& text) {
    if constexpr (IsString<Text>) {
        return attribute.SetValue(error, text.GetText());
    } else if constexpr (std::convertible_to<const Text&, const char*>) {
        return attribute.SetValue(error, static_cast<const char*>(text));
    } else {
        return attribute.SetValue(error, MakeString(text).GetText());
    }
}

}  // namespace krm::tree

#endif  // KRM_TREE_SET_VALUE_H_
