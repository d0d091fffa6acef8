# Untested: written without vcpkg at hand. An overlay port that builds the checkout that it lies in.
cmake_path(SET SOURCE_PATH NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../../..")

vcpkg_check_features(OUT_FEATURE_OPTIONS FEATURE_OPTIONS
    FEATURES
        exchange KRM_BUILD_EXCHANGE
        tools KRM_BUILD_CLI)

vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        ${FEATURE_OPTIONS}
        -DKRM_BUILD_TESTS=OFF
        -DKRM_BUILD_EXAMPLES=OFF
        -DKRM_BUILD_BENCHMARKS=OFF
        "-DKRM_RAPIDJSON_DIR=${CURRENT_INSTALLED_DIR}/include"
        "-DKRM_CLI11_DIR=${CURRENT_INSTALLED_DIR}/include"
    MAYBE_UNUSED_VARIABLES
        KRM_RAPIDJSON_DIR
        KRM_CLI11_DIR)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(CONFIG_PATH lib/cmake/krm)
vcpkg_fixup_pkgconfig()
if("tools" IN_LIST FEATURES)
    vcpkg_copy_tools(TOOL_NAMES krm AUTO_CLEAN)
endif()

file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/packaging/licence.txt")
