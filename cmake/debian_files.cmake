# Run by cpack before the packages are made: what the policy of Debian wants of files, and an installation elsewhere does not.

file(GLOB_RECURSE files ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/usr/share/man/*.1
  ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/changelog.Debian)
if(files)
  execute_process(COMMAND gzip -9n ${files} COMMAND_ERROR_IS_FATAL ANY)
endif()
