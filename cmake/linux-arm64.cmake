# Toolchain: 64-bit ARM Linux (Debian's g++-aarch64-linux-gnu). Plain char is unsigned and long double has 128 bits.
set(_krm_machine aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/linux-cross.cmake)
