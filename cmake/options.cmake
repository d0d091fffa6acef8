# How this project's own targets are compiled; link `krm_options` privately. Users of the library get none of it.
add_library(krm_options INTERFACE)
target_compile_features(krm_options INTERFACE cxx_std_20)

if(MSVC)
    target_compile_options(krm_options INTERFACE /W4 /WX /permissive- /fp:precise /wd4251)
else()
    target_compile_options(krm_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
        # A fused multiply-add would round once where the conversions round twice.
        -ffp-contract=off)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        # The x87 registers keep more digits than a double has; SSE rounds each step as 64-bit builds do.
        target_compile_options(krm_options INTERFACE -msse2 -mfpmath=sse)
    endif()
endif()

option(KRM_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(KRM_SANITIZE)
    set(_krm_sanitizers -fsanitize=address,undefined,float-divide-by-zero,float-cast-overflow -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_compile_options(${_krm_sanitizers})
    add_link_options(${_krm_sanitizers})
endif()
