# Toolchain: 64-bit Windows (Debian's g++-mingw-w64-x86-64-posix).
set(_krm_machine x86_64)
set(_krm_unwinder seh)
# Programs of many templates have more sections than the usual object format can number.
set(CMAKE_CXX_FLAGS_INIT -Wa,-mbig-obj)
include(${CMAKE_CURRENT_LIST_DIR}/windows-mingw.cmake)
