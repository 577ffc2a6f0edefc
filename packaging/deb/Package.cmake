# SPDX-License-Identifier: MIT
# cpack --config build/release/CPackConfig.cmake writes the Debian package.
install(FILES deb/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lumora)
set(CPACK_PACKAGE_VENDOR "The Lumora authors")
set(CPACK_PACKAGE_CONTACT "${LUMORA_MAINTAINER}")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "toolbox for the artwork of mobile and desktop apps")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Lumora takes the routine out of an app's artwork. Its window and its command
line share six tools:
 - every icon file an app needs, from one picture, .icns included;
 - labelled placeholder pictures;
 - single-resolution pictures from @2x pictures;
 - colours as code for iOS, the Mac and style sheets;
 - the devices that run a given iOS version and have given features;
 - a check of .ipa packages before they are handed in.
")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${LUMORA_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://lumora.example")
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The libraries come from the program itself; these are plug-ins that it loads by name: the platforms it shows its
# window on, and the readers of SVG (its own images) and of TIFF, WebP and ICNS pictures.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "libqt6svg6, qt6-image-formats-plugins, qt6-qpa-plugins, qt6-wayland, hicolor-icon-theme")
# The toolkit's own texts, for its file dialogs, in languages other than English.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/deb/FinishStaging.cmake)
include(CPack)
