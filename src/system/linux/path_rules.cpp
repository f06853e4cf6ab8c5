#include <filesystem>
#include <system_error>

#include "system/native_path.h"
#include "system/output_file.h"
#include "system/paths.h"

namespace quillomat {

char PathSeparator() {
  return '/';
}

bool IsPathSeparator(char character) {
  return character == '/';
}

std::string PathForWalk(std::string_view path) {
  return std::string(path);
}

std::size_t RootLength(std::string_view path) {
  return path.starts_with('/') ? 1 : 0;
}

std::string FromRootOn(std::string_view path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  return error ? std::string(path) : absolute.native();
}

bool SamePathText(std::string_view left, std::string_view right) {
  return left == right;
}

}  // namespace quillomat
