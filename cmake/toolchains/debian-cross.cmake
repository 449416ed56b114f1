# What the toolchain files of the cross-built targets share. Before including this they set
# zalento_target_arch (Debian's name), zalento_target_triplet and zalento_target_qemu.

set(CMAKE_SYSTEM_NAME Linux)

# scripts/make-sysroot.sh puts it there; the tree's root is two folders up.
get_filename_component(zalento_root "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)
set(CMAKE_SYSROOT "${zalento_root}/build/sysroot-${zalento_target_arch}")

set(CMAKE_C_COMPILER "${zalento_target_triplet}-gcc")
set(CMAKE_CXX_COMPILER "${zalento_target_triplet}-g++")
set(CMAKE_LIBRARY_ARCHITECTURE "${zalento_target_triplet}")

set(CMAKE_FIND_ROOT_PATH "${CMAKE_SYSROOT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The linker takes the libraries that libraries need from the sysroot too.
set(CMAKE_EXE_LINKER_FLAGS_INIT
  "-Wl,-rpath-link,${CMAKE_SYSROOT}/lib/${zalento_target_triplet}:${CMAKE_SYSROOT}/usr/lib/${zalento_target_triplet}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT}")

# Emulated programs look up absolute paths in the sysroot first. The emulator does not do so when
# a program only asks whether a file exists (statx), so Qt is told where its plugins and QML
# modules really are.
set(CMAKE_CROSSCOMPILING_EMULATOR "${zalento_target_qemu};-L;${CMAKE_SYSROOT}")
set(zalento_target_qt "${CMAKE_SYSROOT}/usr/lib/${zalento_target_triplet}/qt5")
file(WRITE "${CMAKE_BINARY_DIR}/bin/qt.conf"
  "[Paths]\nPlugins=${zalento_target_qt}/plugins\nQml2Imports=${zalento_target_qt}/qml\n")
