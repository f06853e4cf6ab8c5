// A folder for one test, gone with all that is in it when the test ends.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillomat {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "quillomat.XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
    // Open to all, for tests that try what another user may do.
    std::filesystem::permissions(path_, std::filesystem::perms(0777));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::string operator/(std::string_view name) const {
    return path_ + '/' + std::string(name);
  }

  /// Writes a file, and the folders that its name asks for; returns its path.
  [[nodiscard]] std::string Write(std::string_view name, std::string_view contents) const {
    std::string path = *this / name;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << contents;
    return path;
  }

  /// Makes a folder, and those that its name asks for; returns its path.
  [[nodiscard]] std::string Make(std::string_view name) const {
    std::string path = *this / name;
    std::filesystem::create_directories(path);
    return path;
  }

 private:
  std::string path_;
};

inline std::string ContentsOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace quillomat
