# quillomat_windows_resources(target description [ICON]): what Windows shows of a program's file and
# how it treats the program. On other systems there is no such thing.
function(quillomat_windows_resources target description)
  if(NOT WIN32)
    return()
  endif()
  set(QUILLOMAT_FILE_NAME "${target}.exe")
  set(QUILLOMAT_FILE_DESCRIPTION "${description}")
  string(REPLACE "." "," QUILLOMAT_VERSION_NUMBERS "${PROJECT_VERSION},0,0")
  # "7,07" would be read as an octal number by some and as 7 by all.
  string(REGEX REPLACE ",0+([0-9])" ",\\1" QUILLOMAT_VERSION_NUMBERS "${QUILLOMAT_VERSION_NUMBERS}")
  set(folder "${PROJECT_SOURCE_DIR}/packaging/windows")
  set(QUILLOMAT_MANIFEST "${folder}/quillomat.manifest")
  set(QUILLOMAT_ICON_LINE "")
  if("ICON" IN_LIST ARGN)
    set(icon "${CMAKE_CURRENT_BINARY_DIR}/quillomat.ico")
    add_custom_command(
      OUTPUT "${icon}"
      COMMAND "${folder}/make-icon.sh" "${PROJECT_SOURCE_DIR}/packaging/quillomat.svg" "${icon}"
      DEPENDS "${folder}/make-icon.sh" "${PROJECT_SOURCE_DIR}/packaging/quillomat.svg")
    set(QUILLOMAT_ICON_LINE "1 ICON \"${icon}\"")
  endif()
  set(resources "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  configure_file("${folder}/resources.rc.in" "${resources}" @ONLY)
  set_property(SOURCE "${resources}" PROPERTY OBJECT_DEPENDS "${icon}" "${QUILLOMAT_MANIFEST}")
  enable_language(RC)
  target_sources(${target} PRIVATE "${resources}")
endfunction()
