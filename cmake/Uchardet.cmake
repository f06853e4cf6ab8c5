# The library that guesses the encoding of a text, as the target quillomat_uchardet. For Windows it is
# built from source (packaging/windows/build-uchardet.sh), and QUILLOMAT_UCHARDET in the environment says
# where it stands.
include_guard(GLOBAL)
if(WIN32)
  set(uchardet_search HINTS "$ENV{QUILLOMAT_UCHARDET}/lib" "$ENV{QUILLOMAT_UCHARDET}/include"
                      NO_CMAKE_FIND_ROOT_PATH)
endif()
find_library(UCHARDET_LIBRARY NAMES uchardet ${uchardet_search})
find_path(UCHARDET_INCLUDE uchardet.h PATH_SUFFIXES uchardet ${uchardet_search})
if(NOT UCHARDET_LIBRARY OR NOT UCHARDET_INCLUDE)
  message(FATAL_ERROR "uchardet is missing: install libuchardet-dev, or for Windows run "
                      "packaging/windows/build-uchardet.sh and set QUILLOMAT_UCHARDET to what it prints")
endif()

add_library(quillomat_uchardet INTERFACE)
target_link_libraries(quillomat_uchardet INTERFACE "${UCHARDET_LIBRARY}")
target_include_directories(quillomat_uchardet SYSTEM INTERFACE "${UCHARDET_INCLUDE}")
