# Installs the build tree BUILD into the empty folder STAGE and looks through the package files.
# With PROGRAMS it starts the programs.
file(REMOVE_RECURSE "${STAGE}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${STAGE}"
  COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)

# An installed package that names the source or the build tree works on this machine only.
file(GLOB_RECURSE package_files "${STAGE}/*.cmake")
if(NOT package_files)
  message(FATAL_ERROR "The install tree holds no CMake package")
endif()
foreach(file IN LISTS package_files)
  file(READ "${file}" text)
  foreach(tree IN ITEMS "${SOURCE}" "${BUILD}")
    string(FIND "${text}" "${tree}/" position)
    if(NOT position EQUAL -1)
      message(FATAL_ERROR "${file} names ${tree}")
    endif()
  endforeach()
endforeach()

if(PROGRAMS)
  foreach(program IN ITEMS zalento-measure zalento-viewer)
    execute_process(
      COMMAND "${CMAKE_COMMAND}" -E env --unset=LD_LIBRARY_PATH "${STAGE}/bin/${program}" --version
      COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
  endforeach()
endif()
