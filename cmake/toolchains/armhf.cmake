# 32-bit ARM with hardware floating point, as Debian's armhf.
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(zalento_target_arch armhf)
set(zalento_target_triplet arm-linux-gnueabihf)
set(zalento_target_qemu qemu-arm-static)
# Everything here is built by one compiler, so what changed between its versions does not concern us.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
include("${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake")
