# CPack reads this file once for each kind of package.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL app system)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr/lib/zephyrgraph)
else()
    set(CPACK_COMPONENTS_ALL app)
    set(CPACK_PACKAGING_INSTALL_PREFIX /${CPACK_PACKAGE_FILE_NAME})
endif()
