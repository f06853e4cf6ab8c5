# The library of regular expressions that the toolkit is built on, as the target quillomat_pcre2. Called
# directly it looks at two million words several times as fast. For Windows it is hidden in the toolkit.
include_guard(GLOBAL)
find_library(PCRE2_LIBRARY pcre2-8)
find_path(PCRE2_INCLUDE pcre2.h)
if(NOT PCRE2_LIBRARY OR NOT PCRE2_INCLUDE)
  message(FATAL_ERROR "PCRE2 is missing: install libpcre2-dev")
endif()

add_library(quillomat_pcre2 INTERFACE)
target_link_libraries(quillomat_pcre2 INTERFACE "${PCRE2_LIBRARY}")
target_compile_definitions(quillomat_pcre2 INTERFACE PCRE2_CODE_UNIT_WIDTH=8)
