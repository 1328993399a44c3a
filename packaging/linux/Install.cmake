# The program lies in one folder with its channel library and sample configuration, and runs from any place.
include(GNUInstallDirs)
set(program_dir "${CMAKE_INSTALL_LIBDIR}/VORNApp")
install(TARGETS VORNApp RUNTIME DESTINATION "${program_dir}")
install(FILES "${CMAKE_SOURCE_DIR}/config/config.ini" "${CMAKE_SOURCE_DIR}/config/config.json"
  DESTINATION "${program_dir}")
if(VORN_PORTALHUB_LIBRARY)
  # The file behind the links, under the name by which the program loads it.
  file(REAL_PATH "${VORN_PORTALHUB_LIBRARY}" library)
  install(FILES "${library}" DESTINATION "${program_dir}" RENAME libPortalHub.so)
else()
  install(TARGETS PortalHub LIBRARY DESTINATION "${program_dir}")
endif()
cmake_path(RELATIVE_PATH program_dir BASE_DIRECTORY "${CMAKE_INSTALL_BINDIR}" OUTPUT_VARIABLE link)
install(CODE "
  set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
  file(MAKE_DIRECTORY \"\${bin}\")
  file(CREATE_LINK \"${link}/VORNApp\" \"\${bin}/VORNApp\" SYMBOLIC)
")

install(FILES "${CMAKE_CURRENT_LIST_DIR}/com.vorn.VORNApp.desktop"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/applications")
install(FILES "${CMAKE_CURRENT_LIST_DIR}/com.vorn.VORNApp.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/metainfo")
set(icons "${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor")
foreach(size 16 22 24 32 48 64 128 256 512)
  install(FILES "${CMAKE_CURRENT_LIST_DIR}/icons/${size}x${size}/VORNApp.png"
    DESTINATION "${icons}/${size}x${size}/apps")
endforeach()
install(FILES "${CMAKE_SOURCE_DIR}/qml/images/svg/VORNApp.svg" DESTINATION "${icons}/scalable/apps")

set(CPACK_PACKAGE_CONTACT "VORN <support@vornapp.example>")
include("${CMAKE_CURRENT_LIST_DIR}/Documents.cmake")
install(FILES "${VORN_SBOM}" DESTINATION "${doc_dir}")
include("${CMAKE_CURRENT_LIST_DIR}/Debian.cmake")
