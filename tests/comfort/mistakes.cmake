# cmake -DCOMPILER=... -DINCLUDES=... -DSOURCE=mistakes.cpp -P mistakes.cmake: that no mistake in SOURCE compiles, and that the
# compiler says of the line of each what the comment before it says.

cmake_minimum_required(VERSION 3.25)

list(REMOVE_ITEM INCLUDES "")
list(TRANSFORM INCLUDES PREPEND -I)
# The sentences are looked for as they are, not as they are broken into lines.
execute_process(COMMAND ${COMPILER} -std=c++17 -fsyntax-only -fmessage-length=0 ${INCLUDES} ${SOURCE}
  ERROR_VARIABLE said OUTPUT_VARIABLE said RESULT_VARIABLE failed)
if(NOT failed)
  message(FATAL_ERROR "${SOURCE} compiles")
endif()

file(STRINGS ${SOURCE} lines)
set(number 0)
set(count 0)
set(sentence "")
foreach(line IN LISTS lines)
  math(EXPR number "${number} + 1")
  if(sentence)
    math(EXPR count "${count} + 1")
    foreach(wanted "${sentence}" "mistakes.cpp:${number}:")
      string(FIND "${said}" "${wanted}" at)
      if(at EQUAL -1)
        message(SEND_ERROR "the compiler does not say \"${wanted}\" of line ${number}: ${line}")
      endif()
    endforeach()
  endif()
  string(REGEX REPLACE "^  // " "" sentence "${line}")
  if(sentence STREQUAL line)
    set(sentence "")
  endif()
endforeach()
if(count EQUAL 0)
  message(FATAL_ERROR "no mistake is found in ${SOURCE}")
endif()
message(STATUS "${count} mistakes are refused with their remedies")
