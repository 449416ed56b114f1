# 64-bit ARM, as Debian's arm64.
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(zalento_target_arch arm64)
set(zalento_target_triplet aarch64-linux-gnu)
set(zalento_target_qemu qemu-aarch64-static)
include("${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake")
