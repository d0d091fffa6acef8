# How this project's own targets are compiled; link `krm_options` privately. Users of the library get none of it.
add_library(krm_options INTERFACE)
target_compile_features(krm_options INTERFACE cxx_std_20)

if(MSVC)
    target_compile_options(krm_options INTERFACE /W4 /permissive- /fp:precise /wd4251)
else()
    target_compile_options(krm_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        # A fused multiply-add would round once where the conversions round twice.
        -ffp-contract=off)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "^(i.86|x86|x86_64|AMD64)$")
        # 32-bit x86, also on a 64-bit machine: the x87 registers keep more digits than a double has; SSE rounds each step
        # as 64-bit builds do.
        target_compile_options(krm_options INTERFACE -msse2 -mfpmath=sse)
    endif()
endif()
if(KRM_WERROR)
    target_compile_options(krm_options INTERFACE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX,-Werror>)
endif()

set(KRM_SANITIZE OFF CACHE STRING
    "Sanitizers: OFF; ON or address (with undefined behaviour); thread; clang (address, with Clang's further checks)")
set_property(CACHE KRM_SANITIZE PROPERTY STRINGS OFF ON address thread clang)
if(KRM_SANITIZE)
    set(_krm_checks undefined,float-divide-by-zero,float-cast-overflow)
    if(KRM_SANITIZE STREQUAL "thread")
        set(_krm_sanitizers thread)
    elseif(KRM_SANITIZE STREQUAL "clang")
        # Conversions of integers that change the value: intended ones say so with a cast.
        set(_krm_sanitizers address,${_krm_checks},implicit-conversion)
        add_compile_options(-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/sanitize-ignore.txt)
    else()
        set(_krm_sanitizers address,${_krm_checks})
    endif()
    set(_krm_sanitizers -fsanitize=${_krm_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_options(${_krm_sanitizers})
    add_link_options(${_krm_sanitizers})
endif()
