# Reads the version from krm/version.h into KRM_VERSION.
set(KRM_VERSION)
foreach(_krm_part MAJOR MINOR PATCH)
    file(STRINGS ${CMAKE_CURRENT_SOURCE_DIR}/krm/version.h _krm_line REGEX "^#define KRM_VERSION_${_krm_part} [0-9]+$")
    if(NOT _krm_line)
        message(FATAL_ERROR "krm/version.h does not define KRM_VERSION_${_krm_part} as a plain number")
    endif()
    string(REGEX MATCH "[0-9]+$" _krm_number "${_krm_line}")
    list(APPEND KRM_VERSION ${_krm_number})
endforeach()
list(JOIN KRM_VERSION . KRM_VERSION)
# A changed version configures anew.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/krm/version.h)
