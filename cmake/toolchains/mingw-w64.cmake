# Builds for 64-bit Windows with Debian's MinGW-w64 and runs what was built in Wine.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The variant with POSIX threads: the other one has no <mutex>.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# What cmake/windows/dependencies.sh has built lies beside the compiler's own folders, and nothing of this system is
# searched for libraries.
if(DEFINED ENV{AXM_WINDOWS_PREFIX})
  set(axm_windows_prefix "$ENV{AXM_WINDOWS_PREFIX}")
else()
  set(axm_windows_prefix "$ENV{HOME}/.cache/axm/windows")
endif()
set(CMAKE_FIND_ROOT_PATH "${axm_windows_prefix}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(APPEND CMAKE_PREFIX_PATH "${axm_windows_prefix}")

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../windows/wine.sh")
