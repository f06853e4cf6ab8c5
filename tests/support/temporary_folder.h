// A folder for one test, gone with all that is in it when the test ends.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "base/text_helpers.h"
#include "system/paths.h"

namespace quillomat {

/// UTF-8 on Windows, plain bytes elsewhere: as the program writes paths.
[[nodiscard]] inline std::filesystem::path TestPath(std::string_view path) {
#ifdef _WIN32
  return std::filesystem::path(std::u8string(path.begin(), path.end()));
#else
  return path;
#endif
}

class TemporaryFolder {
 public:
  TemporaryFolder() {
    const std::filesystem::path base = std::filesystem::temp_directory_path();
    std::random_device random;
    std::filesystem::path path;
    do {
      path = base / ("quillomat." + std::to_string(random()));
    } while (!std::filesystem::create_directory(path));
    // Open to all, for tests that try what another user may do.
    std::filesystem::permissions(path, std::filesystem::perms(0777));
    // As a walk through folders writes it, where that makes a difference.
    path_ = PathForWalk(path.string());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(TestPath(path_), ignored);
  }

  [[nodiscard]] const std::string& Path() const { return path_; }

  /// What has that name in the folder. A "/" in the name becomes the platform's separator.
  [[nodiscard]] std::string operator/(std::string_view name) const {
    std::string path = path_ + '/' + std::string(name);
    std::ranges::replace(path, '/', PathSeparator());
    return path;
  }

  /// Writes a file, and the folders that its name asks for; returns its path.
  [[nodiscard]] std::string Write(std::string_view name, std::string_view contents) const {
    std::string path = *this / name;
    std::filesystem::create_directories(TestPath(path).parent_path());
    std::ofstream(TestPath(path), std::ios::binary) << contents;
    return path;
  }

  /// Makes a folder, and those that its name asks for; returns its path.
  [[nodiscard]] std::string Make(std::string_view name) const {
    std::string path = *this / name;
    std::filesystem::create_directories(TestPath(path));
    return path;
  }

 private:
  std::string path_;
};

inline std::string ContentsOf(const std::string& path) {
  std::ifstream file(TestPath(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The contents of a text file with a line feed for each line end of the platform. A line end of
/// another kind stays one that no test expects.
inline std::string TextOf(const std::string& path) {
  std::string contents = ContentsOf(path);
  if (kPlatformLineBreak == "\n") return contents;
  contents = ReplaceAll(contents, "\n", "<bare line feed>");
  return ReplaceAll(contents, "\r<bare line feed>", "\n");
}

/// The text with the platform's separator for every "/".
inline std::string NativePaths(std::string text) {
  std::ranges::replace(text, '/', PathSeparator());
  return text;
}

}  // namespace quillomat
