# Locales for the tests, made in the build tree without any right beyond it: one with a decimal comma and one whose
# decimal point takes two bytes. A test that sets one of them adds AXM_TEST_LOCALES to its ENVIRONMENT. Windows has
# locales of its own.

set(AXM_TEST_LOCALES "")
if(NOT WIN32)
  find_program(AXM_LOCALEDEF localedef REQUIRED)
  foreach(name de_DE ps_AF)
    set(made ${PROJECT_BINARY_DIR}/locales/${name}.UTF-8)
    if(NOT EXISTS ${made}/LC_NUMERIC)
      file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/locales)
      execute_process(COMMAND ${AXM_LOCALEDEF} -i ${name} -f UTF-8 ${made}
        ERROR_VARIABLE complaint RESULT_VARIABLE failed)
      if(NOT EXISTS ${made}/LC_NUMERIC)
        message(FATAL_ERROR "localedef cannot make the locale ${name} (on Debian, is the package locales there?): "
          "${complaint}")
      endif()
    endif()
  endforeach()
  set(AXM_TEST_LOCALES "LOCPATH=${PROJECT_BINARY_DIR}/locales")
endif()
