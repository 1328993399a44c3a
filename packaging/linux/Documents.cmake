# The documents of a Linux package: copyright, changelog and man page.
set(doc_dir "${CMAKE_INSTALL_DATAROOTDIR}/doc/vornapp")

# indented(<variable> <file>) reads a text in the form that a copyright file needs.
function(indented variable file)
  file(READ "${file}" text)
  string(REGEX REPLACE "\n$" "" text "${text}")
  string(REPLACE "\n" "\n " text " ${text}")
  string(REGEX REPLACE "\n +(\n|$)" "\n .\\1" text "${text}")
  string(REGEX REPLACE "\n +(\n|$)" "\n .\\1" text "${text}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# install_compressed(<file> <folder>) installs a file as gzip without its time stamp.
function(install_compressed file folder)
  find_program(VORN_GZIP gzip REQUIRED)
  execute_process(COMMAND "${VORN_GZIP}" -9nkf "${file}" COMMAND_ERROR_IS_FATAL ANY)
  install(FILES "${file}.gz" DESTINATION "${folder}")
endfunction()

indented(VORN_MIT_TEXT "${CMAKE_SOURCE_DIR}/LICENSE")
indented(VORN_OFL_TEXT "${CMAKE_SOURCE_DIR}/packaging/notices/OFL-1.1.txt")
configure_file("${CMAKE_CURRENT_LIST_DIR}/copyright.in" copyright @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/copyright" DESTINATION "${doc_dir}")
install(FILES "${CMAKE_SOURCE_DIR}/packaging/notices/NOTICES.md" "${CMAKE_SOURCE_DIR}/packaging/notices/OFL-1.1.txt"
  DESTINATION "${doc_dir}")

configure_file("${CMAKE_CURRENT_LIST_DIR}/VORNApp.1.in" VORNApp.1 @ONLY)
install_compressed("${CMAKE_CURRENT_BINARY_DIR}/VORNApp.1" "${CMAKE_INSTALL_MANDIR}/man1")

# The changelog of a Debian package is CHANGELOG.md in another form.
file(STRINGS "${CMAKE_SOURCE_DIR}/CHANGELOG.md" lines ENCODING UTF-8)
set(changelog "")
set(trailer "")
foreach(line IN LISTS lines)
  if(line MATCHES "^## ([0-9.]+) \\((.*)\\)$")
    string(APPEND changelog "${trailer}vornapp (${CMAKE_MATCH_1}) unstable; urgency=medium\n\n")
    execute_process(COMMAND "${CMAKE_COMMAND}" -E env LC_ALL=C date -u -R -d "${CMAKE_MATCH_2}"
      OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(trailer "\n -- ${CPACK_PACKAGE_CONTACT}  ${date}\n\n")
  elseif(trailer AND line MATCHES "^- (.*)$")
    string(APPEND changelog "  * ${CMAKE_MATCH_1}\n")
  elseif(trailer AND line MATCHES "^ +(.+)$")
    string(APPEND changelog "    ${CMAKE_MATCH_1}\n")
  endif()
endforeach()
file(CONFIGURE OUTPUT changelog CONTENT "${changelog}${trailer}" @ONLY)
install_compressed("${CMAKE_CURRENT_BINARY_DIR}/changelog" "${doc_dir}")
