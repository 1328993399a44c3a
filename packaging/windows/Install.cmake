# One folder holds the program, its libraries, the sample configuration and the licences.
install(TARGETS VORNApp RUNTIME DESTINATION .)
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" DESTINATION licenses RENAME LICENSE.txt)
install(DIRECTORY "${CMAKE_SOURCE_DIR}/packaging/notices/" DESTINATION licenses)
install(FILES "${VORN_SBOM}" DESTINATION licenses)
if(VORN_PORTALHUB_LIBRARY)
  install(FILES "${VORN_PORTALHUB_DLL}" DESTINATION .)
else()
  install(TARGETS PortalHub RUNTIME DESTINATION .)
endif()
install(FILES "${CMAKE_SOURCE_DIR}/config/config.ini" "${CMAKE_SOURCE_DIR}/config/config.json" DESTINATION .)
# An update keeps an edited config.json, and tells by this copy whether it was edited.
install(FILES "${CMAKE_SOURCE_DIR}/config/config.json" DESTINATION . RENAME config.default.json)
if(MSVC)
  # The C++ runtime, which a bare PC lacks.
  set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION .)
  include(InstallRequiredSystemLibraries)
endif()

if(CMAKE_CROSSCOMPILING)
  # Qt's deploy tool runs on Windows only.
  get_target_property(qt_core Qt6::Core IMPORTED_LOCATION_RELEASE)
  if(NOT qt_core)
    get_target_property(qt_core Qt6::Core IMPORTED_LOCATION_MINSIZEREL)
  endif()
  if(NOT qt_core)
    get_target_property(qt_core Qt6::Core LOCATION)
  endif()
  get_filename_component(VORN_QT_BIN "${qt_core}" DIRECTORY)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=libstdc++-6.dll
    OUTPUT_VARIABLE runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
  get_filename_component(VORN_RUNTIME_DIR "${runtime}" DIRECTORY)
  configure_file("${CMAKE_CURRENT_LIST_DIR}/CrossDeploy.cmake.in" CrossDeploy.cmake @ONLY)
  install(SCRIPT "${CMAKE_CURRENT_BINARY_DIR}/CrossDeploy.cmake")
else()
  qt_generate_deploy_qml_app_script(TARGET VORNApp OUTPUT_SCRIPT deploy_script)
  # The deploy script reads this variable during the installation.
  install(CODE "set(QT_DEPLOY_BIN_DIR .)")
  install(SCRIPT "${deploy_script}")
  # The deploy script copies libraries of Qt only.
  install(FILES $<TARGET_RUNTIME_DLLS:VORNApp> DESTINATION .)
endif()

# `ninja installer` makes the installer from the installed files, and a package for Windows Installer where the tools
# for it are there.
find_program(VORN_MAKENSIS makensis PATHS "$ENV{ProgramFiles\(x86\)}/NSIS")
find_program(VORN_WIXL wixl)
find_program(VORN_MSIINFO msiinfo)
find_program(VORN_MSIBUILD msibuild)
set(msi "")
if(VORN_WIXL AND VORN_MSIINFO AND VORN_MSIBUILD)
  set(msi "-DMSI=${CMAKE_BINARY_DIR}/VORNApp-${PROJECT_VERSION}.msi" "-DWIXL=${VORN_WIXL}"
    "-DMSIINFO=${VORN_MSIINFO}" "-DMSIBUILD=${VORN_MSIBUILD}")
endif()
set(VORN_SIGN_COMMAND "" CACHE STRING
    "Command that signs the file which is its last argument; run for everything in the installer and for itself")
if(VORN_MAKENSIS)
  if(VORN_PORTALHUB_LIBRARY)
    set(stand_in OFF)
  else()
    set(stand_in ON)
  endif()
  add_custom_target(installer
    COMMAND "${CMAKE_COMMAND}"
      "-DBUILD=${CMAKE_BINARY_DIR}" "-DSTAGE=${CMAKE_BINARY_DIR}/stage" "-DMAKENSIS=${VORN_MAKENSIS}"
      "-DVERSION=${PROJECT_VERSION}" "-DCONFIG=$<CONFIG>"
      "-DOUTPUT=${CMAKE_BINARY_DIR}/VORNApp-${PROJECT_VERSION}-setup.exe"
      "-DSTAND_IN=${stand_in}" "-DSIGN=${VORN_SIGN_COMMAND}"
      "-DSYMBOLS=${CMAKE_BINARY_DIR}/VORNApp-${PROJECT_VERSION}-symbols"
      "$<$<BOOL:${MINGW}>:-DOBJCOPY=${CMAKE_OBJCOPY}>" "$<$<BOOL:${MINGW}>:-DSTRIP=${CMAKE_STRIP}>"
      ${msi}
      -P "${CMAKE_CURRENT_LIST_DIR}/MakeInstaller.cmake"
    DEPENDS VORNApp
    VERBATIM)
  if(TARGET PortalHub)
    add_dependencies(installer PortalHub)
  endif()
endif()
