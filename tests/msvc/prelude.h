// What the public headers take of the standard library, which is GCC's here (check.py); behind it they see a compiler that
// is neither GCC nor Linux, as MSVC is.
#include <array>
#include <cassert>
#include <charconv>
#include <chrono>
#include <cinttypes>
#include <climits>
#include <compare>
#include <concepts>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <functional>
#include <initializer_list>
#include <iosfwd>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <ostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#undef __GNUC__
#undef __linux__
#undef __ELF__
