#include "base/letter_case.h"
#include "desktop/native_path.h"
#include "desktop/output_file.h"
#include "desktop/paths.h"

namespace quillomat {

char PathSeparator() {
  return '\\';
}

bool IsPathSeparator(char character) {
  return character == '\\' || character == '/';
}

std::string PathForWalk(std::string_view path) {
  return LowerCase(path);
}

std::filesystem::path ToNativePath(std::string_view path) {
  return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

std::string FromNativePath(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

bool SamePathText(std::string_view left, std::string_view right) {
  return EqualIgnoringCase(left, right);
}

std::string_view PlatformLineEnd() {
  return "\r\n";
}

}  // namespace quillomat
