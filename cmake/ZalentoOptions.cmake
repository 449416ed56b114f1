# Options of the build. Everything beside the library is on only when this is the top-level
# project, so that a host that adds the checkout as a subdirectory builds the library alone.

if(PROJECT_IS_TOP_LEVEL)
  option(BUILD_SHARED_LIBS "Build shared libraries" ON)
endif()
option(ZALENTO_BUILD_APPS "Build the viewer, the command-line program and the tools"
       ${PROJECT_IS_TOP_LEVEL})
option(ZALENTO_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(ZALENTO_BUILD_BENCHMARKS "Build the benchmarks" ${PROJECT_IS_TOP_LEVEL})
option(ZALENTO_BUILD_FUZZERS "Build the fuzzers for libFuzzer instead of their tests (clang)" OFF)
option(ZALENTO_WITH_OPENCV "Find edges in pictures and undistort lenses with OpenCV" ON)
option(ZALENTO_WITH_VIDEO "Read films with FFmpeg's libraries" ON)
set(ZALENTO_QT 5 CACHE STRING "Version of Qt: 5 or 6")
set_property(CACHE ZALENTO_QT PROPERTY STRINGS 5 6)
if(NOT ZALENTO_QT MATCHES "^[56]$")
  message(FATAL_ERROR "ZALENTO_QT is '${ZALENTO_QT}': expected 5 or 6")
endif()
# The oldest release that is tested.
set(ZALENTO_QT_VERSION 5.15)
if(ZALENTO_QT EQUAL 6)
  set(ZALENTO_QT_VERSION 6.4)
endif()
# Behind the names of libraries and packages: those of both versions can be installed side by side.
set(zalento_suffix "")
if(ZALENTO_QT EQUAL 6)
  set(zalento_suffix "-qt6")
endif()
option(ZALENTO_INSTALL "Install the library, the QML module and the programs"
       ${PROJECT_IS_TOP_LEVEL})
option(ZALENTO_EXPORT_INTERNALS
       "Export what tests and benchmarks look at, beside what hosts use (ELF shared libraries)" ON)
option(ZALENTO_ASSERTIONS "Check the standard library's preconditions at run time" OFF)
set(ZALENTO_SANITIZE "" CACHE STRING "Sanitizers for -fsanitize=, comma separated")
set(ZALENTO_HOST_TARGET "" CACHE STRING
    "Target that offers the drevon/ headers; empty builds the stand-in")

if(PROJECT_IS_TOP_LEVEL)
  if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
  endif()
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
  set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
  set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
  # The same bytes whatever the folder: the run paths of the build tree do not name it.
  set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
endif()
