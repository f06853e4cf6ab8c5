# quillomat_configure(target): the language level, warnings and sanitizers that every target of ours
# shares. Kept on targets, not in global flags, so that libraries of others are built as they wish.
find_package(Threads REQUIRED)

# The presets that we develop with make errors of them (CMAKE_COMPILE_WARNING_AS_ERROR); a compiler that we
# have never seen may warn of what it likes.
add_library(quillomat_warnings INTERFACE)
target_compile_options(quillomat_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)

function(quillomat_configure target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:quillomat_warnings>)
  if(QUILLOMAT_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-sanitize-recover=all
                                            -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  elseif(QUILLOMAT_SANITIZE_THREADS)
    target_compile_options(${target} PUBLIC -fsanitize=thread)
    target_link_options(${target} PUBLIC -fsanitize=thread)
  endif()
  if(QUILLOMAT_BUILD_FUZZERS)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

# quillomat_library(folder SOURCES ... LINKS ...): the static library of one folder of src/.
function(quillomat_library folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  set(target quillomat_${folder})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${target} PUBLIC ${ARG_LINKS})
  quillomat_configure(${target})
  quillomat_headers(${target})
endfunction()

# quillomat_headers(target): the headers of this folder, each of which has to compile by itself; those of
# another platform aside. With CMAKE_VERIFY_INTERFACE_HEADER_SETS the target
# all_verify_interface_header_sets sees to it. They are looked for, so that none is forgotten.
function(quillomat_headers target)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  list(FILTER headers EXCLUDE REGEX "/(windows|linux)/")
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/src"
                                                   FILES ${headers})
endfunction()
