# Whose host: the project's own target, ZALENTO_HOST_TARGET, or the stand-in; and what follows for the
# kind of our libraries.

set(zalento_host_is_static FALSE)
if(ZALENTO_HOST_TARGET)
  if(NOT TARGET ${ZALENTO_HOST_TARGET})
    message(FATAL_ERROR "ZALENTO_HOST_TARGET names '${ZALENTO_HOST_TARGET}', which is no target here. "
                        "Define it before the library is added.")
  endif()
  get_target_property(host_type ${ZALENTO_HOST_TARGET} TYPE)
  if(host_type MATCHES "^(STATIC|OBJECT)_LIBRARY$")
    set(zalento_host_is_static TRUE)
  endif()
endif()

# Here alone: the project's other libraries are its own business.
if(NOT DEFINED BUILD_SHARED_LIBS AND zalento_host_is_static)
  set(BUILD_SHARED_LIBS OFF)
elseif(NOT DEFINED BUILD_SHARED_LIBS)
  set(BUILD_SHARED_LIBS ON)
endif()

if(BUILD_SHARED_LIBS AND zalento_host_is_static)
  message(FATAL_ERROR
    "The host '${ZALENTO_HOST_TARGET}' is static and would exist twice, in the shared library and in "
    "the application: the item would not see the application's records. Make the host SHARED, or the "
    "library static with BUILD_SHARED_LIBS=OFF.")
endif()
