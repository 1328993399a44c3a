# Icon, version and manifest of VORNApp.exe.
enable_language(RC)
set(VORN_VERSION_COMMAS
  "${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},${PROJECT_VERSION_TWEAK}")
set(VORN_PRODUCT_VERSION "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH}")
set(manifest "${CMAKE_CURRENT_SOURCE_DIR}/windows/VORNApp.manifest")
if(MSVC)
  # The linker merges this manifest with the one that it generates.
  set(VORN_MANIFEST_RESOURCE "")
  target_sources(VORNApp PRIVATE "${manifest}")
else()
  set(VORN_MANIFEST_RESOURCE "1 RT_MANIFEST \"${manifest}\"")
endif()
configure_file(windows/VORNApp.rc.in "${CMAKE_CURRENT_BINARY_DIR}/VORNApp.rc" @ONLY)
target_sources(VORNApp PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/VORNApp.rc")
set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/VORNApp.rc" PROPERTIES OBJECT_DEPENDS
  "${manifest};${CMAKE_SOURCE_DIR}/qml/images/VORNApp.ico")
