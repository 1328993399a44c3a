cmake_minimum_required(VERSION 3.25)
# cmake -DBUILD= -DSTAGE= -DMAKENSIS= -DVERSION= -DCONFIG= -DOUTPUT= -P MakeInstaller.cmake
# Installs the program into a folder and packs that into an installer. The uninstaller removes the very
# files that were installed, one by one, and nothing else.
file(REMOVE_RECURSE "${STAGE}")
set(config "")
if(CONFIG)
  set(config --config "${CONFIG}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${STAGE}" ${config}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE entries LIST_DIRECTORIES true RELATIVE "${STAGE}" "${STAGE}/*")
list(SORT entries ORDER DESCENDING) # what lies in a folder before the folder
set(removal "")
set(kept config.ini) # the user's switches; see VORNApp.nsi
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

# A 64-bit installer where NSIS can make one; Windows' own NSIS makes only the other.
set(target "")
if(CMAKE_HOST_UNIX)
  set(target "-XTarget amd64-unicode")
endif()
# Windows' own NSIS takes the folder of a file only from before a backslash.
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
