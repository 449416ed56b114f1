# plugins.qmltypes, which editors read, describes the MODULE that is built.
set(fresh "${CMAKE_CURRENT_BINARY_DIR}/${MODULE}.qmltypes.fresh")
execute_process(
  COMMAND "${QMLPLUGINDUMP}" -notrelocatable ${MODULE} 1.0 .
  WORKING_DIRECTORY "${IMPORT_PATH}" OUTPUT_FILE "${fresh}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${COMMITTED}" "${fresh}"
  RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "${COMMITTED} is out of date; copy ${fresh} over it")
endif()
