# vorn_add_font(<target>) adds the font of the user interface to the resources of a target, as
# :/fonts/LatoRegular.ttf.
function(vorn_add_font target)
  set(lato "${VORN_LATO_DIR}/Lato-Regular.ttf")
  if(NOT EXISTS "${lato}")
    message(FATAL_ERROR "Lato-Regular.ttf is not in ${VORN_LATO_DIR}: "
      "install the package fonts-lato, or set VORN_LATO_DIR to the folder that holds it.")
  endif()
  set_source_files_properties("${lato}" PROPERTIES QT_RESOURCE_ALIAS LatoRegular.ttf)
  qt_add_resources(${target} ${target}_font PREFIX "/fonts" BASE "${VORN_LATO_DIR}" FILES "${lato}")
endfunction()
