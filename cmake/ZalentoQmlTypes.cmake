# How QML types are told to editors and qmllint: by plugins.qmltypes, which Qt's type registrar writes.

# The type registrar stands beside moc; its descriptions of Qt's own types beside the libraries.
get_target_property(moc Qt${ZALENTO_QT}::moc LOCATION)
get_filename_component(qt_tools "${moc}" DIRECTORY)
find_program(QMLTYPEREGISTRAR_${ZALENTO_QT} qmltyperegistrar PATHS "${qt_tools}" NO_DEFAULT_PATH REQUIRED)
get_target_property(qt_library Qt${ZALENTO_QT}::Core LOCATION)
get_filename_component(qt_libraries "${qt_library}" DIRECTORY)
foreach(part IN ITEMS core gui qml quick)
  file(GLOB found "${qt_libraries}/metatypes/qt${ZALENTO_QT}${part}_*metatypes.json")
  list(APPEND qt_metatypes ${found})
endforeach()

# zalento_metatypes(<result> <target> <header>...): what moc tells of the headers, as one file.
function(zalento_metatypes result target)
  set(includes "$<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>")
  foreach(header IN LISTS ARGN)
    get_filename_component(name "${header}" NAME)
    set(described "${CMAKE_CURRENT_BINARY_DIR}/${target}/${name}.cpp")
    add_custom_command(OUTPUT "${described}.json"
      COMMAND Qt${ZALENTO_QT}::moc --output-json -o "${described}"
        "$<$<BOOL:${includes}>:-I$<JOIN:${includes},;-I>>" "${header}"
      DEPENDS "${header}" COMMAND_EXPAND_LISTS VERBATIM)
    list(APPEND descriptions "${described}.json")
  endforeach()
  set(collected "${CMAKE_CURRENT_BINARY_DIR}/${target}/${result}.json")
  add_custom_command(OUTPUT "${collected}"
    COMMAND Qt${ZALENTO_QT}::moc --collect-json -o "${collected}" ${descriptions}
    DEPENDS ${descriptions} VERBATIM)
  set(${result} "${collected}" PARENT_SCOPE)
endfunction()

# zalento_qml_types(<target> <uri> <folder> <types> <header>...): writes plugins.qmltypes of the module
# into the folder. The header <types> names the types, which the other headers declare; the target's
# include directories are those of both.
function(zalento_qml_types target uri folder types)
  zalento_metatypes(named ${target} "${CMAKE_CURRENT_SOURCE_DIR}/${types}")
  zalento_metatypes(declared ${target} ${ARGN})
  list(JOIN qt_metatypes "," foreign)
  add_custom_command(OUTPUT "${folder}/plugins.qmltypes"
    COMMAND "${QMLTYPEREGISTRAR_${ZALENTO_QT}}" "--generate-qmltypes=${folder}/plugins.qmltypes"
      "--import-name=${uri}" --major-version=1 --minor-version=0 "--foreign-types=${foreign},${declared}"
      -o "${CMAKE_CURRENT_BINARY_DIR}/${target}/registrations.cpp" "${named}"
    DEPENDS "${named}" "${declared}" VERBATIM)
  target_sources(${target} PRIVATE "${types}" "${folder}/plugins.qmltypes")
endfunction()
