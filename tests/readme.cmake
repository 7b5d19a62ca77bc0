# The programs that README.md shows are those of examples/, which the tests build and run.
file(READ ${SOURCE}/README.md readme)
foreach(example read_fields edit_document)
  file(READ ${SOURCE}/examples/${example}.cpp program)
  string(FIND "${readme}" "```cpp\n${program}```" at)
  if(at EQUAL -1)
    message(SEND_ERROR "README.md does not show examples/${example}.cpp as it is")
  endif()
endforeach()
