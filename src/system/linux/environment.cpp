#include "system/environment.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace quillomat {

std::optional<std::string> EnvironmentVariable(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (value == nullptr || *value == '\0') return std::nullopt;
  return value;
}

std::string ProgramPath() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).native();
}

}  // namespace quillomat
