#include "system/typed_path.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "base/letter_case.h"
#include "base/text_helpers.h"
#include "system/environment.h"
#include "system/file_system.h"
#include "system/paths.h"

namespace quillomat {
namespace {

bool IsOnWindows() {
  return PathSeparator() == '\\';
}

std::string_view WithoutQuotes(std::string_view text) {
  const bool quoted = text.size() > 2 && text.front() == text.back() &&
                      (text.front() == '"' || text.front() == '\'');
  return quoted ? TrimBlanks(text.substr(1, text.size() - 2)) : text;
}

/// "%20" is a blank. What is no such escape stays; nothing where one stands for the end of texts.
std::optional<std::string> WithoutEscapes(std::string_view text) {
  constexpr std::size_t kDigits = 2;
  constexpr int kHexadecimal = 16;
  std::string decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view digits = text.substr(i + 1, kDigits);
    unsigned char byte = 0;
    const char* const end = digits.data() + digits.size();
    const bool escaped = text[i] == '%' && digits.size() == kDigits &&
                         std::from_chars(digits.data(), end, byte, kHexadecimal).ptr == end;
    if (escaped && byte == 0) return std::nullopt;
    decoded.push_back(escaped ? static_cast<char>(byte) : text[i]);
    if (escaped) i += kDigits;
  }
  return decoded;
}

std::string HomeFolder() {
  return EnvironmentVariable(IsOnWindows() ? "USERPROFILE" : "HOME").value_or("");
}

/// "~" or "~/...", with the home folder in its place; nothing for any other text.
std::optional<std::string> PathInHome(std::string_view text) {
  if (!text.starts_with('~') || (text.size() > 1 && !IsPathSeparator(text[1]))) return std::nullopt;
  const std::string home = HomeFolder();
  if (home.empty()) return std::nullopt;
  return text.size() <= 2 ? home : JoinPath(home, text.substr(2));
}

std::string Meant(std::string_view typed) {
  const std::string_view text = WithoutQuotes(typed);
  if (const auto path = PathOfAddress(text)) return *path;
  return PathInHome(text).value_or(std::string(text));
}

}  // namespace

std::optional<std::string> PathOfAddress(std::string_view text) {
  constexpr std::string_view kScheme = "file:";
  constexpr std::string_view kHostStart = "//";
  if (LowerCase(text.substr(0, kScheme.size())) != kScheme) return std::nullopt;
  std::string_view rest = text.substr(kScheme.size());
  std::string_view host;
  if (rest.starts_with(kHostStart)) {
    rest.remove_prefix(kHostStart.size());
    host = rest.substr(0, rest.find('/'));
    rest.remove_prefix(host.size());
  }
  if (!rest.starts_with('/')) return std::nullopt;
  std::optional<std::string> path = WithoutEscapes(rest);
  const bool isHere = host.empty() || LowerCase(host) == "localhost";
  if (!path || !IsOnWindows()) return isHere ? path : std::nullopt;
  std::ranges::replace(*path, '/', PathSeparator());
  if (!isHere) return "\\\\" + std::string(host) + *path;
  const bool hasDrive = path->size() > 2 && (*path)[2] == ':';
  return hasDrive ? path->substr(1) : *path;
}

std::string PathFromTyped(const std::string& folder, std::string_view typed) {
  const std::string text(TrimBlanks(typed));
  std::string literal = FullPathIn(folder, text);
  const std::string meant = Meant(text);
  if (meant == text || FileExists(literal) || FolderExists(literal)) return literal;
  return FullPathIn(folder, meant);
}

}  // namespace quillomat
