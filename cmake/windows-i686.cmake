# Toolchain: 32-bit Windows (Debian's g++-mingw-w64-i686-posix).
set(_krm_machine i686)
set(_krm_unwinder dw2)
include(${CMAKE_CURRENT_LIST_DIR}/windows-mingw.cmake)
