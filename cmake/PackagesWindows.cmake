# The packages for Windows: an installer, and a portable folder. Both hold the same folder: the programs keep everything beside themselves.
set(kit ${ZG_WINDOWS_KIT})
install(FILES ${kit}/bin/Qt6Core.dll ${kit}/bin/Qt6Gui.dll ${kit}/bin/Qt6Widgets.dll ${kit}/bin/Qt6PrintSupport.dll DESTINATION . COMPONENT app)
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library} OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    install(FILES ${path} DESTINATION . COMPONENT app)
endforeach()
install(FILES ${kit}/plugins/platforms/qwindows.dll ${kit}/plugins/platforms/qoffscreen.dll DESTINATION platforms COMPONENT app)
install(FILES ${kit}/plugins/styles/qwindowsvistastyle.dll DESTINATION styles COMPONENT app)
install(DIRECTORY ${kit}/plugins/imageformats DESTINATION . COMPONENT app)

install(FILES ${kit}/share/proj/proj.db DESTINATION . COMPONENT app)

# For desks without Arial.
file(GLOB fonts /usr/share/fonts/truetype/liberation/LiberationSans-*.ttf)
install(FILES ${fonts} DESTINATION fonts COMPONENT app)

# Whatever is inside, as Debian tells of it.
foreach(package libqt6core6 libproj25 libsqlite3-0 fonts-liberation mingw-w64-common gcc-mingw-w64-base nlohmann-json3-dev libcli11-dev)
    install(FILES /usr/share/doc/${package}/copyright DESTINATION licenses RENAME ${package}.txt COMPONENT app)
endforeach()
install(FILES /usr/share/common-licenses/LGPL-3 /usr/share/common-licenses/GPL-3 DESTINATION licenses COMPONENT app)

set(CPACK_PACKAGE_NAME Zephyrgraph)
set(CPACK_PACKAGE_VENDOR "Zephyrgraph")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Wind roses from raw meteorological data")
set(CPACK_PACKAGE_FILE_NAME zephyrgraph-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Zephyrgraph)
set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY Zephyrgraph)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL app)
set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_NSIS_DISPLAY_NAME "Zephyrgraph")
set(CPACK_NSIS_PACKAGE_NAME "Zephyrgraph")
set(CPACK_NSIS_INSTALLED_ICON_NAME zephyrgraph.exe)
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
set(CPACK_PACKAGE_EXECUTABLES zephyrgraph Zephyrgraph)
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
set(CPACK_NSIS_MODIFY_PATH OFF)
# A double click on an FRQ file opens it. Another program's claim on the ending comes back when this one goes.
string(JOIN "\n  " CPACK_NSIS_EXTRA_INSTALL_COMMANDS
       "ReadRegStr $0 SHCTX 'Software\\\\Classes\\\\.frq' ''"
       "StrCmp $0 'Zephyrgraph.FRQ' +2"
       "WriteRegStr SHCTX 'Software\\\\Classes\\\\Zephyrgraph.FRQ' 'Before' $0"
       "WriteRegStr SHCTX 'Software\\\\Classes\\\\.frq' '' 'Zephyrgraph.FRQ'"
       "WriteRegStr SHCTX 'Software\\\\Classes\\\\Zephyrgraph.FRQ' '' 'Wind rose frequencies'"
       "WriteRegStr SHCTX 'Software\\\\Classes\\\\Zephyrgraph.FRQ\\\\DefaultIcon' '' '$INSTDIR\\\\zephyrgraph.exe,0'"
       "WriteRegStr SHCTX 'Software\\\\Classes\\\\Zephyrgraph.FRQ\\\\shell\\\\open\\\\command' '' '\\\"$INSTDIR\\\\zephyrgraph.exe\\\" \\\"%1\\\"'"
       "System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'")
string(JOIN "\n  " CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS
       "ReadRegStr $0 SHCTX 'Software\\\\Classes\\\\.frq' ''"
       "StrCmp $0 'Zephyrgraph.FRQ' 0 +6"
       "ReadRegStr $1 SHCTX 'Software\\\\Classes\\\\Zephyrgraph.FRQ' 'Before'"
       "StrCmp $1 '' 0 +3"
       "DeleteRegKey SHCTX 'Software\\\\Classes\\\\.frq'"
       "Goto +2"
       "WriteRegStr SHCTX 'Software\\\\Classes\\\\.frq' '' $1"
       "DeleteRegKey SHCTX 'Software\\\\Classes\\\\Zephyrgraph.FRQ'"
       "System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'")
include(CPack)
