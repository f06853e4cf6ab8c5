#include <cerrno>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "system/environment.h"
#include "system/file_system.h"
#include "system/settings_folder.h"

namespace quillomat {
namespace {

constexpr std::size_t kFirstBufferBytes = 1024;
constexpr std::size_t kMostBufferBytes = 1'048'576;

std::string HomeFolderFromUserData() {
  passwd user{};
  passwd* found = nullptr;
  std::vector<char> buffer(kFirstBufferBytes);
  while (getpwuid_r(getuid(), &user, buffer.data(), buffer.size(), &found) == ERANGE &&
         buffer.size() < kMostBufferBytes) {
    buffer.resize(2 * buffer.size());
  }
  return found != nullptr && found->pw_dir != nullptr ? found->pw_dir : "";
}

}  // namespace

std::string SettingsBaseFolder() {
  const auto configured = EnvironmentVariable("XDG_CONFIG_HOME");
  if (configured && configured->starts_with('/')) return *configured;
  const std::string home = EnvironmentVariable("HOME").value_or(HomeFolderFromUserData());
  return home.empty() ? std::string() : JoinPath(home, ".config");
}

void CreateSettingsBaseFolder() {
  const std::string base = SettingsBaseFolder();
  if (!base.empty() && !FolderExists(base)) mkdir(base.c_str(), S_IRWXU);
}

}  // namespace quillomat
