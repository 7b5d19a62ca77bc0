# The sources are those that the port lies in.
get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

vcpkg_check_features(OUT_FEATURE_OPTIONS options
  FEATURES
    command AXM_BUILD_COMMAND
)
vcpkg_cmake_configure(
  SOURCE_PATH "${SOURCE_PATH}"
  OPTIONS
    ${options}
)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME axm CONFIG_PATH lib/cmake/axm)
vcpkg_fixup_pkgconfig()
vcpkg_copy_pdbs()
if("command" IN_LIST FEATURES)
  vcpkg_copy_tools(TOOL_NAMES axm AUTO_CLEAN)
endif()

file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share"
  "${CURRENT_PACKAGES_DIR}/share/doc")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/NOTICE")
