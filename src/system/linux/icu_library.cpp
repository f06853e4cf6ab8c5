#include "system/linux/icu_library.h"

#include <dlfcn.h>
#include <string>

namespace quillomat {
namespace {

/// Since this one the major number alone names the library and its functions.
constexpr int kOldestVersion = 49;
/// Far beyond: two come every year. Asking for one that is not there costs microseconds.
constexpr int kVersionsToCome = 50;

template <typename Function>
bool Find(void* library, const std::string& name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name.c_str()));
  return function != nullptr;
}

std::optional<IcuFunctions> LoadVersion(int version) {
  const std::string number = std::to_string(version);
  void* const library = dlopen(("libicuuc.so." + number).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return std::nullopt;
  IcuFunctions functions{};
  const bool found = Find(library, "ubrk_open_" + number, functions.open) &&
                     Find(library, "ubrk_setText_" + number, functions.setText) &&
                     Find(library, "ubrk_next_" + number, functions.next) &&
                     Find(library, "ubrk_close_" + number, functions.close);
  if (!found) return std::nullopt;
  return functions;
}

}  // namespace

std::optional<IcuFunctions> LoadIcu(int preferred) {
  std::optional<IcuFunctions> functions = LoadVersion(preferred);
  for (int version = preferred + kVersionsToCome; !functions && version >= kOldestVersion;
       --version) {
    functions = LoadVersion(version);
  }
  return functions;
}

}  // namespace quillomat
