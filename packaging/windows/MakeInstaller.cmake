cmake_minimum_required(VERSION 3.25)
# cmake -DBUILD= -DSTAGE= -DMAKENSIS= -DVERSION= -DCONFIG= -DOUTPUT= -P MakeInstaller.cmake
# Installs the program into a folder and packs the folder into an installer. The uninstaller removes the
# files of this list one by one, and no others.
file(REMOVE_RECURSE "${STAGE}")
set(config "")
if(CONFIG)
  set(config --config "${CONFIG}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${STAGE}" ${config}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE entries LIST_DIRECTORIES true RELATIVE "${STAGE}" "${STAGE}/*")
list(SORT entries ORDER DESCENDING) # the files of a folder before the folder
set(removal "")
set(kept config.ini) # the user's settings; see VORNApp.nsi
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
cmake_path(SET icon NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../../qml/images/VORNApp.ico")
cmake_path(NATIVE_PATH icon icon)
cmake_path(APPEND languages "${CMAKE_CURRENT_LIST_DIR}" Languages.nsh)
cmake_path(NATIVE_PATH languages languages)
cmake_path(NATIVE_PATH STAGE stage)
cmake_path(NATIVE_PATH list list)
cmake_path(NATIVE_PATH OUTPUT output)
execute_process(
  COMMAND "${MAKENSIS}" -V2 ${target} "-DVERSION=${VERSION}" "-DSTAGE=${stage}" "-DREMOVAL=${list}"
    "-DICON=${icon}" "-DLANGUAGES=${languages}" "-DOUTPUT=${output}" "${CMAKE_CURRENT_LIST_DIR}/VORNApp.nsi"
  COMMAND_ERROR_IS_FATAL ANY)
