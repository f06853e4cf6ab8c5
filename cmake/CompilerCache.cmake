# What was compiled once is not compiled again where ccache is installed. A launcher of the user's own
# wins, an empty one as well (-DCMAKE_CXX_COMPILER_LAUNCHER=).
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(QUILLOMAT_CCACHE ccache)
  if(QUILLOMAT_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${QUILLOMAT_CCACHE}")
  endif()
  mark_as_advanced(QUILLOMAT_CCACHE)
endif()
