# Updates copies of the translations as scripts/translate.sh does, and looks for what is unfinished.
foreach(language de en fr)
  set(copy "${WORK_DIR}/zalento_${language}.ts")
  configure_file("${SOURCE_DIR}/apps/viewer/translations/zalento_${language}.ts" "${copy}" COPYONLY)
  set(options -locations none -no-obsolete)
  if(language STREQUAL "en")
    list(APPEND options -pluralonly)
  endif()
  execute_process(
    COMMAND "${LUPDATE}" ${options} "${SOURCE_DIR}/apps/viewer" "${SOURCE_DIR}/src/measuring"
      -ts "${copy}"
    OUTPUT_QUIET ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(STRINGS "${copy}" lines)
  set(source "")
  foreach(line IN LISTS lines)
    if(line MATCHES "<source>(.*)</source>")
      set(source "${CMAKE_MATCH_1}")
    elseif(line MATCHES "type=\"unfinished\"")
      message(SEND_ERROR "zalento_${language}.ts lacks \"${source}\"; see scripts/translate.sh")
    endif()
  endforeach()
endforeach()
