# plugins.qmltypes, which the type registrar has written for MODULE, names what the plugin registers, and
# is the one in the tree where that is GIVEN.
string(REPLACE "." "/" folder "${MODULE}")
set(written "${IMPORT_PATH}/${folder}/plugins.qmltypes")
execute_process(
  COMMAND "${QMLPLUGINDUMP}" -notrelocatable ${MODULE} 1.0 .
  WORKING_DIRECTORY "${IMPORT_PATH}" OUTPUT_VARIABLE registered COMMAND_ERROR_IS_FATAL ANY)
file(READ "${written}" told)
foreach(types IN ITEMS registered told)
  string(REGEX MATCHALL "\"${MODULE}/[A-Za-z]+ 1\\.0\"" ${types} "${${types}}")
  list(SORT ${types})
endforeach()
if(NOT registered OR NOT registered STREQUAL told)
  message(FATAL_ERROR "The plugin of ${MODULE} registers ${registered}, plugins.qmltypes has ${told}")
endif()

if(GIVEN)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${GIVEN}" "${written}" RESULT_VARIABLE differs)
  if(differs)
    message(FATAL_ERROR "${GIVEN} is out of date; copy ${written} over it")
  endif()
endif()
