# The target quillomat_highway: Highway's headers, from Debian's libhwy-dev. They are the same for every
# system; its library, which Debian has for its own only, is not needed.
find_path(QUILLOMAT_HIGHWAY_INCLUDES hwy/highway.h PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
add_library(quillomat_highway INTERFACE)
if(NOT CMAKE_CROSSCOMPILING)
  target_include_directories(quillomat_highway SYSTEM INTERFACE "${QUILLOMAT_HIGHWAY_INCLUDES}")
else()
  # A folder with nothing else in it: this system's other headers are not those of the target.
  set(headers "${CMAKE_BINARY_DIR}/highway")
  file(MAKE_DIRECTORY "${headers}")
  file(CREATE_LINK "${QUILLOMAT_HIGHWAY_INCLUDES}/hwy" "${headers}/hwy" SYMBOLIC)
  target_include_directories(quillomat_highway SYSTEM INTERFACE "${headers}")
endif()
if(WIN32)
  # There the compiler keeps vectors of 32 bytes and more on a stack that is aligned to 16, and
  # reaches for them with instructions that want more: a program would end at the first of them. The
  # assembler is told to write the instructions that take any address, which are as fast.
  target_compile_options(quillomat_highway INTERFACE -Wa,-muse-unaligned-vector-move)
endif()
