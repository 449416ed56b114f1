# The locales that tests switch to, compiled into the build tree so that the machine's own set does
# not matter. Sets zalento_test_locpath, the value of LOCPATH under which they are found.

set(zalento_test_locales de_DE) # decimal comma, full stop between thousands

set(locale_dir "${PROJECT_BINARY_DIR}/locale")
find_program(LOCALEDEF_EXECUTABLE localedef REQUIRED)
foreach(locale IN LISTS zalento_test_locales)
  if(EXISTS "${locale_dir}/${locale}.UTF-8")
    continue()
  endif()
  file(MAKE_DIRECTORY "${locale_dir}")
  execute_process(
    COMMAND "${LOCALEDEF_EXECUTABLE}" --no-archive -i ${locale} -f UTF-8 "${locale_dir}/${locale}.UTF-8"
    RESULT_VARIABLE result ERROR_VARIABLE messages)
  if(NOT result EQUAL 0)
    file(REMOVE_RECURSE "${locale_dir}/${locale}.UTF-8")
    message(FATAL_ERROR "The locale ${locale} for the tests could not be compiled (Debian's package "
                        "locales has its source): ${messages}")
  endif()
endforeach()

# Where LOCPATH is set nothing else is searched, so the folder of C.UTF-8 has to be named too.
set(zalento_test_locpath "${locale_dir}:/usr/lib/locale")
