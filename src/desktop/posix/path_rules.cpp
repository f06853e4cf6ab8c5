#include "desktop/native_path.h"
#include "desktop/output_file.h"
#include "desktop/paths.h"

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

std::filesystem::path ToNativePath(std::string_view path) {
  return path;
}

std::string FromNativePath(const std::filesystem::path& path) {
  return path.native();
}

bool SamePathText(std::string_view left, std::string_view right) {
  return left == right;
}

std::string_view PlatformLineEnd() {
  return "\n";
}

}  // namespace quillomat
