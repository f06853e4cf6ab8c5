// Which files of a folder are scanned: the user's lists of included and excluded file extensions,
// and a built-in list of extensions that are never text.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sources/run_context.h"

namespace quillomat {

/// Each list of extensions takes so many.
inline constexpr std::size_t kMaxExtensions = 100;

inline constexpr std::array<std::string_view, 20> kNonTextExtensions = {
    "ico", "gif", "jpg", "png", "bmp", "zip", "bin", "xls", "mdb", "pdf",
    "com", "exe", "dll", "cab", "ocx", "vxd", "drv", "sys", "vbx", "386"};

/// Also the index of the text boxes.
enum class ExtensionList { kIncluded = 0, kExcluded = 1 };

class FileExtensions {
 public:
  explicit FileExtensions(const RunContext& context) : context_(context) {}

  /// Parses one of the two boxes and writes the entries that count back into it. Of too many
  /// entries these are the first kMaxExtensions, and the result is false.
  [[nodiscard]] bool GetFileExtensions(ExtensionList which);

  /// What happens when the user leaves one of the boxes, or presses Enter in it: it is parsed and
  /// checked, and the user told, once for the texts that stand in the boxes.
  void OnLostFocus(ExtensionList which);

  /// The boxes were set from outside: both are parsed and checked, and the user told.
  void OnRestored();

  /// Makes the lists what the boxes say, before a count. False when one holds too many entries; the
  /// user has been told.
  [[nodiscard]] bool TakeBoxes();

  /// Checks the lists against each other; tells the user about the first fault and returns false.
  [[nodiscard]] bool CheckFileExtensions() const;

  /// Whether a file of that name is scanned. Entries of the lists are compared as they are typed
  /// with the lower-cased extension, so an entry in capitals matches nothing.
  [[nodiscard]] bool IsScannable(std::string_view fileName) const;

  /// Whether the user restricts the files at all.
  [[nodiscard]] bool AnyGiven() const { return !lists_[0].empty() || !lists_[1].empty(); }

 private:
  using BoxTexts = std::array<std::string, 2>;

  void TellTooMany(ExtensionList which) const;
  void TellFaults() const;
  [[nodiscard]] BoxTexts Texts() const;
  [[nodiscard]] const std::vector<std::string>& List(ExtensionList which) const {
    return lists_[static_cast<std::size_t>(which)];
  }

  const RunContext& context_;
  std::array<std::vector<std::string>, 2> lists_;
  /// What the boxes held when the user was last told of their faults.
  std::optional<BoxTexts> checked_;
};

}  // namespace quillomat
