// Integer types and export marks that every header of the library shares.
//
// krm/core/ is the ground floor: these types, CKRMList (list.h) and CKRMBinary (binary.h). It includes nothing of the
// other folders.
#ifndef KRM_CORE_TYPES_H_
#define KRM_CORE_TYPES_H_

// The include that can't be found ends the compilation here: what would follow are hundreds of errors without a meaning.
#if defined(_MSVC_LANG) ? _MSVC_LANG < 202002L : __cplusplus < 202002L
#error "krm needs C++20: compile with -std=c++20, or /std:c++20"
#include <krm_needs_C++20>
#endif

#include <climits>
#include <cstdint>

/// Unsigned 32-bit number of the interface. It is `unsigned long` wherever that has 32 bits (Windows, 32-bit Linux), so
/// that the interface there is exactly the documented one (docs/interface.md), and `std::uint32_t` elsewhere, so that a
/// 64-bit build stores and wraps the same values.
/// `krm_long` is its signed twin.
#if ULONG_MAX == 0xFFFFFFFFUL
using krm_ulong = unsigned long;
using krm_long = long;
#else
using krm_ulong = std::uint32_t;
/// Signed 32-bit number of the interface: `long` wherever that has 32 bits, `std::int32_t` elsewhere.
using krm_long = std::int32_t;
#endif

/// Signed 64-bit integer: the result of sign handling in the converters.
using krm_int64 = std::int64_t;

// What printf's conversions need for a krm_ulong (u, X, x) or krm_long (d), which differ in type from platform to platform:
//
//     std::printf("ECU %" KRM_PRIu ", %08" KRM_PRIX "\n", ecu.m_ulEcuId, ecu.m_ulEcuId);
#if ULONG_MAX == 0xFFFFFFFFUL
#define KRM_PRIu "lu"
#define KRM_PRId "ld"
#define KRM_PRIX "lX"
#define KRM_PRIx "lx"
#else
#define KRM_PRIu "u"  ///< what printf needs for a krm_ulong in decimal: `"%" KRM_PRIu`
#define KRM_PRId "d"  ///< what printf needs for a krm_long in decimal: `"%" KRM_PRId`
#define KRM_PRIX "X"  ///< what printf needs for a krm_ulong in upper-case hexadecimal: `"%08" KRM_PRIX`
#define KRM_PRIx "x"  ///< what printf needs for a krm_ulong in lower-case hexadecimal: `"%08" KRM_PRIx`
#endif

static_assert(sizeof(krm_ulong) == 4 && sizeof(krm_long) == 4 && sizeof(int) == 4 && CHAR_BIT == 8,
              "the interface is defined on 8-bit bytes and 32-bit numbers");

// KRM_API marks a class or function that the library exports, KRM_PLATFORM_API one of the platform library. Static
// libraries (KRM_STATIC, which CMake's targets hand on) export and import nothing.
//
// Members of the list template are marked one by one (KRM_TEMPLATE_MEMBER), and only while a library is built: an
// explicit instantiation exports just the members that carry a mark themselves, and a user who saw them as imported
// could not instantiate a list of his own. KRM_TEMPLATE_CLASS is the same thing for ELF, where visibility belongs to the
// class template; KRM_TEMPLATE_PRIVATE takes its inner workings out again.
#if defined(KRM_STATIC)
#define KRM_API
#define KRM_PLATFORM_API
#define KRM_TEMPLATE_MEMBER
#define KRM_TEMPLATE_INLINE inline
#define KRM_TEMPLATE_CLASS
#define KRM_TEMPLATE_PRIVATE
#elif defined(_WIN32)
#if defined(KRM_BUILDING_ADAPTATION_DATA)
#define KRM_API __declspec(dllexport)
#else
#define KRM_API __declspec(dllimport)
#endif
#if defined(KRM_BUILDING_PLATFORM)
#define KRM_PLATFORM_API __declspec(dllexport)
#else
#define KRM_PLATFORM_API __declspec(dllimport)
#endif
#if defined(KRM_BUILDING_ADAPTATION_DATA) || defined(KRM_BUILDING_PLATFORM)
#define KRM_TEMPLATE_MEMBER __declspec(dllexport)
#define KRM_TEMPLATE_INLINE  // an inline member would not be exported
#else
#define KRM_TEMPLATE_MEMBER
#define KRM_TEMPLATE_INLINE inline
#endif
#define KRM_TEMPLATE_CLASS
#define KRM_TEMPLATE_PRIVATE
#else
#define KRM_API __attribute__((visibility("default")))             ///< marks what krm::adaptation_data exports
#define KRM_PLATFORM_API __attribute__((visibility("default")))    ///< marks what krm::platform exports
#define KRM_TEMPLATE_MEMBER                                        ///< marks an exported member of the list; for list.h
#define KRM_TEMPLATE_INLINE inline                                 ///< a member that may be compiled in; for list.h
#define KRM_TEMPLATE_CLASS __attribute__((visibility("default")))  ///< the list itself; for list.h
#define KRM_TEMPLATE_PRIVATE __attribute__((visibility("hidden")))  ///< takes a member out again; for list.h
#endif

/// Lets GCC and Clang check the arguments of a printf-like function; positions count `this` as the first.
#if defined(__GNUC__)
#define KRM_PRINTF_LIKE(formatPosition, firstArgument) __attribute__((format(printf, formatPosition, firstArgument)))
#else
#define KRM_PRINTF_LIKE(formatPosition, firstArgument)
#endif

#if defined(_MSC_VER)
#define KRM_OVERLOADS_2(first, second) \
    second;                            \
    first
#define KRM_OVERLOADS_4(first, second, third, fourth) \
    fourth;                                           \
    third;                                            \
    second;                                           \
    first
#else
/// Declares the virtual overloads of one name in the order of their slots, which is part of the interface. Compilers give
/// slots in the order of declaration, but MSVC, and whoever follows it, takes the overloads of a name from the last to
/// the first; so there they are declared the other way round.
#define KRM_OVERLOADS_2(first, second) \
    first;                             \
    second
/// The same of four overloads.
#define KRM_OVERLOADS_4(first, second, third, fourth) \
    first;                                            \
    second;                                           \
    third;                                            \
    fourth
#endif

#endif  // KRM_CORE_TYPES_H_
