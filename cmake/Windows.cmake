# Cross-building for Windows on Debian: mingw-w64 with POSIX threads. The libraries of the other side (toolkit, PROJ) lie in a directory of their own,
# which ZG_WINDOWS_KIT names in the environment; nothing of this system's own may be found instead.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
if(DEFINED ENV{ZG_WINDOWS_KIT})
    list(APPEND CMAKE_FIND_ROOT_PATH $ENV{ZG_WINDOWS_KIT})
    set(Qt6_DIR $ENV{ZG_WINDOWS_KIT}/lib/cmake/Qt6 CACHE PATH "")
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The toolkit's own programs that run while building are this system's, of the same version.
set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "")
