# The package "axm": find_package(axm) brings axm::co, axm::ut, axm::ap, axm::axm and, where built, axm::axs. What is
# installed has four components: axm_runtime, axm_development, axm_command and axm_documentation.

include(CMakePackageConfigHelpers)

set(axm_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/axm)

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/axmConfig.cmake.in ${PROJECT_BINARY_DIR}/axmConfig.cmake
  INSTALL_DESTINATION ${axm_package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/axmConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/axmConfig.cmake ${PROJECT_BINARY_DIR}/axmConfigVersion.cmake
  DESTINATION ${axm_package_folder} COMPONENT axm_development)
install(EXPORT axmTargets NAMESPACE axm:: DESTINATION ${axm_package_folder} COMPONENT axm_development)

install(FILES README.md CHANGELOG.md NOTICE SECURITY.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT axm_documentation)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT axm_documentation
  FILES_MATCHING PATTERN "*.md" PATTERN site EXCLUDE)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT axm_documentation USE_SOURCE_PERMISSIONS
  FILES_MATCHING REGEX "\\.(cpp|h|xml|xsd|py|sh)$")
