# cpack makes a Debian package of what is installed.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zevlin)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Zevlin team <${ZEVLIN_SUPPORT_ADDRESS}>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${ZEVLIN_WEB_ADDRESS})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "fill in the ACBL convention card of a bridge partnership")
file(READ ${CMAKE_SOURCE_DIR}/packaging/debian/description CPACK_DEBIAN_PACKAGE_DESCRIPTION)
string(STRIP "${CPACK_DEBIAN_PACKAGE_DESCRIPTION}" CPACK_DEBIAN_PACKAGE_DESCRIPTION)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# The libraries that the program is linked with are found by what it asks for; the fonts that stand in
# for Arial and Arial Narrow can't be. The narrow ones have had a package of their own since 2.0.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "fonts-liberation, fonts-liberation (<< 1:2) | fonts-liberation-sans-narrow")
# Without a desktop's font the menus would be set in whatever face there is. The library of the print
# service is loaded when it is needed, so the program isn't linked with it.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, libcups2, qt6-wayland")
include(CPack)
