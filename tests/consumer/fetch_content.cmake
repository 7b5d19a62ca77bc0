# A project that fetches axm gets its targets, builds nothing of it that it does not link, and installs nothing of it.

file(REMOVE_RECURSE ${WORK})
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
run(${CMAKE_COMMAND} -G Ninja -S ${PROJECT} -B ${WORK}/build -DAXM_SOURCE_FOLDER=${AXM_SOURCE_FOLDER}
  -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER} -DCMAKE_CXX_FLAGS=${FLAGS})
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${CMAKE_COMMAND} --install ${WORK}/build --prefix ${WORK}/installed)

file(GLOB_RECURSE objects RELATIVE ${WORK}/build ${WORK}/build/*.o)
file(GLOB_RECURSE libraries RELATIVE ${WORK}/build ${WORK}/build/*.so* ${WORK}/build/*.a)
list(FILTER objects EXCLUDE REGEX "CMakeFiles/[0-9.]+/|^CMakeFiles/consumer.dir/")
if(objects OR libraries)
  message(SEND_ERROR "Built without being asked for: ${objects} ${libraries}")
endif()
file(GLOB_RECURSE installed RELATIVE ${WORK}/installed ${WORK}/installed/*)
if(NOT installed STREQUAL "share/consumer/main.cpp")
  message(SEND_ERROR "Installed: ${installed}")
endif()
