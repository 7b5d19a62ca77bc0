find_package(GTest REQUIRED)
include(GoogleTest)

add_library(axm_test_main STATIC ${PROJECT_SOURCE_DIR}/tests/ScratchFolderMain.cpp)
target_link_libraries(axm_test_main PUBLIC GTest::gtest PRIVATE axm_options)

add_library(axm_failing_memory OBJECT ${PROJECT_SOURCE_DIR}/tests/FailingMemory.cpp)
target_link_libraries(axm_failing_memory PRIVATE axm_options)
set_target_properties(axm_failing_memory PROPERTIES EXCLUDE_FROM_ALL ON)

# axm_compile_quickly(TARGET)
# Most tests spend their time in what they test: to optimise what they consist of takes longer than it saves, under the
# sanitizers two to three times as long.
function(axm_compile_quickly name)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${name} PRIVATE -O0)
  endif()
endfunction()

# GoogleTest's header is most of what the compiler reads for a test: it is read once. A compiler cache does better without.
if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
  add_library(axm_test_headers OBJECT ${PROJECT_SOURCE_DIR}/tests/TestHeaders.cpp)
  target_link_libraries(axm_test_headers PRIVATE GTest::gtest axm_options)
  target_precompile_headers(axm_test_headers PRIVATE <gtest/gtest.h>)
  axm_compile_quickly(axm_test_headers)
endif()

# axm_add_test(NAME SOURCES ... [LIBRARIES ...] [ENVIRONMENT ...] [FIXTURES ...] [LABELS ...])
# One GoogleTest program for a room. Natively each of its tests is a test of the runner; across an emulator, where
# starting a process is dear, the program is one test. It runs after the tests that set FIXTURES up. Each test works in a
# folder of its own, which goes with it (tests/ScratchFolderMain.cpp). What has the label "slow" is left out by
# ./test --quick, and is optimised.
function(axm_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES;ENVIRONMENT;FIXTURES;LABELS")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} axm_options axm_test_main)
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  set(properties TIMEOUT 600)
  # One without a value would take the next one's name for its value.
  if(arg_ENVIRONMENT)
    list(APPEND properties ENVIRONMENT "${arg_ENVIRONMENT}")
  endif()
  if(arg_FIXTURES)
    list(APPEND properties FIXTURES_REQUIRED "${arg_FIXTURES}")
  endif()
  if(arg_LABELS)
    list(APPEND properties LABELS "${arg_LABELS}")
  endif()
  # Those that take long begin first, so that no processor waits for the last of them.
  if("slow" IN_LIST arg_LABELS)
    list(APPEND properties COST 100)
  else()
    axm_compile_quickly(${name})
    if(TARGET axm_test_headers)
      target_precompile_headers(${name} REUSE_FROM axm_test_headers)
    endif()
  endif()
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES ${properties})
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES ${properties})
  endif()
endfunction()

# axm_add_memory_test(NAME SOURCES ... [LIBRARIES ...] [ENVIRONMENT ...])
# The same for a program whose allocations fail on demand (tests/FailingMemory.h). There is none on Windows, which does
# not let a program replace the allocation functions of the libraries it uses, and none under the thread sanitizer, which
# does not start where they are replaced and would find no second thread there.
function(axm_add_memory_test name)
  if(NOT WIN32 AND NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize=thread")
    axm_add_test(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE axm_failing_memory)
  endif()
endfunction()
