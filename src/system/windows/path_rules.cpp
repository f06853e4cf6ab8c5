#include <algorithm>
#include <windows.h>

#include "base/letter_case.h"
#include "system/native_path.h"
#include "system/output_file.h"
#include "system/paths.h"
#include "system/windows/wide_text.h"

namespace quillomat {
namespace {

// What follows these is taken by the system as it is written.
constexpr std::string_view kVerbatim = R"(\\?\)";
constexpr std::string_view kVerbatimServer = R"(\\?\UNC\)";
constexpr std::string_view kDevices = R"(\\.\)";

bool StartsWithSeparator(std::string_view path) {
  return !path.empty() && IsPathSeparator(path[0]);
}

bool StartsWithDrive(std::string_view path) {
  const std::string letter = LowerCase(path.substr(0, 1));
  return path.size() >= 2 && path[1] == ':' && letter >= "a" && letter <= "z";
}

/// Of the first name, with the separator behind it.
std::size_t PartLength(std::string_view path) {
  const auto separator = std::ranges::find_if(path, IsPathSeparator);
  const auto length = static_cast<std::size_t>(separator - path.begin());
  return std::min(length + 1, path.size());
}

/// Of "server\share", with the separators behind.
std::size_t ShareLength(std::string_view path) {
  const std::size_t server = PartLength(path);
  return server + PartLength(path.substr(server));
}

/// Of a drive ("D:."), or at all (".").
std::string CurrentFolder(const std::string& dot) {
  const std::wstring wide = ToWide(dot);
  std::wstring folder(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
  const auto units = static_cast<DWORD>(folder.size());
  folder.resize(GetFullPathNameW(wide.c_str(), units, folder.data(), nullptr));
  return FromWide(folder);
}

}  // namespace

char PathSeparator() {
  return '\\';
}

bool IsPathSeparator(char character) {
  return character == '\\' || character == '/';
}

std::string PathForWalk(std::string_view path) {
  return LowerCase(path);
}

std::size_t RootLength(std::string_view path) {
  if (path.starts_with(kVerbatimServer)) {
    return kVerbatimServer.size() + ShareLength(path.substr(kVerbatimServer.size()));
  }
  if (path.starts_with(kVerbatim) || path.starts_with(kDevices)) {
    return kVerbatim.size() + PartLength(path.substr(kVerbatim.size()));
  }
  if (StartsWithSeparator(path) && StartsWithSeparator(path.substr(1))) {
    return 2 + ShareLength(path.substr(2));
  }
  if (StartsWithDrive(path)) return StartsWithSeparator(path.substr(2)) ? 3 : 2;
  return StartsWithSeparator(path) ? 1 : 0;
}

std::string FromRootOn(std::string_view path) {
  std::string complete(path);
  const std::size_t rootLength = RootLength(path);
  if (StartsWithDrive(path) && rootLength == 2) {
    // What follows "D:" stands in the folder that is current on that drive.
    complete = JoinPath(CurrentFolder(std::string(path.substr(0, 2)) + '.'), path.substr(2));
  } else if (rootLength == 0) {
    complete = JoinPath(CurrentFolder("."), path);
  } else if (rootLength == 1) {
    const std::string current = CurrentFolder(".");
    complete = JoinPath(current.substr(0, RootLength(current)), path.substr(1));
  }
  std::ranges::replace(complete, '/', '\\');
  return complete;
}

bool SamePathText(std::string_view left, std::string_view right) {
  const std::wstring one = ToWide(left);
  const std::wstring other = ToWide(right);
  return CompareStringOrdinal(one.data(), static_cast<int>(one.size()), other.data(),
                              static_cast<int>(other.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace quillomat
