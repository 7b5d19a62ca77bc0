# Debian packages, made by cpack from a build tree with AXM_DEBIAN_PACKAGES:
#   libaxm1      the libraries                 libaxm-dev   headers, CMake package, pkg-config files
#   axm          the command                   axm-doc      documentation and examples
# The installation is laid out as the policy of Debian has it: axmLibrary.cmake.

set(AXM_PACKAGE_CONTACT "The maintainers of axm <maintainers@axm.example>" CACHE STRING
  "Who the packages are from: Name <address>")

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL axm_runtime axm_development axm_command axm_documentation)
set(CPACK_PACKAGE_NAME axm)
set(CPACK_PACKAGE_VENDOR "The maintainers of axm")
set(CPACK_PACKAGE_CONTACT "${AXM_PACKAGE_CONTACT}")
# The default of cpack: another one would stand before what each package says of itself.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${CMAKE_PROJECT_NAME} built using CMake")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_THREADS 0)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian_files.cmake)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(debian_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

# describe_package(COMPONENT NAME SECTION SUMMARY TEXT): of the text, each line follows a line break and has no indentation.
macro(describe_package component name section summary text)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}\n${text}")
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
    COMPONENT ${component})
  install(FILES ${PROJECT_BINARY_DIR}/changelog.Debian DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
    COMPONENT ${component})
endmacro()

describe_package(axm_runtime libaxm1 libs
  "one way to work with XML from C++, whatever engine - libraries"
  "axm gives C++ applications interfaces for XML documents, a contract for engines
that are found at run time, and a streaming reader.
.
This package has the libraries, with the default engine, axs.")
set(CPACK_DEBIAN_AXM_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_AXM_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/triggers)

describe_package(axm_development libaxm-dev libdevel
  "one way to work with XML from C++, whatever engine - development"
  "axm gives C++ applications interfaces for XML documents, a contract for engines
that are found at run time, and a streaming reader.
.
This package has the headers, and what CMake (find_package) and pkg-config need
to find the libraries.")
set(CPACK_DEBIAN_AXM_DEVELOPMENT_PACKAGE_DEPENDS "libaxm1 (= ${debian_version})")
set(CPACK_DEBIAN_AXM_DEVELOPMENT_PACKAGE_SUGGESTS "axm-doc, pkg-config")

describe_package(axm_command axm text
  "query, check, edit and convert XML documents in the shell"
  "The command axm takes fields out of XML documents, checks them against XML
Schema, selects by XPath, edits without touching anything else, lays out,
compares, converts to JSON and writes canonical XML.")
set(CPACK_DEBIAN_AXM_COMMAND_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_AXM_COMMAND_PACKAGE_DEPENDS "libaxm1 (>= ${PROJECT_VERSION})")

describe_package(axm_documentation axm-doc doc
  "one way to work with XML from C++, whatever engine - documentation"
  "axm gives C++ applications interfaces for XML documents, a contract for engines
that are found at run time, and a streaming reader.
.
This package has the documentation and the examples.")
set(CPACK_DEBIAN_AXM_DOCUMENTATION_PACKAGE_ARCHITECTURE all)

# Of the packages; SOURCE_DATE_EPOCH sets another one.
set(ENV{LC_ALL} C)
string(TIMESTAMP AXM_DEBIAN_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(AXM_DEBIAN_VERSION ${debian_version})
configure_file(${PROJECT_SOURCE_DIR}/packaging/debian/changelog.in ${PROJECT_BINARY_DIR}/changelog.Debian @ONLY)

include(CPack)
