# How released binaries are compiled beside the usual: the processor and the loader catch what a fault would be abused for,
# and nothing in them tells where or when they were built: the time in a DLL's header is that of SOURCE_DATE_EPOCH, which the
# linker and `strip` take it from.
option(KRM_RELEASE "Build as for a release: hardened, and the same bytes in any folder" OFF)
if(NOT KRM_RELEASE OR MSVC)
    return()
endif()
target_compile_options(krm_options INTERFACE
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build
    -fstack-protector-strong -U_FORTIFY_SOURCE)
if(WIN32)
    # Of MinGW-w64 10, _FORTIFY_SOURCE would need a DLL more; the guard of the stack becomes a part of each library.
    target_link_libraries(krm_options INTERFACE -l:libssp.a)
    target_link_options(krm_options INTERFACE LINKER:--dynamicbase,--nxcompat)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        target_link_options(krm_options INTERFACE LINKER:--high-entropy-va)
    endif()
else()
    # The linker's build ID is made of all that it writes, also of where libraries lie that the installed file looks for
    # elsewhere.
    set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
    target_compile_options(krm_options INTERFACE -D_FORTIFY_SOURCE=2 -fstack-clash-protection)
    target_link_options(krm_options INTERFACE LINKER:-z,relro,-z,now,-z,noexecstack)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$" AND CMAKE_SIZEOF_VOID_P EQUAL 8)
        # Every function that is called through a pointer begins with a mark, and the shadow stack is allowed.
        target_compile_options(krm_options INTERFACE -fcf-protection=full)
        target_link_options(krm_options INTERFACE LINKER:-z,shstk)
    endif()
    if(PROJECT_IS_TOP_LEVEL)
        include(CheckPIESupported)
        check_pie_supported(LANGUAGES CXX)
        set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    endif()
endif()
