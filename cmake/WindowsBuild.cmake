# What a build for Windows on another system needs: headers of Debian that are the same for every
# system, by themselves (the folder that they stand in holds those of the system, too).
set(shared_headers "${PROJECT_BINARY_DIR}/shared-headers")
file(MAKE_DIRECTORY "${shared_headers}")
file(CREATE_LINK /usr/include/CLI "${shared_headers}/CLI" SYMBOLIC)
file(CREATE_LINK /usr/include/nlohmann "${shared_headers}/nlohmann" SYMBOLIC)
foreach(library CLI11::CLI11 nlohmann_json::nlohmann_json)
  add_library(${library} INTERFACE IMPORTED)
  set_target_properties(${library} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "${shared_headers}")
endforeach()

# Windows programs run here through Wine, with a home of their own in the build folder.
set(CMAKE_CROSSCOMPILING_EMULATOR "${PROJECT_SOURCE_DIR}/packaging/windows/wine.sh"
                                  "${PROJECT_BINARY_DIR}/wine")
