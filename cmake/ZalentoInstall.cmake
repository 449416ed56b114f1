# The install tree: library, headers, QML module, programs, and the package for find_package().
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Zalento")
set(installed_targets zalento zalentomeasuring)
if(NOT ZALENTO_HOST_TARGET)
  list(APPEND installed_targets drevonhost)
endif()

install(TARGETS ${installed_targets} EXPORT ZalentoTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
# Headers that only our own sources include stay at home.
set(internal_headers CLocale.h CompletePicture.h Count.h FilmDecoder.h FitCamera.h FitDrawing.h FitOutliers.h FitPlan.h
  FitProblem.h FitStart.h MarkerPens.h MatchedCurve.h MeasuringModel.h ModelPlace.h
  ModelViewScope.h PainterPens.h PictureEdges.h ReportDocument.h ReportPages.h ReportPicture.h
  ReportSection.h ReportText.h RingSearch.h UncertaintyFactors.h clearVectorRegisters.h roundStep.h
  squaredDistance.h truncatedRect.h)
list(TRANSFORM internal_headers REPLACE "(.+)" "PATTERN;\\1;EXCLUDE")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/zalento" "${PROJECT_SOURCE_DIR}/src/measuring"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h" ${internal_headers})
if(NOT ZALENTO_HOST_TARGET)
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/drevon" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    FILES_MATCHING PATTERN "*.h")
endif()

# The QML module. Qt finds it where its own modules lie in a system prefix; elsewhere the folder
# goes into QML2_IMPORT_PATH. It finds the library from wherever the tree has been moved to.
set(qml_module_dir "${CMAKE_INSTALL_LIBDIR}/qt${ZALENTO_QT}/qml/Drevon/Zalento")
install(TARGETS zalentoplugin LIBRARY DESTINATION "${qml_module_dir}")
install(FILES "${PROJECT_SOURCE_DIR}/qml/qmldir" "${PROJECT_SOURCE_DIR}/qml/plugins.qmltypes"
  DESTINATION "${qml_module_dir}")
file(RELATIVE_PATH module_to_libraries "/${qml_module_dir}" "/${CMAKE_INSTALL_LIBDIR}")
set_target_properties(zalentoplugin PROPERTIES INSTALL_RPATH "$ORIGIN/${module_to_libraries}")
set_target_properties(${installed_targets} PROPERTIES INSTALL_RPATH "$ORIGIN")

install(EXPORT ZalentoTargets NAMESPACE Zalento:: DESTINATION "${package_dir}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/ZalentoConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/ZalentoConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZalentoConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_SOURCE_DIR}/cmake/FindFfmpegParts.cmake"
  "${PROJECT_SOURCE_DIR}/cmake/FindOpenCVParts.cmake"
  "${PROJECT_BINARY_DIR}/ZalentoConfig.cmake"
  "${PROJECT_BINARY_DIR}/ZalentoConfigVersion.cmake"
  DESTINATION "${package_dir}")
