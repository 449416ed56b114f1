# Every QML file of the tree passes qmllint.
foreach(folder IN ITEMS qml apps examples tests docs)
  file(GLOB_RECURSE found "${SOURCE}/${folder}/*.qml")
  list(APPEND files ${found})
endforeach()
if(NOT files)
  message(FATAL_ERROR "There is no QML file in ${SOURCE}")
endif()
execute_process(COMMAND "${QMLLINT}" ${files} COMMAND_ERROR_IS_FATAL ANY)
