# axm_add_test(NAME SOURCES ... [LIBRARIES ...] [ENVIRONMENT ...])
# One GoogleTest program for a room. Natively each of its tests is a test of the runner; across an emulator, where
# starting a process is dear, the program is one test.

find_package(GTest REQUIRED)
include(GoogleTest)

function(axm_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES;ENVIRONMENT")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} axm_options GTest::gtest_main)
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT "${arg_ENVIRONMENT}")
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 600 ENVIRONMENT "${arg_ENVIRONMENT}")
  endif()
endfunction()

# axm_add_memory_test(NAME SOURCES ... [LIBRARIES ...] [ENVIRONMENT ...])
# The same for a program whose allocations fail on demand (tests/FailingMemory.h). There is none on Windows, which does
# not let a program replace the allocation functions of the libraries it uses, and none under the thread sanitizer, which
# does not start where they are replaced and would find no second thread there.
function(axm_add_memory_test name)
  if(NOT WIN32 AND NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize=thread")
    axm_add_test(${name} ${ARGN})
    target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/FailingMemory.cpp)
  endif()
endfunction()
