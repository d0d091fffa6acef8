# Toolchain: Linux on another processor with Debian's cross compiler, for a toolchain file that sets _krm_machine. Programs
# run in qemu's user mode (Debian's qemu-user).
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${_krm_machine})
set(CMAKE_C_COMPILER ${_krm_machine}-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER ${_krm_machine}-linux-gnu-g++)
set(CMAKE_FIND_ROOT_PATH /usr/${_krm_machine}-linux-gnu)
# In the locale C: the machine's own may be in files whose bytes come in another order.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${_krm_machine} -E LC_ALL=C -L /usr/${_krm_machine}-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/cross.cmake)
