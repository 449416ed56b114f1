# Every QML file of the tree passes the QMLLINT of QT 5 or 6, unqualified access included.
foreach(folder IN ITEMS qml apps tests docs)
  file(GLOB_RECURSE found "${SOURCE}/${folder}/*.qml")
  list(APPEND files ${found})
endforeach()
if(NOT files)
  message(FATAL_ERROR "There is no QML file in ${SOURCE}")
endif()

# Qt 5's is told of each module by name. Of access it knows little but whether it is qualified.
if(QT EQUAL 5)
  execute_process(COMMAND "${QMLLINT}" ${files} COMMAND_ERROR_IS_FATAL ANY)
  foreach(module IN ITEMS . Measuring Viewer)
    list(APPEND arguments -i "${IMPORT_PATH}/Drevon/Zalento/${module}/plugins.qmltypes")
  endforeach()
  execute_process(COMMAND "${QMLLINT}" -U ${arguments} -I "${QT_IMPORT_PATH}" ${files}
    OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(output MATCHES "unqualified access[^\n]*\n[^\n]*")
    message(FATAL_ERROR "${CMAKE_MATCH_0}")
  endif()
  return()
endif()

execute_process(COMMAND "${QMLLINT}" -I "${IMPORT_PATH}" --deferred-property-id disable ${files}
  OUTPUT_VARIABLE output ERROR_VARIABLE output)
# What that of Qt 6.4 does not know: what arrays can do, values without a name in QML, style hints,
# functions that are values.
set(unknown
  "Property \"[a-z]+\" not found on type \"QVariantList\""
  "Property \"[a-z]+\" not found on type \"QList<QUrl>\""
  "Property \"startDragDistance\" not found on type \"QObject\""
  "property \"picture\""
  "Cannot assign binding of type QSize to QSizeF"
  "Property \"(run|callLater)\" is a ")
list(JOIN unknown "|" unknown)
string(REGEX REPLACE "[][;]" " " output "${output}") # which CMake's lists would take for their own
string(REGEX MATCHALL "Warning: [^\n]*\n([^\n]*\n *\\^+)?" warnings "${output}")
foreach(warning IN LISTS warnings)
  string(REGEX MATCH "^Warning: (.*):([0-9]+):([0-9]+): ([^\n]*)\n" place "${warning}")
  set(file "${CMAKE_MATCH_1}")
  set(what "${CMAKE_MATCH_4}")
  if(what MATCHES "${unknown}")
    continue()
  endif()
  # An element around a delegate is as sure as its name in the file.
  if(what MATCHES "^Unqualified access" AND warning MATCHES "\n( *)[^\n]*\n( *)(\\^+)$")
    string(LENGTH "${CMAKE_MATCH_2}" start)
    string(LENGTH "${CMAKE_MATCH_3}" length)
    string(REGEX REPLACE "^[^\n]*\n([^\n]*)\n.*" "\\1" line "${warning}")
    string(SUBSTRING "${line}" ${start} ${length} name)
    file(STRINGS "${file}" named REGEX "^ *id: ${name}$")
    if(named)
      continue()
    endif()
  endif()
  string(APPEND faults "${warning}\n")
endforeach()
if(faults)
  message(FATAL_ERROR "${faults}")
endif()
