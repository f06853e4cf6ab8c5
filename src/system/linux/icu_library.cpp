#include "system/linux/icu_library.h"

#include <string>

#include "system/shared_library.h"

namespace quillomat {
namespace {

/// Since this one the major number alone names the library and its functions.
constexpr int kOldestVersion = 49;
/// Far beyond: two come every year. Asking for one that is not there costs microseconds.
constexpr int kVersionsToCome = 50;

std::optional<IcuFunctions> LoadVersion(int version) {
  const std::string number = std::to_string(version);
  const auto library = SharedLibrary::Load(("libicuuc.so." + number).c_str());
  if (!library) return std::nullopt;
  IcuFunctions functions{};
  const auto find = [&](const char* name, auto& function) {
    return library->Find((name + number).c_str(), function);
  };
  const bool found = find("ubrk_open_", functions.open) &&
                     find("ubrk_setText_", functions.setText) &&
                     find("ubrk_next_", functions.next) && find("ubrk_close_", functions.close);
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
