# The library that writes workbooks, and zlib, which compresses them and reads them again, as the target
# quillomat_xlsxwriter. For Windows it is built from
# source (packaging/windows/build-xlsx.sh), and QUILLOMAT_XLSX in the environment says where it stands.
if(CMAKE_CROSSCOMPILING)
  set(xlsx_search HINTS "$ENV{QUILLOMAT_XLSX}/lib" "$ENV{QUILLOMAT_XLSX}/include" NO_CMAKE_FIND_ROOT_PATH)
endif()
find_library(XLSXWRITER_LIBRARY xlsxwriter ${xlsx_search})
find_path(XLSXWRITER_INCLUDE xlsxwriter.h ${xlsx_search})
if(NOT XLSXWRITER_LIBRARY OR NOT XLSXWRITER_INCLUDE)
  message(FATAL_ERROR "libxlsxwriter is missing: install libxlsxwriter-dev, or for Windows run "
                      "packaging/windows/build-xlsx.sh and set QUILLOMAT_XLSX to what it prints")
endif()

if(CMAKE_CROSSCOMPILING)
  find_library(ZLIB_LIBRARY libz.a REQUIRED)
else()
  find_library(ZLIB_LIBRARY z REQUIRED)
endif()

add_library(quillomat_xlsxwriter INTERFACE)
target_link_libraries(quillomat_xlsxwriter INTERFACE "${XLSXWRITER_LIBRARY}" "${ZLIB_LIBRARY}")
if(CMAKE_CROSSCOMPILING)
  target_include_directories(quillomat_xlsxwriter SYSTEM INTERFACE "${XLSXWRITER_INCLUDE}")
endif()
