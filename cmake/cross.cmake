# What every toolchain file for another platform shares: programs come from the host, libraries from the target.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Headers alone, without a library for one target, are found on the host too.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
