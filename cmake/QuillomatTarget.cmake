# quillomat_configure(target): the language level, warnings and sanitizers that every target of ours
# shares. Kept on targets, not in global flags, so that libraries of others are built as they wish.
find_package(Threads REQUIRED)

function(quillomat_configure target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  if(QUILLOMAT_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-sanitize-recover=all
                                            -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
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
endfunction()
