# SPDX-License-Identifier: MIT
# A German locale, whose decimal sign is a comma, made inside the build folder: the tests run in it
# without asking what is installed. Set LOCPATH to ZEPHRINE_LOCALES and LC_ALL to de_DE.UTF-8.
set(ZEPHRINE_LOCALES ${CMAKE_BINARY_DIR}/locale)
if(CMAKE_SYSTEM_NAME STREQUAL "Darwin")
  return()  # every Mac has it, and finds it without LOCPATH
endif()
if(NOT EXISTS ${ZEPHRINE_LOCALES}/de_DE.UTF-8/LC_NUMERIC)
  find_program(LOCALEDEF localedef)
  if(NOT LOCALEDEF)
    message(FATAL_ERROR "localedef is missing, which makes the locale of some tests")
  endif()
  file(MAKE_DIRECTORY ${ZEPHRINE_LOCALES})
  execute_process(
    COMMAND ${LOCALEDEF} --no-archive -i de_DE -f UTF-8 ${ZEPHRINE_LOCALES}/de_DE.UTF-8
    RESULT_VARIABLE result ERROR_VARIABLE error OUTPUT_QUIET)
  if(NOT EXISTS ${ZEPHRINE_LOCALES}/de_DE.UTF-8/LC_NUMERIC)
    message(FATAL_ERROR "localedef failed (${result}); Debian's package locales has what it "
                        "needs: ${error}")
  endif()
endif()
