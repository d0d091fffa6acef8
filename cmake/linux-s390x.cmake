# Toolchain: s390x Linux (Debian's g++-s390x-linux-gnu). The highest byte comes first, plain char is unsigned, and long
# double has 128 bits.
set(_krm_machine s390x)
include(${CMAKE_CURRENT_LIST_DIR}/linux-cross.cmake)
