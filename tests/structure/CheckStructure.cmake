# Fails when the sources under ROOT break the order of the folders: cmake -DROOT=... -P this file.
# - A folder of src/zalento includes itself and those below it; Qt Quick belongs to item/ alone.
# - src/measuring stands above them and includes nothing of the programs.
# - Every header stands in a CMakeLists.txt.
cmake_minimum_required(VERSION 3.25)

set(below_math math)
set(below_settings math settings)
set(below_measure math settings measure)
set(below_render math settings measure render)
set(below_geometry math settings measure render geometry)
set(below_pipes math settings measure render geometry pipes)
set(below_item math settings measure render geometry pipes item)
set(folders math settings measure render geometry pipes item)

# The camera draws the pipe's model, so these two know it.
set(may_include_geometry render/MiniGLCylinder.cpp render/MiniGLMeasureLine.cpp)

set(source_dir "${ROOT}/src")
set(faults "")

foreach(folder IN LISTS folders)
  file(GLOB_RECURSE sources RELATIVE "${source_dir}/zalento"
    "${source_dir}/zalento/${folder}/*.h" "${source_dir}/zalento/${folder}/*.cpp")
  if(NOT sources)
    list(APPEND faults "src/zalento/${folder} has no sources")
  endif()
  foreach(source IN LISTS sources)
    file(STRINGS "${source_dir}/zalento/${source}" includes REGEX "^[ \t]*#[ \t]*include")
    foreach(include IN LISTS includes)
      if(include MATCHES "[<\"](Qt?Quick|Qt?Qml|QSG|qquick|qqml|qsg)" AND NOT folder STREQUAL "item")
        list(APPEND faults "${source} includes Qt Quick: ${include}")
      elseif(include MATCHES "[<\"](zalento/|\\.\\./)?(math|settings|measure|render|geometry|pipes|item|measuring)/")
        set(included "${CMAKE_MATCH_2}")
        if(NOT included IN_LIST below_${folder}
           AND NOT (included STREQUAL "geometry" AND source IN_LIST may_include_geometry))
          list(APPEND faults "${source} includes a folder above it: ${include}")
        endif()
      endif()
    endforeach()
  endforeach()
endforeach()

file(GLOB_RECURSE sources RELATIVE "${source_dir}"
  "${source_dir}/measuring/*.h" "${source_dir}/measuring/*.cpp")
foreach(source IN LISTS sources)
  file(STRINGS "${source_dir}/${source}" includes REGEX "^[ \t]*#[ \t]*include")
  foreach(include IN LISTS includes)
    if(include MATCHES "[<\"](\\.\\./|apps/|measure/|viewer/|QtQuickControls|QtWidgets|QApplication|QWidget)")
      list(APPEND faults "${source} includes what stands above it: ${include}")
    endif()
  endforeach()
endforeach()

file(GLOB_RECURSE lists "${source_dir}/CMakeLists.txt")
set(listed "")
foreach(list_file IN LISTS lists)
  file(READ "${list_file}" text)
  get_filename_component(directory "${list_file}" DIRECTORY)
  string(REGEX MATCHALL "[A-Za-z0-9_/]+\\.h" names "${text}")
  list(TRANSFORM names PREPEND "${directory}/")
  list(APPEND listed ${names})
endforeach()
file(GLOB_RECURSE headers "${source_dir}/*.h")
foreach(header IN LISTS headers)
  if(NOT header IN_LIST listed)
    list(APPEND faults "no CMakeLists.txt lists ${header}")
  endif()
endforeach()

if(faults)
  list(JOIN faults "\n  " text)
  message(FATAL_ERROR "The sources break the order of the folders:\n  ${text}")
endif()
