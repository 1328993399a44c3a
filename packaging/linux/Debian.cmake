# Settings of the Debian package. Configure with CMAKE_INSTALL_PREFIX=/usr, and with debug information, which
# goes into a package of its own.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vornapp)
set(CPACK_PACKAGE_VENDOR VORN)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
if(VORN_REVISION MATCHES "^v[0-9.]+-([1-9][0-9]*)-(g[0-9a-f]+)") # commits after the tag
  string(APPEND CPACK_PACKAGE_VERSION "+${CMAKE_MATCH_1}.${CMAKE_MATCH_2}")
endif()
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop companion for VORN meeting-room displays")
set(CPACK_PACKAGE_DESCRIPTION "VORNApp follows the connection to a display, launches meetings, shows and
operates the screen of the display and controls its camera, from one window
and the tray.
.
")
if(VORN_PORTALHUB_LIBRARY)
  string(APPEND CPACK_PACKAGE_DESCRIPTION "This build contains the channel library of the display's maker.")
else()
  string(APPEND CPACK_PACKAGE_DESCRIPTION
    "This build contains a stand-in for the channel library of the display's\n"
    "maker, which talks to the simulated display only.")
endif()
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Moves the symbols into vornapp-dbgsym, and strips the program.
set(CPACK_STRIP_FILES OFF)
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${PROJECT_HOMEPAGE_URL}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_BINARY_DIR}/bin")
if(VORN_PORTALHUB_LIBRARY)
  get_filename_component(folder "${VORN_PORTALHUB_LIBRARY}" DIRECTORY)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${folder}")
endif()
# Plugins and QML modules are loaded at run time, so dpkg-shlibdeps does not find them.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_DEPENDS
  libqt6sql6-sqlite
  qml6-module-qtqml qml6-module-qtqml-workerscript
  qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-controls
  qml6-module-qtquick-templates qml6-module-qtquick-layouts qml6-module-qtquick-dialogs
  qml6-module-qt-labs-folderlistmodel
  qml6-module-qtmultimedia qml6-module-qt5compat-graphicaleffects)
# Lato has no Chinese, Japanese, Korean and Arabic letters. Qt's own texts are in a package of their own.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS
  libgl1-mesa-dri qt6-wayland qt6-translations-l10n fonts-noto-cjk fonts-noto-core)
include(CPack)
