# Cross-building for Windows on Debian: mingw-w64 with POSIX threads. The libraries for Windows (toolkit, PROJ) are in a directory of their own, which
# ZG_WINDOWS_KIT names; nothing of this system's own may be found instead. tools/windows.sh makes that directory.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(cache $ENV{ZG_WINDOWS_CACHE})
if(NOT cache)
    set(cache $ENV{HOME}/.cache/zephyrgraph-windows)
endif()
set(ZG_WINDOWS_KIT ${cache}/kit CACHE PATH "Libraries for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZG_WINDOWS_KIT)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${ZG_WINDOWS_KIT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The toolkit's own programs that run while building are this system's, of the same version.
set(Qt6_DIR ${ZG_WINDOWS_KIT}/lib/cmake/Qt6 CACHE PATH "")
set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "")

# Test programs run under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/wine.sh)
