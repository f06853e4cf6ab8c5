// Which files of a folder are scanned: the user's lists of extensions, and a built-in list of
// extensions that are never text.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// Extensions are compared as they stand here with the lower-cased one of a file, so an entry in
/// capitals matches nothing.
struct ExtensionFilter {
  /// Each list takes so many.
  static constexpr std::size_t kMaxExtensions = 100;

  /// While it holds any, just these are scanned, and `except` is not looked at.
  std::vector<std::string> only;
  std::vector<std::string> except;

  /// Those that are never text, in lower case.
  [[nodiscard]] static std::span<const std::string_view> NeverText();

  /// Whether a file of that name is scanned.
  [[nodiscard]] bool Admits(std::string_view fileName) const;
  /// Whether it would be scanned but for NeverText: the user has not left it out.
  [[nodiscard]] bool LeavesOutUnasked(std::string_view fileName) const;

  /// Whether the user restricts the files at all.
  [[nodiscard]] bool AnyGiven() const { return !only.empty() || !except.empty(); }

 private:
  [[nodiscard]] bool IsAskedFor(const std::string& extension) const;
};

struct ParsedExtensions {
  /// False when there were more than kMaxExtensions; the first of them are there.
  bool fits = true;
  std::vector<std::string> entries;
};

/// The entries of a list as a user types it: "*.txt, .htm;xml" are "txt", "htm" and "xml".
[[nodiscard]] ParsedExtensions ParseExtensions(std::string_view text);

struct ExtensionFault {
  enum class Kind { kBothLists, kInvalidCharacter };
  Kind kind = Kind::kBothLists;
  std::string extension;
};

/// What is wrong with the lists, if anything is.
[[nodiscard]] std::optional<ExtensionFault> FindExtensionFault(const ExtensionFilter& filter);

}  // namespace quillomat
