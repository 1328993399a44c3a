cmake_minimum_required(VERSION 3.25)
# cmake -DBUILD= -DSTAGE= -DMAKENSIS= -DVERSION= -DCONFIG= -DOUTPUT= [-DSTAND_IN=ON] [-DSIGN=<command>]
#       [-DSYMBOLS=<folder>] [-DOBJCOPY=] [-DSTRIP=]
#       [-DMSI=<file>.msi -DWIXL= -DMSIINFO= -DMSIBUILD=] -P MakeInstaller.cmake
# Installs the program into a folder and packs the folder into an installer, with a file of its SHA-256 sum
# beside it. The uninstaller removes the files of a list one by one, and no others. With MSI the same files are
# packed for Windows Installer too.
#
# The command SIGN gets the path of a file as its last argument. It is run once for each program and library,
# the uninstaller and the installer. With OBJCOPY and STRIP the symbols of our own files move to SYMBOLS.
file(REMOVE_RECURSE "${STAGE}")
set(config "")
if(CONFIG)
  set(config --config "${CONFIG}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${STAGE}" ${config}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

# Symbols first: stripping would remove a signature.
if(OBJCOPY AND STRIP)
  file(REMOVE_RECURSE "${SYMBOLS}")
  file(MAKE_DIRECTORY "${SYMBOLS}")
  foreach(name VORNApp.exe PortalHub.dll)
    if(EXISTS "${STAGE}/${name}" AND (STAND_IN OR NOT name STREQUAL "PortalHub.dll"))
      foreach(command "${OBJCOPY};--only-keep-debug;${STAGE}/${name};${SYMBOLS}/${name}.debug"
                      "${STRIP};--strip-all;${STAGE}/${name}"
                      "${OBJCOPY};--add-gnu-debuglink=${SYMBOLS}/${name}.debug;${STAGE}/${name}")
        execute_process(COMMAND ${command} COMMAND_ERROR_IS_FATAL ANY)
      endforeach()
    endif()
  endforeach()
endif()
if(SIGN)
  separate_arguments(sign NATIVE_COMMAND "${SIGN}")
  file(GLOB_RECURSE binaries "${STAGE}/*.exe" "${STAGE}/*.dll")
  foreach(binary IN LISTS binaries)
    execute_process(COMMAND ${sign} "${binary}" COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endif()

file(GLOB_RECURSE entries LIST_DIRECTORIES true RELATIVE "${STAGE}" "${STAGE}/*")
list(SORT entries ORDER DESCENDING) # the files of a folder before the folder
set(removal "")
set(kept config.ini config.json) # see VORNApp.nsi
foreach(entry IN LISTS entries)
  string(REPLACE "/" "\\" path "${entry}")
  if(IS_DIRECTORY "${STAGE}/${entry}")
    string(APPEND removal "RMDir \"$INSTDIR\\${path}\"\n")
  elseif(NOT entry IN_LIST kept)
    string(APPEND removal "Delete \"$INSTDIR\\${path}\"\n")
  endif()
endforeach()
set(list "${BUILD}/removal.nsh")
file(WRITE "${list}" "${removal}")

# NSIS on Windows makes 32-bit installers only.
set(target "")
if(CMAKE_HOST_UNIX)
  set(target "-XTarget amd64-unicode")
endif()
# NSIS on Windows accepts only backslashes in paths.
cmake_path(SET icon_file NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../../qml/images/VORNApp.ico")
cmake_path(NATIVE_PATH icon_file icon)
cmake_path(APPEND languages "${CMAKE_CURRENT_LIST_DIR}" Languages.nsh)
cmake_path(NATIVE_PATH languages languages)
cmake_path(NATIVE_PATH STAGE stage)
cmake_path(NATIVE_PATH list list)
cmake_path(NATIVE_PATH OUTPUT output)
set(options "")
if(STAND_IN)
  list(APPEND options -DSTAND_IN)
endif()
if(SIGN)
  list(APPEND options "-DSIGN=${SIGN}")
endif()
execute_process(
  COMMAND "${MAKENSIS}" -V2 ${target} "-DVERSION=${VERSION}" "-DSTAGE=${stage}" "-DREMOVAL=${list}"
    "-DICON=${icon}" "-DLANGUAGES=${languages}" "-DOUTPUT=${output}" ${options}
    "${CMAKE_CURRENT_LIST_DIR}/VORNApp.nsi"
  COMMAND_ERROR_IS_FATAL ANY)
file(SHA256 "${OUTPUT}" sum)
cmake_path(GET OUTPUT FILENAME name)
file(WRITE "${OUTPUT}.sha256" "${sum}  ${name}\n")

if(MSI)
  execute_process(
    COMMAND "${CMAKE_COMMAND}" "-DSTAGE=${STAGE}" "-DWIXL=${WIXL}" "-DMSIINFO=${MSIINFO}" "-DMSIBUILD=${MSIBUILD}"
      "-DVERSION=${VERSION}" "-DICON=${icon_file}" "-DOUTPUT=${MSI}" "-DSTAND_IN=${STAND_IN}" "-DSIGN=${SIGN}"
      -P "${CMAKE_CURRENT_LIST_DIR}/MakeMsi.cmake"
    COMMAND_ERROR_IS_FATAL ANY)
endif()
