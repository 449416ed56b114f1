# The install tree: library, headers, QML module, programs, and the package for find_package().
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Zalento")
set(installed_targets zalento)
if(NOT ZALENTO_HOST_TARGET)
  list(APPEND installed_targets drevonhost)
endif()

install(TARGETS ${installed_targets} EXPORT ZalentoTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/zalento" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h")
if(NOT ZALENTO_HOST_TARGET)
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/drevon" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    FILES_MATCHING PATTERN "*.h")
endif()
install(EXPORT ZalentoTargets NAMESPACE Zalento:: DESTINATION "${package_dir}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/ZalentoConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/ZalentoConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZalentoConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/ZalentoConfig.cmake"
  "${PROJECT_BINARY_DIR}/ZalentoConfigVersion.cmake"
  DESTINATION "${package_dir}")
