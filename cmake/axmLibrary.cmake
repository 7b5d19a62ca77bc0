# What every target of the house has in common: the standard, the warnings, where its outputs lie.

if(AXM_DEBIAN_PACKAGES)
  set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE})
endif()
include(GNUInstallDirs)

if(PROJECT_IS_TOP_LEVEL)
  # One folder for programs and one for libraries, so that a program started from the build tree finds its DLLs.
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
  set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
  # For cmake/check_style.sh.
  set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
endif()

set(AXM_CMAKE_FOLDER ${CMAKE_CURRENT_LIST_DIR})

add_library(axm_options INTERFACE)
target_compile_features(axm_options INTERFACE cxx_std_17)
target_compile_options(axm_options INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wpedantic -Wconversion -Wshadow>
  $<$<AND:$<BOOL:${AXM_WARNINGS_AS_ERRORS}>,$<CXX_COMPILER_ID:GNU,Clang>>:-Werror>)

# GCC for Windows exports the members of an instance of a class template only by a list of their symbols. It is taken from
# the objects that define them: the sources that instantiate one are therefore compiled by themselves, and taken out of
# the list `sources_variable`; without other export marks, for those would let type information of the standard library out.
function(axm_export_instances name sources_variable)
  set(instances "")
  foreach(source IN LISTS ${sources_variable})
    file(STRINGS ${source} found REGEX "^template class CO_SYMBOL_INSTANCE ")
    if(found)
      list(APPEND instances ${source})
    endif()
  endforeach()
  if(NOT instances)
    return()
  endif()
  list(REMOVE_ITEM ${sources_variable} ${instances})

  set(objects ${name}_instances)
  add_library(${objects} OBJECT EXCLUDE_FROM_ALL ${instances})
  target_link_libraries(${objects} PRIVATE axm_options)
  target_compile_definitions(${objects} PRIVATE AXM_STATIC)
  target_include_directories(${objects} PRIVATE $<TARGET_PROPERTY:${name},INCLUDE_DIRECTORIES>)

  set(definition ${CMAKE_CURRENT_BINARY_DIR}/${name}.def)
  add_custom_command(OUTPUT ${definition}
    COMMAND ${CMAKE_COMMAND} -DNM=${CMAKE_NM} "-DOBJECTS=$<TARGET_OBJECTS:${objects}>" -DOUTPUT=${definition}
      -P ${AXM_CMAKE_FOLDER}/windows/instances.cmake
    DEPENDS $<TARGET_OBJECTS:${objects}> ${AXM_CMAKE_FOLDER}/windows/instances.cmake
    VERBATIM)
  set(${sources_variable} ${${sources_variable}} $<TARGET_OBJECTS:${objects}> ${definition} PARENT_SCOPE)
endfunction()

# axm_install_library(NAME DESCRIPTION PUBLIC HEADERS)
# For programs that use the library: the targets of the package axm, and a file for pkg-config, axm.pc and axs.pc, and
# axm-NAME.pc for a support library.
function(axm_install_library name description public headers)
  install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/axm/${name} COMPONENT axm_development)
  install(TARGETS ${name} EXPORT axmTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT axm_runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT axm_runtime NAMELINK_COMPONENT axm_development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT axm_development)

  set(AXM_PC_NAME ${name})
  set(AXM_PC_DESCRIPTION ${description})
  list(TRANSFORM public REPLACE "^(co|ut|ap)$" "axm-\\1")
  list(JOIN public " " AXM_PC_REQUIRES)
  set(AXM_PC_DEFINITIONS "")
  if(NOT BUILD_SHARED_LIBS)
    set(AXM_PC_DEFINITIONS " -DAXM_STATIC")
  endif()
  # From where the file lies, wherever the installation is moved to.
  file(RELATIVE_PATH AXM_PC_INCLUDES ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_FULL_INCLUDEDIR})
  string(REGEX REPLACE "^(co|ut|ap)$" "axm-\\1" package ${name})
  configure_file(${AXM_CMAKE_FOLDER}/library.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT axm_development)
endfunction()

# axm_add_library(NAME DESCRIPTION ... HEADERS ... SOURCES ... [PUBLIC ...] [PRIVATE ...] [PRIVATE_INCLUDES ...])
# One library of the house, as target NAME and axm::NAME. Headers are found by their bare name in the build tree and,
# installed, in one flat folder a library. Inside another project it is built when something there links it.
function(axm_add_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION" "HEADERS;SOURCES;PUBLIC;PRIVATE;PRIVATE_INCLUDES")
  string(TOUPPER ${name} upper)

  if(MINGW AND BUILD_SHARED_LIBS)
    axm_export_instances(${name} arg_SOURCES)
  endif()
  add_library(${name} ${arg_SOURCES})
  add_library(axm::${name} ALIAS ${name})
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} $<BUILD_INTERFACE:axm_options>)
  target_compile_features(${name} PUBLIC cxx_std_17)
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    # Installed anywhere, a library finds those below it beside itself.
    INSTALL_RPATH $ORIGIN
    DEFINE_SYMBOL ${upper}_BUILDING)
  if(NOT PROJECT_IS_TOP_LEVEL AND NOT AXM_INSTALL)
    set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
  endif()
  # Nothing is meant to take the place of a function of ours in a program, so ours may be inlined within their library.
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>)
  if(NOT BUILD_SHARED_LIBS)
    target_compile_definitions(${name} PUBLIC AXM_STATIC)
  elseif(WIN32)
    # A DLL is found by its file name alone, so that bears the major version.
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_NAME ${name}-${PROJECT_VERSION_MAJOR})
  elseif(NOT APPLE)
    # All symbols are bound when the library is loaded: the table of them is read-only from then on, and the first document
    # of a process need not wait for them.
    target_link_options(${name} PRIVATE LINKER:--version-script=${AXM_CMAKE_FOLDER}/exports.map LINKER:-Bsymbolic-functions
      LINKER:-z,relro,-z,now)
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${AXM_CMAKE_FOLDER}/exports.map)
  endif()

  set(folders "")
  foreach(header IN LISTS arg_HEADERS)
    cmake_path(ABSOLUTE_PATH header NORMALIZE)
    set_property(TARGET ${name} APPEND PROPERTY AXM_HEADERS ${header})
    cmake_path(GET header PARENT_PATH folder)
    list(APPEND folders ${folder})
  endforeach()
  list(REMOVE_DUPLICATES folders)
  target_include_directories(${name} PUBLIC "$<BUILD_INTERFACE:${folders}>"
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/axm/${name}>
    PRIVATE ${arg_PRIVATE_INCLUDES})

  if(AXM_INSTALL)
    axm_install_library(${name} "${arg_DESCRIPTION}" "${arg_PUBLIC}" "${arg_HEADERS}")
  endif()
endfunction()

# axm_use_inside(TARGET LIBRARY): TARGET gets the objects of LIBRARY and its include folders, so that it can use what the
# library does not export. It links what LIBRARY links itself.
function(axm_use_inside target library)
  target_sources(${target} PRIVATE $<TARGET_OBJECTS:${library}>)
  target_include_directories(${target} PRIVATE $<TARGET_PROPERTY:${library},INCLUDE_DIRECTORIES>)
endfunction()
