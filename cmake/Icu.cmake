# ICU's headers say which version of its library is loaded when a text needs it (src/system/linux/
# system_segmenter.cpp). It is not linked: a start without it is quicker.
include_guard(GLOBAL)
find_path(ICU_INCLUDE unicode/ubrk.h)
if(NOT ICU_INCLUDE)
  message(FATAL_ERROR "ICU's headers are missing: install libicu-dev")
endif()
file(STRINGS "${ICU_INCLUDE}/unicode/uvernum.h" version REGEX "define U_ICU_VERSION_MAJOR_NUM")
string(REGEX MATCH "[0-9]+" version "${version}")
set(QUILLOMAT_ICU_VERSION "${version}" CACHE INTERNAL "Of the library that is loaded")
