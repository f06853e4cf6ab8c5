// The home of a user who has never used the program: start-up finds its settings folder in there.
// Afterwards the environment is as it was.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "support/temporary_folder.h"

namespace quillomat {

class UserHome {
 public:
  UserHome() : currentFolder_(std::filesystem::current_path()) {
    if (const char* value = std::getenv(kVariable)) before_ = value;
    setenv(kVariable, folder_.Path().c_str(), 1);
  }
  UserHome(const UserHome&) = delete;
  UserHome& operator=(const UserHome&) = delete;
  UserHome(UserHome&&) = delete;
  UserHome& operator=(UserHome&&) = delete;
  ~UserHome() {
    if (before_) {
      setenv(kVariable, before_->c_str(), 1);
    } else {
      unsetenv(kVariable);
    }
    std::filesystem::current_path(currentFolder_);
  }

  [[nodiscard]] std::string SettingsFile() const { return folder_ / "Orvandel Systems/qlav.usr"; }

 private:
  static constexpr const char* kVariable = "XDG_CONFIG_HOME";

  TemporaryFolder folder_;
  std::optional<std::string> before_;
  std::filesystem::path currentFolder_;
};

}  // namespace quillomat
