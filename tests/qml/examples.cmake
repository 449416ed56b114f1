# Every example runs without a word from the engine.
file(GLOB examples "${EXAMPLES}/*.qml")
if(NOT examples)
  message(FATAL_ERROR "There is no example in ${EXAMPLES}")
endif()
foreach(example IN LISTS examples)
  execute_process(COMMAND "${QMLSCENE}" --quit -I "${IMPORT_PATH}" "${example}"
    RESULT_VARIABLE result ERROR_VARIABLE messages)
  if(NOT result EQUAL 0 OR messages MATCHES "\\.qml:")
    message(FATAL_ERROR "${example}: ${messages}")
  endif()
endforeach()
