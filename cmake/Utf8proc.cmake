# The library that knows the characters of Unicode, as the target quillomat_utf8proc. For Windows it is
# built from source (packaging/windows/build-utf8proc.sh), and QUILLOMAT_UTF8PROC in the environment says
# where it stands.
include_guard(GLOBAL)
if(WIN32)
  set(utf8proc_search HINTS "$ENV{QUILLOMAT_UTF8PROC}/lib" "$ENV{QUILLOMAT_UTF8PROC}/include"
                      NO_CMAKE_FIND_ROOT_PATH)
endif()
find_library(UTF8PROC_LIBRARY NAMES utf8proc utf8proc_static ${utf8proc_search})
find_path(UTF8PROC_INCLUDE utf8proc.h ${utf8proc_search})
if(NOT UTF8PROC_LIBRARY OR NOT UTF8PROC_INCLUDE)
  message(FATAL_ERROR "utf8proc is missing: install libutf8proc-dev, or for Windows run "
                      "packaging/windows/build-utf8proc.sh and set QUILLOMAT_UTF8PROC to what it prints")
endif()

add_library(quillomat_utf8proc INTERFACE)
target_link_libraries(quillomat_utf8proc INTERFACE "${UTF8PROC_LIBRARY}")
if(WIN32)
  target_compile_definitions(quillomat_utf8proc INTERFACE UTF8PROC_STATIC)
  target_include_directories(quillomat_utf8proc SYSTEM INTERFACE "${UTF8PROC_INCLUDE}")
endif()
