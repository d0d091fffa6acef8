# What programs with a command line need that the library doesn't: CLI11, which reads it, and zlib, which packs and unpacks.
include(CheckCXXSourceCompiles)

# krm_find_cli11(VARIABLE): sets VARIABLE to a directory that holds CLI11's headers alone, or to nothing. It is header-only
# (Debian: libcli11-dev), so one copy serves every target; a directory of its own keeps /usr/include itself off the include
# path, where a cross compiler would find the wrong C library.
function(krm_find_cli11 variable)
    find_path(KRM_CLI11_DIR CLI/CLI.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH
        DOC "Directory that holds CLI/CLI.hpp")
    set(${variable} "" PARENT_SCOPE)
    if(KRM_CLI11_DIR)
        set(include ${PROJECT_BINARY_DIR}/include_cli11)
        file(MAKE_DIRECTORY ${include})
        file(CREATE_LINK ${KRM_CLI11_DIR}/CLI ${include}/CLI SYMBOLIC COPY_ON_ERROR)
        set(${variable} ${include} PARENT_SCOPE)
    endif()
endfunction()

# krm_find_zlib(VARIABLE): sets VARIABLE to what links zlib (zlib1g-dev, libz-mingw-w64-dev), or to nothing where the target
# has none. On Windows it becomes a part of the program, so that no further DLL must lie beside it.
function(krm_find_zlib variable)
    set(zlib z)
    if(MINGW)
        set(zlib -l:libz.a)
    endif()
    set(CMAKE_REQUIRED_LIBRARIES ${zlib})
    check_cxx_source_compiles("#include <zlib.h>\nint main() { return zlibVersion() == nullptr; }" KRM_HAVE_ZLIB)
    if(NOT KRM_HAVE_ZLIB)
        set(zlib "")
    endif()
    set(${variable} ${zlib} PARENT_SCOPE)
endfunction()
