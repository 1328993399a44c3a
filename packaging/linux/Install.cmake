# A tree that runs from any place: the program with its library and sample configuration in one folder,
# and what a desktop needs to find it.
set(program_dir lib/VORNApp)
install(TARGETS VORNApp RUNTIME DESTINATION ${program_dir})
if(TARGET PortalHub)
  install(TARGETS PortalHub LIBRARY DESTINATION ${program_dir})
endif()
install(FILES "${CMAKE_SOURCE_DIR}/config/config.ini" "${CMAKE_SOURCE_DIR}/config/config.json"
  DESTINATION ${program_dir})
install(CODE "
  file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
  file(CREATE_LINK ../${program_dir}/VORNApp \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/VORNApp\" SYMBOLIC)
")
install(FILES "${CMAKE_CURRENT_LIST_DIR}/VORNApp.desktop" DESTINATION share/applications)
configure_file("${CMAKE_CURRENT_LIST_DIR}/VORNApp.metainfo.xml.in" VORNApp.metainfo.xml @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/VORNApp.metainfo.xml" DESTINATION share/metainfo)
foreach(size 16 22 24 32 48 64 128 256 512)
  install(FILES "${CMAKE_CURRENT_LIST_DIR}/icons/${size}x${size}/VORNApp.png"
    DESTINATION share/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES "${CMAKE_SOURCE_DIR}/qml/images/svg/VORNApp.svg"
  DESTINATION share/icons/hicolor/scalable/apps)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vornapp)
set(CPACK_PACKAGE_VENDOR VORN)
set(CPACK_PACKAGE_CONTACT "VORN <support@vornapp.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Desktop companion for VORN meeting-room displays")
set(CPACK_PACKAGE_DESCRIPTION "Follows the connection to a display, launches meetings, shows and operates
the display's screen and steers its camera, from one window and the tray.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# Crash reports name the program's functions by its table of symbols.
set(CPACK_STRIP_FILES OFF)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_BINARY_DIR}/bin")
# Loaded at run time, so that no tool can find out.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_DEPENDS
  libqt6sql6-sqlite
  qml6-module-qtqml qml6-module-qtqml-workerscript
  qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-controls
  qml6-module-qtquick-templates qml6-module-qtquick-layouts qml6-module-qtquick-dialogs
  qml6-module-qt-labs-folderlistmodel
  qml6-module-qtmultimedia qml6-module-qt5compat-graphicaleffects)
# Lato has no Chinese, Japanese, Korean and Arabic letters; the texts of Qt's own dialogs are a package apart.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS
  libgl1-mesa-dri qt6-wayland qt6-translations-l10n fonts-noto-cjk fonts-noto-core)
include(CPack)
