// The error code that several folders share. Codes of one folder alone stand in its main header.
#ifndef KRM_CORE_ERROR_CODES_H_
#define KRM_CORE_ERROR_CODES_H_

#include "krm/core/types.h"

namespace krm {

/// An argument that is required is null, or is a count of 0 bytes. The converters return it as their status; the element
/// tree reports it in the error object.
inline constexpr krm_ulong kNullArgument = 1100100001;

}  // namespace krm

#endif  // KRM_CORE_ERROR_CODES_H_
