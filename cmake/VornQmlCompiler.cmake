# Replaces Qt's QML compiler by one whose output is the same in each build, where that of Qt is not.
if(CMAKE_HOST_UNIX AND Qt6_VERSION VERSION_LESS 6.8)
  get_target_property(vorn_qmlcachegen Qt6::qmlcachegen LOCATION)
  set(vorn_sorted "${CMAKE_BINARY_DIR}/qmlcachegen")
  file(CONFIGURE OUTPUT "${vorn_sorted}" CONTENT
    "#!/bin/sh\nexec '@CMAKE_CURRENT_SOURCE_DIR@/cmake/qmlcachegen-sorted.sh' '@vorn_qmlcachegen@' \"$@\"\n" @ONLY)
  file(CHMOD "${vorn_sorted}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  get_target_property(vorn_configurations Qt6::qmlcachegen IMPORTED_CONFIGURATIONS)
  set_target_properties(Qt6::qmlcachegen PROPERTIES IMPORTED_LOCATION "${vorn_sorted}")
  foreach(configuration IN LISTS vorn_configurations)
    set_target_properties(Qt6::qmlcachegen PROPERTIES IMPORTED_LOCATION_${configuration} "${vorn_sorted}")
  endforeach()
endif()
