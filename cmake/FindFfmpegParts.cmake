# The libraries of FFmpeg that are asked for as components, each an imported target
# FfmpegParts::<part>. They come without a configuration for CMake, and pkg-config does not look into
# the sysroot of a cross-build.
set(FfmpegParts_VARIABLES)
foreach(part IN LISTS FfmpegParts_FIND_COMPONENTS)
  find_path(FfmpegParts_${part}_INCLUDE_DIR "lib${part}/${part}.h")
  find_library(FfmpegParts_${part}_LIBRARY ${part})
  list(APPEND FfmpegParts_VARIABLES FfmpegParts_${part}_LIBRARY FfmpegParts_${part}_INCLUDE_DIR)
  if(FfmpegParts_${part}_INCLUDE_DIR AND FfmpegParts_${part}_LIBRARY)
    set(FfmpegParts_${part}_FOUND TRUE)
    if(NOT TARGET FfmpegParts::${part})
      add_library(FfmpegParts::${part} UNKNOWN IMPORTED)
      set_target_properties(FfmpegParts::${part} PROPERTIES
        IMPORTED_LOCATION "${FfmpegParts_${part}_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${FfmpegParts_${part}_INCLUDE_DIR}")
    endif()
  endif()
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(FfmpegParts
  REQUIRED_VARS ${FfmpegParts_VARIABLES} HANDLE_COMPONENTS)
mark_as_advanced(${FfmpegParts_VARIABLES})
