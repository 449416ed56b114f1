# The install tree: library, headers, QML module, programs, and the package for find_package().
include(CMakePackageConfigHelpers)

# install_beside_libraries(<folder> <target>...): a program or a library that finds our libraries
# from wherever the tree has been moved to.
function(install_beside_libraries folder)
  file(RELATIVE_PATH to_libraries "/${folder}" "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(${ARGN} PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
  install(TARGETS ${ARGN} RUNTIME DESTINATION "${folder}" LIBRARY DESTINATION "${folder}")
endfunction()

set(package Zalento)
if(ZALENTO_QT EQUAL 6)
  set(package ZalentoQt6)
endif()
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
set(installed_targets zalento zalentomeasuring)
if(NOT ZALENTO_HOST_TARGET)
  list(APPEND installed_targets drevonhost)
endif()
set_target_properties(${installed_targets} PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS ${installed_targets} EXPORT ZalentoTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
# Headers that only our own sources include stay at home.
set(internal_headers
  CLocale.h CompletePicture.h Count.h FilmDecoder.h FitCamera.h FitDrawing.h FitOutliers.h
  FitPlan.h FitProblem.h FitStart.h MarkerPens.h MatchedCurve.h MeasuringModel.h ModelPlace.h
  ModelViewScope.h PainterPens.h PictureEdges.h ReportDocument.h ReportPages.h ReportPicture.h
  ReportSection.h ReportText.h RingSearch.h UncertaintyFactors.h clearVectorRegisters.h
  roundStep.h squaredDistance.h truncatedRect.h)
list(TRANSFORM internal_headers REPLACE "(.+)" "PATTERN;\\1;EXCLUDE")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/zalento" "${PROJECT_SOURCE_DIR}/src/measuring"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h" ${internal_headers})
if(NOT ZALENTO_HOST_TARGET)
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/drevon" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    FILES_MATCHING PATTERN "*.h")
endif()

# The QML modules. Qt finds them where its own modules lie in a system prefix; elsewhere the folder
# goes into QML2_IMPORT_PATH.
if(TARGET zalentoplugin)
  set(qml_module_dir "${CMAKE_INSTALL_LIBDIR}/qt${ZALENTO_QT}/qml/Drevon/Zalento")
  set(qml_built_dir "${PROJECT_BINARY_DIR}/qml/Drevon/Zalento")
  install_beside_libraries("${qml_module_dir}" zalentoplugin)
  install(FILES "${qml_built_dir}/qmldir" "${qml_built_dir}/plugins.qmltypes"
    DESTINATION "${qml_module_dir}")
  install_beside_libraries("${qml_module_dir}/Measuring" zalentomeasuringplugin)
  install(FILES
    "${qml_built_dir}/Measuring/qmldir" "${qml_built_dir}/Measuring/plugins.qmltypes"
    DESTINATION "${qml_module_dir}/Measuring")
endif()

# For pkg-config. A static library and one for a host of its own are CMake's alone: what they need
# beside is not told in words.
if(BUILD_SHARED_LIBS AND NOT ZALENTO_HOST_TARGET)
  set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
  file(RELATIVE_PATH pc_to_prefix "/${pc_dir}" "/")
  string(REGEX REPLACE "/$" "" pc_to_prefix "${pc_to_prefix}")
  foreach(name IN ITEMS zalento zalento-measuring)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in" "${PROJECT_BINARY_DIR}/${name}${zalento_suffix}.pc"
      @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${name}${zalento_suffix}.pc" DESTINATION "${pc_dir}")
  endforeach()
endif()

if(ZALENTO_BUILD_APPS)
  install_beside_libraries("${CMAKE_INSTALL_BINDIR}" zalento-measure zalento-viewer)
  install(FILES "${PROJECT_SOURCE_DIR}/apps/viewer/zalento-viewer.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
  install(FILES "${PROJECT_SOURCE_DIR}/apps/viewer/org.drevon.zalento_viewer.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/apps/viewer/icons/hicolor"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons")
  install(FILES "${PROJECT_SOURCE_DIR}/apps/measure/completion/zalento-measure.bash"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME zalento-measure)
  install(FILES "${PROJECT_SOURCE_DIR}/apps/measure/completion/_zalento-measure"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
  install(FILES
    "${PROJECT_SOURCE_DIR}/docs/man/zalento-measure.1"
    "${PROJECT_SOURCE_DIR}/docs/man/zalento-viewer.1"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
endif()

install(EXPORT ZalentoTargets NAMESPACE Zalento:: DESTINATION "${package_dir}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/ZalentoConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/${package}Config.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_SOURCE_DIR}/cmake/FindFfmpegParts.cmake"
  "${PROJECT_SOURCE_DIR}/cmake/FindOpenCVParts.cmake"
  "${PROJECT_BINARY_DIR}/${package}Config.cmake"
  "${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
  DESTINATION "${package_dir}")
