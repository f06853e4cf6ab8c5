# The library that writes workbooks, and zlib, which reads them again, as the target quillomat_xlsxwriter.
# It is not linked but loaded when a workbook is written (src/export/xlsx_library_loaded.cpp). For Windows it
# is built from source (packaging/windows/build-xlsx.sh), QUILLOMAT_XLSX in the environment says where it
# stands, and it is linked.
if(WIN32)
  set(xlsx_search HINTS "$ENV{QUILLOMAT_XLSX}/lib" "$ENV{QUILLOMAT_XLSX}/include" NO_CMAKE_FIND_ROOT_PATH)
endif()
find_library(XLSXWRITER_LIBRARY xlsxwriter ${xlsx_search})
find_path(XLSXWRITER_INCLUDE xlsxwriter.h ${xlsx_search})
if(NOT XLSXWRITER_LIBRARY OR NOT XLSXWRITER_INCLUDE)
  message(FATAL_ERROR "libxlsxwriter is missing: install libxlsxwriter-dev, or for Windows run "
                      "packaging/windows/build-xlsx.sh and set QUILLOMAT_XLSX to what it prints")
endif()

add_library(quillomat_xlsxwriter INTERFACE)
if(WIN32)
  find_library(ZLIB_LIBRARY libz.a REQUIRED)
  target_link_libraries(quillomat_xlsxwriter INTERFACE "${XLSXWRITER_LIBRARY}")
  target_include_directories(quillomat_xlsxwriter SYSTEM INTERFACE "${XLSXWRITER_INCLUDE}")
else()
  find_library(ZLIB_LIBRARY z REQUIRED)
  # The name under which programs know it, with the version of its interface: libxlsxwriter.so.4.
  execute_process(COMMAND "${CMAKE_OBJDUMP}" -p "${XLSXWRITER_LIBRARY}" OUTPUT_VARIABLE headers
                  COMMAND_ERROR_IS_FATAL ANY)
  if(NOT headers MATCHES "SONAME +(libxlsxwriter\\.so\\.([0-9]+))")
    message(FATAL_ERROR "${XLSXWRITER_LIBRARY} does not say what it is called")
  endif()
  set(QUILLOMAT_XLSXWRITER_PACKAGE "libxlsxwriter${CMAKE_MATCH_2}" CACHE INTERNAL "That has the library")
  target_compile_definitions(quillomat_xlsxwriter
                             INTERFACE "QUILLOMAT_XLSXWRITER_FILE=\"${CMAKE_MATCH_1}\"")
endif()
target_link_libraries(quillomat_xlsxwriter INTERFACE "${ZLIB_LIBRARY}")
