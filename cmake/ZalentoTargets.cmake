# What every target of ours is compiled with.

# zalento_target(<target>): language level, warnings, hidden symbols, moc, sanitizers.
function(zalento_target target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  set_target_properties(${target} PROPERTIES
    AUTOMOC ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wconversion -Wshadow -Wpedantic)
  # A multiplication fused with an addition rounds once instead of twice; results would then
  # depend on the processor.
  target_compile_options(${target} PRIVATE -ffp-contract=off)
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
  if(ZALENTO_ASSERTIONS)
    target_compile_definitions(${target} PRIVATE _GLIBCXX_ASSERTIONS)
  endif()
  if(ZALENTO_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${ZALENTO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${ZALENTO_SANITIZE})
  endif()
endfunction()

# zalento_exports(<target>): a shared library exports what the exports.map beside it names.
function(zalento_exports target)
  if(ZALENTO_EXPORT_INTERNALS OR NOT BUILD_SHARED_LIBS)
    return()
  endif()
  set(map "${CMAKE_CURRENT_SOURCE_DIR}/exports.map")
  target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
endfunction()
