// The error codes of the library: what converters return as their status, and what the element tree reports in the error
// object. docs/interface.md says which operation gives which; krm::ErrorText (krm/framework/errors.h) has them in words.
#ifndef KRM_CORE_ERROR_CODES_H_
#define KRM_CORE_ERROR_CODES_H_

#include "krm/core/types.h"

namespace krm {

/// An argument that is required is null, or is a count of 0 bytes.
inline constexpr krm_ulong kNullArgument = 1100100001;

// The element tree's alone.
inline constexpr krm_ulong kOutOfMemory = 2100100002;       ///< a value or node can't be allocated
inline constexpr krm_ulong kNoSuchAttribute = 2100100101;   ///< the attribute to remove is not in this element
inline constexpr krm_ulong kNoSuchElement = 2100100102;     ///< the element to remove is not in this group
inline constexpr krm_ulong kNoSuchGroup = 2100100103;       ///< no group of that name, or it is not in this element
inline constexpr krm_ulong kUnknownValueType = 2100100121;  ///< values of a type that can't be compared
inline constexpr krm_ulong kDifferentTypes = 2100100122;    ///< values of different types
inline constexpr krm_ulong kValueUnset = 2100100123;        ///< one of the two values is unset

}  // namespace krm

#endif  // KRM_CORE_ERROR_CODES_H_
