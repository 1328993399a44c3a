# VORNAppPlain is the program with one plain page in place of its pages.
set(page "${CMAKE_CURRENT_SOURCE_DIR}/windows/Main.qml")
qt_add_executable(VORNAppPlain WIN32 "${CMAKE_SOURCE_DIR}/app/Main.cpp" "${CMAKE_BINARY_DIR}/app/VORNApp.rc")
target_link_libraries(VORNAppPlain PRIVATE vorn_app vorn_platform vorn_logging vorn_revision vorn_compiled_qml)
set_source_files_properties("${page}" PROPERTIES QT_RESOURCE_ALIAS Main.qml QT_QML_SKIP_QMLDIR_ENTRY TRUE)
configure_file("${CMAKE_SOURCE_DIR}/qml/VORNApp/qmldir" "${CMAKE_CURRENT_BINARY_DIR}/VORNAppPlain/qmldir" COPYONLY)
qt_add_qml_module(VORNAppPlain
  URI VORNApp
  VERSION 1.0
  RESOURCE_PREFIX "/"
  NO_RESOURCE_TARGET_PATH
  NO_GENERATE_QMLDIR
  NO_LINT
  OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/VORNAppPlain"
  QML_FILES "${page}"
)
