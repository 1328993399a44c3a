cmake_minimum_required(VERSION 3.25)
# cmake -DSTAGE=<folder> -DWIXL= -DMSIINFO= -DMSIBUILD= -DVERSION= -DICON= -DOUTPUT=<file>.msi
#       [-DSTAND_IN=ON] [-DSIGN=<command>] -P MakeMsi.cmake
# Packs the folder into a Windows Installer package for all users of a computer, with a file of its SHA-256 sum
# beside it.
#
# The identifiers of components depend on their path only. Windows Installer needs that for an upgrade that keeps
# edited files: it installs the new version first, and then removes what only the old one had.
set(namespace 5c1c6a0e-9f0b-4c3e-9f64-0f3f7d0b7a51)

function(make_id result prefix path)
  string(SHA1 hash "${path}")
  set(${result} "${prefix}${hash}" PARENT_SCOPE)
endfunction()

# Appends the Directory element of one folder to `tree`, and its components to `references`.
function(describe_folder folder indent)
  file(GLOB entries RELATIVE "${STAGE}" "${STAGE}/${folder}*")
  list(SORT entries)
  foreach(entry IN LISTS entries)
    get_filename_component(name "${entry}" NAME)
    if(IS_DIRECTORY "${STAGE}/${entry}")
      make_id(id d "${entry}")
      string(APPEND tree "${indent}<Directory Id=\"${id}\" Name=\"${name}\">\n")
      describe_folder("${entry}/" "${indent}  ")
      string(APPEND tree "${indent}</Directory>\n")
    else()
      make_id(id f "${entry}")
      make_id(component c "${entry}")
      string(UUID guid NAMESPACE ${namespace} NAME "${entry}" TYPE SHA1 UPPER)
      set(shortcut "")
      if(entry STREQUAL "VORNApp.exe")
        set(id Program)
        set(shortcut "<Shortcut Id=\"StartMenu\" Directory=\"ProgramMenuFolder\" Name=\"VORNApp\""
          " Target=\"[INSTALLDIR]VORNApp.exe\" WorkingDirectory=\"WORKINGFOLDER\" Icon=\"VORNApp.ico\"/>")
        string(CONCAT shortcut ${shortcut})
      endif()
      string(APPEND tree "${indent}<Component Id=\"${component}\" Guid=\"${guid}\" Win64=\"yes\">"
        "<File Id=\"${id}\" Source=\"${STAGE}/${entry}\" KeyPath=\"yes\"/>${shortcut}</Component>\n")
      string(APPEND references "      <ComponentRef Id=\"${component}\"/>\n")
    endif()
  endforeach()
  set(tree "${tree}" PARENT_SCOPE)
  set(references "${references}" PARENT_SCOPE)
endfunction()

set(tree "")
set(references "")
describe_folder("" "          ")
set(comments "")
if(STAND_IN)
  set(comments "Contains a stand-in for the channel library of the display’s maker.")
endif()
string(UUID product NAMESPACE ${namespace} NAME "product ${VERSION}" TYPE SHA1 UPPER)
configure_file("${CMAKE_CURRENT_LIST_DIR}/VORNApp.wxs.in" "${OUTPUT}.wxs" @ONLY)
execute_process(COMMAND "${WIXL}" --arch x64 --output "${OUTPUT}" "${OUTPUT}.wxs" COMMAND_ERROR_IS_FATAL ANY)

# replace_in_table(<table> <regular expression> <replacement>)
function(replace_in_table table expression replacement)
  execute_process(COMMAND "${MSIINFO}" export "${OUTPUT}" ${table} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "${expression}" "${replacement}" text "${text}")
  file(WRITE "${OUTPUT}.${table}.idt" "${text}")
  execute_process(COMMAND "${MSIBUILD}" "${OUTPUT}" -i "${OUTPUT}.${table}.idt" COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE "${OUTPUT}.${table}.idt")
endfunction()

# wixl writes no versions of files, without which Windows Installer keeps every file that has one. This one is higher
# than all, so that programs and libraries are always replaced. Files without a version are replaced unless edited.
replace_in_table(File "(\\.(exe|dll)\t[0-9]+\t)\t" "\\165535.0.0.0\t")
# An edited config.ini is never replaced (msidbComponentAttributesNeverOverwrite).
make_id(component c config.ini)
replace_in_table(Component "(${component}\t[^\t]*\t[^\t]*\t)256" "\\1384")

if(SIGN)
  separate_arguments(sign NATIVE_COMMAND "${SIGN}")
  execute_process(COMMAND ${sign} "${OUTPUT}" COMMAND_ERROR_IS_FATAL ANY)
endif()
file(SHA256 "${OUTPUT}" sum)
cmake_path(GET OUTPUT FILENAME name)
file(WRITE "${OUTPUT}.sha256" "${sum}  ${name}\n")
