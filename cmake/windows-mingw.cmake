# Toolchain: Windows with MinGW-w64 of Debian, for a toolchain file that sets _krm_machine and _krm_unwinder. Tests run in
# wine where KRM_WINE names a command that takes a Windows program.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${_krm_machine})
set(CMAKE_C_COMPILER ${_krm_machine}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${_krm_machine}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${_krm_machine}-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${_krm_machine}-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/cross.cmake)
if(DEFINED ENV{KRM_WINE})
    set(KRM_WINE $ENV{KRM_WINE} CACHE STRING "Command that runs a Windows program" FORCE)
endif()
if(KRM_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${KRM_WINE})
endif()

# The compiler's runtime, which programs need beside them.
foreach(_krm_dll libstdc++-6.dll libgcc_s_${_krm_unwinder}-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${_krm_dll}
        OUTPUT_VARIABLE _krm_dll_path OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND KRM_RUNTIME_DLLS ${_krm_dll_path})
endforeach()
list(APPEND KRM_RUNTIME_DLLS /usr/${_krm_machine}-w64-mingw32/lib/libwinpthread-1.dll)
if(CMAKE_BINARY_DIR AND NOT CMAKE_BINARY_DIR MATCHES "CMakeFiles")
    file(COPY ${KRM_RUNTIME_DLLS} DESTINATION ${CMAKE_BINARY_DIR}/bin)
endif()
