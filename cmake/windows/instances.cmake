# cmake -DNM=... -DOBJECTS=... -DOUTPUT=... -P instances.cmake
# Writes a module definition file that exports the members of the house's class templates that the objects define.

execute_process(COMMAND ${NM} ${OBJECTS} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[0-9a-f]+ T _ZNK?[0-9]+co[A-Z][^\n]*" symbols "${symbols}")
list(TRANSFORM symbols REPLACE "^.* " "  ")
list(REMOVE_DUPLICATES symbols)
list(SORT symbols)
if(NOT symbols)
  message(FATAL_ERROR "no instances in ${OBJECTS}")
endif()
list(JOIN symbols "\n" text)
file(WRITE ${OUTPUT} "EXPORTS\n${text}\n")
