# The parts of OpenCV that are asked for as components, each an imported target OpenCVParts::<part>.
# Debian's package with OpenCV's own configuration brings everything, hundreds of megabytes; its
# single parts come without one.
find_path(OpenCVParts_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4)
set(OpenCVParts_LIBRARIES)
foreach(part IN LISTS OpenCVParts_FIND_COMPONENTS)
  find_library(OpenCVParts_${part}_LIBRARY opencv_${part})
  list(APPEND OpenCVParts_LIBRARIES OpenCVParts_${part}_LIBRARY)
  if(OpenCVParts_INCLUDE_DIR AND OpenCVParts_${part}_LIBRARY)
    set(OpenCVParts_${part}_FOUND TRUE)
    if(NOT TARGET OpenCVParts::${part})
      add_library(OpenCVParts::${part} UNKNOWN IMPORTED)
      set_target_properties(OpenCVParts::${part} PROPERTIES
        IMPORTED_LOCATION "${OpenCVParts_${part}_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${OpenCVParts_INCLUDE_DIR}")
    endif()
  endif()
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCVParts
  REQUIRED_VARS OpenCVParts_INCLUDE_DIR ${OpenCVParts_LIBRARIES} HANDLE_COMPONENTS)
mark_as_advanced(OpenCVParts_INCLUDE_DIR ${OpenCVParts_LIBRARIES})
