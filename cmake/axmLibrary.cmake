# What every target of the house has in common: the standard, the warnings, where its outputs lie.

include(GNUInstallDirs)

if(PROJECT_IS_TOP_LEVEL)
  # One folder for programs and one for libraries, so that a program started from the build tree finds its DLLs.
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
  set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
endif()

add_library(axm_options INTERFACE)
target_compile_features(axm_options INTERFACE cxx_std_17)
target_compile_options(axm_options INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wpedantic -Wconversion -Wshadow>
  $<$<AND:$<BOOL:${AXM_WARNINGS_AS_ERRORS}>,$<CXX_COMPILER_ID:GNU,Clang>>:-Werror>)

# axm_add_library(NAME HEADERS ... SOURCES ... [PUBLIC ...] [PRIVATE ...] [PRIVATE_INCLUDES ...])
# One library of the house, as target NAME and axm::NAME. Headers are found by their bare name in the build tree and,
# installed, in one flat folder a library.
function(axm_add_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;SOURCES;PUBLIC;PRIVATE;PRIVATE_INCLUDES")
  string(TOUPPER ${name} upper)

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
    DEFINE_SYMBOL ${upper}_BUILDING)
  if(NOT BUILD_SHARED_LIBS)
    target_compile_definitions(${name} PUBLIC AXM_STATIC)
  endif()

  set(folders "")
  foreach(header IN LISTS arg_HEADERS)
    cmake_path(ABSOLUTE_PATH header NORMALIZE)
    cmake_path(GET header PARENT_PATH folder)
    list(APPEND folders ${folder})
  endforeach()
  list(REMOVE_DUPLICATES folders)
  target_include_directories(${name} PUBLIC "$<BUILD_INTERFACE:${folders}>"
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/axm/${name}>
    PRIVATE ${arg_PRIVATE_INCLUDES})

  install(FILES ${arg_HEADERS} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/axm/${name})
  install(TARGETS ${name} EXPORT axmTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
endfunction()
