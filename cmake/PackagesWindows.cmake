# The packages for Windows: an installer and a portable folder. Both have the same files: the programs keep everything beside themselves.
set(kit ${ZG_WINDOWS_KIT})
install(FILES ${kit}/bin/Qt6Core.dll ${kit}/bin/Qt6Gui.dll ${kit}/bin/Qt6Widgets.dll ${kit}/bin/Qt6PrintSupport.dll DESTINATION . COMPONENT app)
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library} OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    # Without the nine tenths that only a debugger reads.
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/compiler)
    execute_process(COMMAND ${CMAKE_STRIP} -o ${PROJECT_BINARY_DIR}/compiler/${library} ${path} COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${PROJECT_BINARY_DIR}/compiler/${library} DESTINATION . COMPONENT app)
endforeach()
install(FILES ${kit}/plugins/platforms/qwindows.dll ${kit}/plugins/platforms/qoffscreen.dll DESTINATION platforms COMPONENT app)
install(FILES ${kit}/plugins/styles/qwindowsvistastyle.dll DESTINATION styles COMPONENT app)
install(DIRECTORY ${kit}/plugins/imageformats DESTINATION . COMPONENT app)

install(FILES ${kit}/share/proj/proj.db DESTINATION . COMPONENT app)

# For desks without Arial.
file(GLOB fonts /usr/share/fonts/truetype/liberation/LiberationSans-*.ttf)
install(FILES ${fonts} DESTINATION fonts COMPONENT app)

# Whatever is inside, as Debian tells of it.
foreach(package libqt6core6 libproj25 libsqlite3-0 libz-mingw-w64 fonts-liberation mingw-w64-common gcc-mingw-w64-base nlohmann-json3-dev
        libcli11-dev nsis)
    install(FILES /usr/share/doc/${package}/copyright DESTINATION licenses RENAME ${package}.txt COMPONENT app)
endforeach()
install(FILES /usr/share/common-licenses/LGPL-3 /usr/share/common-licenses/GPL-3 DESTINATION licenses COMPONENT app)

set(CPACK_PACKAGE_NAME Zephyrgraph)
set(CPACK_PACKAGE_VENDOR "Zephyrgraph")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Wind roses from raw meteorological data")
set(CPACK_PACKAGE_FILE_NAME zephyrgraph-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Zephyrgraph)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
# All files are one part: the installer asks for no choice.
set(CPACK_MONOLITHIC_INSTALL ON)
set(CPACK_GENERATOR NSIS ZIP)
# NSIS.template.in is this directory's own.
set(CPACK_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR})
set(CPACK_ZG_ICON ${PROJECT_BINARY_DIR}/shell/zephyrgraph.ico)
include(CPack)
