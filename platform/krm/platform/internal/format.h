// printf-style formatting that no locale and no C library's peculiarity reaches. Part of the platform library's inside.
#ifndef KRM_PLATFORM_INTERNAL_FORMAT_H_
#define KRM_PLATFORM_INTERNAL_FORMAT_H_

#include <cstdarg>
#include <string>

namespace krm::platform {

/// Assigns `format` filled with `arguments` to `result`, as printf prints it in the C locale. The arguments may be texts of
/// `result` itself.
///
/// All conversions of C but wide characters (`%lc`, `%ls`) and `%n`, which writes nothing; `l`, `ll`, `h`, `hh`, `z`, `j`,
/// `t` and `L` give the argument's size; a `long double` prints with the precision of a double. A null text prints as
/// "(null)". Numbers go through std::to_chars: correctly rounded and the same everywhere. What is no conversion prints
/// as its last character.
void AssignFormatted(std::string& result, const char* format, std::va_list arguments);

}  // namespace krm::platform

#endif  // KRM_PLATFORM_INTERNAL_FORMAT_H_
