// The home of a user who has never used the program: start-up finds its settings folder in there.
// Afterwards the environment is as it was.
#pragma once

#include <filesystem>
#include <string>

#include "support/environment.h"
#include "support/temporary_folder.h"

namespace quillomat {

class UserHome {
 public:
  UserHome() : currentFolder_(std::filesystem::current_path()) {}
  UserHome(const UserHome&) = delete;
  UserHome& operator=(const UserHome&) = delete;
  UserHome(UserHome&&) = delete;
  UserHome& operator=(UserHome&&) = delete;
  ~UserHome() { std::filesystem::current_path(currentFolder_); }

  [[nodiscard]] std::string SettingsFile() const { return folder_ / "Orvandel Systems/qlav.usr"; }

  /// What names the base folder of settings in the environment.
#ifdef _WIN32
  static constexpr const char* kVariable = "QUILLOMAT_SETTINGS";
#else
  static constexpr const char* kVariable = "XDG_CONFIG_HOME";
#endif

 private:
  TemporaryFolder folder_;
  ScopedVariable settings_{kVariable, folder_.Path()};
  std::filesystem::path currentFolder_;
};

}  // namespace quillomat
