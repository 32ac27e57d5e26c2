# The Debian package, made by cpack in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmaris)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "${VELMARIS_AUTEURS}")
set(CPACK_PACKAGE_CONTACT "${VELMARIS_AUTEURS} <${VELMARIS_COURRIEL}>")
set(CPACK_PACKAGE_HOMEPAGE_URL "${VELMARIS_SITE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "celestial navigation with a sextant")
set(CPACK_PACKAGE_DESCRIPTION
"Velmaris is a desktop workstation for celestial navigation at sea. A sextant
sight of the Sun, the Moon, a planet or a star is typed in; the program gives
its intercept and azimuth and draws the line of position on a plotting sheet.
.
Lines are stored, shown together and carried along the ship's track. A world
chart, a chart of the sky above the position, dead reckoning and a night view
in red help with the rest. The program speaks French and English and needs no
network.
.
The terminal companion velmaris-calcul reduces saved sights and gives places of
the bodies as JSON.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# Loaded while running, and so unseen by shlibdeps: the type family, without which captions are wider than their room,
# the toolkit's own words in French, the desktop's opener of the guide and of addresses, a reader of help files.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation2 | fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland, xchm | kchmviewer")

# What the Debian package alone has is added to its tree right before it is packed.
configure_file(Debian.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/Debian.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/Debian.cmake)
include(CPack)
