#include "system/windows/system_path.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/letter_case.h"
#include "system/paths.h"
#include "system/windows/wide_text.h"

namespace quillomat {
namespace {

constexpr std::string_view kVerbatim = R"(\\?\)";
constexpr std::string_view kDevices = R"(\\.\)";
constexpr std::size_t kMostUnitsOfName = 255;
constexpr std::string_view kShare = R"(\\)";

/// What stands before the first dot, without blanks behind it: to the system "nul.txt" is the
/// device too.
std::string_view DevicePartOf(std::string_view name) {
  name = name.substr(0, name.find('.'));
  while (name.ends_with(' ')) name.remove_suffix(1);
  return name;
}

bool IsNumberedPort(std::string_view lowerName) {
  static constexpr std::array<std::string_view, 3> kRaised{"¹", "²", "³"};
  if (!lowerName.starts_with("com") && !lowerName.starts_with("lpt")) return false;
  const std::string_view number = lowerName.substr(3);
  return (number.size() == 1 && number[0] >= '1' && number[0] <= '9') ||
         std::ranges::find(kRaised, number) != kRaised.end();
}

bool BelongsToDevice(std::string_view name) {
  static constexpr std::array<std::string_view, 6> kNames{"con", "prn",    "aux",
                                                          "nul", "conin$", "conout$"};
  const std::string lower = LowerCase(DevicePartOf(name));
  return std::ranges::find(kNames, lower) != kNames.end() || IsNumberedPort(lower);
}

}  // namespace

bool IsDeviceName(const std::string& path) {
  return std::ranges::none_of(path, IsPathSeparator) && DevicePartOf(path) == path &&
         BelongsToDevice(path);
}

bool MayBeMade(const std::string& path) {
  if (IsDeviceName(path)) return true;
  const std::string name = FileNamePartOf(path);
  return !name.ends_with(' ') && !name.ends_with('.') && !BelongsToDevice(name);
}

bool NamesFit(std::wstring_view systemPath) {
  while (!systemPath.empty()) {
    const std::size_t length = std::min(systemPath.find(L'\\'), systemPath.size());
    if (length > kMostUnitsOfName) return false;
    systemPath.remove_prefix(std::min(length + 1, systemPath.size()));
  }
  return true;
}

std::wstring SystemPath(const std::string& path) {
  if (IsDeviceName(path)) return ToWide(path);
  const std::string absolute = AbsolutePath(path);
  if (absolute.starts_with(kVerbatim) || absolute.starts_with(kDevices)) return ToWide(absolute);
  if (absolute.starts_with(kShare)) {
    return ToWide(std::string(kVerbatim) + "UNC" + absolute.substr(kShare.size() - 1));
  }
  return ToWide(std::string(kVerbatim) + absolute);
}

}  // namespace quillomat
