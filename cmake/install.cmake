# What a user gets: the libraries, the public headers, find_package(krm) and pkg-config's files. Three components: what
# programs need that were linked to the shared libraries (krm_runtime), what is needed to build them (krm_development), and
# the program krm with what belongs to it (krm_tools). Another platform than the stand-in brings its own.
include(CMakePackageConfigHelpers)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME krm_development)
set(_krm_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/krm)

set(_krm_libraries)
foreach(_krm_library platform adaptation_data exchange)
    if(TARGET krm_${_krm_library})
        list(APPEND _krm_libraries ${_krm_library})
    endif()
endforeach()
set(_krm_left_out)
if(NOT TARGET krm_exchange)
    set(_krm_left_out PATTERN exchange EXCLUDE)
endif()

# Shared and static libraries may go to one prefix, from a build of each: they have a file of targets each.
get_target_property(_krm_kind krm_adaptation_data TYPE)
string(TOLOWER "${_krm_kind}" _krm_kind)
string(REPLACE "_library" "" _krm_kind "${_krm_kind}")
list(TRANSFORM _krm_libraries PREPEND krm_ OUTPUT_VARIABLE _krm_targets)
install(TARGETS ${_krm_targets} EXPORT krm-${_krm_kind}-targets
    RUNTIME COMPONENT krm_runtime
    LIBRARY COMPONENT krm_runtime NAMELINK_COMPONENT krm_development
    ARCHIVE COMPONENT krm_development)
install(EXPORT krm-${_krm_kind}-targets NAMESPACE krm:: DESTINATION ${_krm_package_dir})
set(_krm_folders ${PROJECT_SOURCE_DIR}/krm/)
if(TARGET krm_platform)
    list(APPEND _krm_folders ${PROJECT_SOURCE_DIR}/platform/krm/platform)
endif()
install(DIRECTORY ${_krm_folders} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/krm
    FILES_MATCHING PATTERN "*.h" PATTERN internal EXCLUDE ${_krm_left_out})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/krm-config.cmake.in ${PROJECT_BINARY_DIR}/krm-config.cmake
    INSTALL_DESTINATION ${_krm_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/krm-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/krm-config.cmake ${PROJECT_BINARY_DIR}/krm-config-version.cmake
    DESTINATION ${_krm_package_dir})

# krm_pkg_config(NAME REQUIRES DESCRIPTION): krm_NAME.pc. It finds the tree from where it lies itself, so that the tree may be
# moved.
function(krm_pkg_config name requires description)
    set(folder ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${folder} OUTPUT_VARIABLE libraries)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY ${folder} OUTPUT_VARIABLE headers)
    get_target_property(library krm_${name} OUTPUT_NAME)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/krm.pc.in ${PROJECT_BINARY_DIR}/krm_${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/krm_${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
if(TARGET krm_platform)
    krm_pkg_config(platform "" "Texts, errors and the operation log of the vehicle-diagnosis exchange")
    krm_pkg_config(adaptation_data "krm_platform = ${PROJECT_VERSION}" "${PROJECT_DESCRIPTION}")
    if(TARGET krm_exchange)
        krm_pkg_config(exchange "krm_adaptation_data = ${PROJECT_VERSION}"
            "Messages of the vehicle-diagnosis exchange as JSON, compared and recorded")
    endif()
endif()
if(TARGET krm_cli AND NOT WIN32)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/krm.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT krm_tools)
endif()

# Beside a DLL lie what other linkers than GNU's take: the list of what it exports, and an import library in Microsoft's form,
# where there is llvm-dlltool (Debian: llvm) to make it. A release has the compiler's own DLLs, too.
if(MINGW AND _krm_kind STREQUAL "shared")
    find_program(KRM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-19 llvm-dlltool-14 DOC "LLVM's dlltool, which makes import libraries in Microsoft's form")
    set(_krm_machine i386)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        set(_krm_machine i386:x86-64)
    endif()
    foreach(_krm_target IN LISTS _krm_targets)
        get_target_property(_krm_name ${_krm_target} OUTPUT_NAME)
        set(_krm_exports ${PROJECT_BINARY_DIR}/krm/${_krm_name})
        target_link_options(${_krm_target} PRIVATE LINKER:--output-def,${_krm_exports}.def)
        install(FILES ${_krm_exports}.def DESTINATION ${CMAKE_INSTALL_LIBDIR})
        if(KRM_DLLTOOL)
            add_custom_command(OUTPUT ${_krm_exports}.lib
                COMMAND ${KRM_DLLTOOL} -m ${_krm_machine} -D ${_krm_name}.dll -d ${_krm_exports}.def -l ${_krm_exports}.lib
                DEPENDS ${_krm_target} VERBATIM)
            add_custom_target(${_krm_target}_lib ALL DEPENDS ${_krm_exports}.lib)
            install(FILES ${_krm_exports}.lib DESTINATION ${CMAKE_INSTALL_LIBDIR})
        endif()
    endforeach()
    if(KRM_RELEASE)
        install(FILES ${KRM_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT krm_runtime)
    endif()
endif()
