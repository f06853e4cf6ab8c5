// The two boxes of file extensions: what the user types there, parsed and checked, decides which
// files of a folder are scanned.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "app/messages.h"
#include "sources/extension_filter.h"
#include "ui/main_form.h"

namespace quillomat {

/// Also the index of the text boxes.
enum class ExtensionList { kIncluded = 0, kExcluded = 1 };

class FileExtensions {
 public:
  /// Both must outlive it.
  FileExtensions(MainForm& frmMain, const Messages& messages)
      : frmMain_(frmMain), messages_(messages) {}

  /// Parses one of the two boxes and writes the entries that count back into it. Of too many
  /// entries these are the first kMaxExtensions of ExtensionFilter, and the result is false.
  [[nodiscard]] bool GetFileExtensions(ExtensionList which);

  /// When the user has left one of the boxes, or pressed Enter in it: tells the faults of both,
  /// once for the texts that stand in them. `fits` is what GetFileExtensions has returned.
  void TellFaultsOnce(ExtensionList which, bool fits);

  /// The boxes were set from outside: both are parsed and checked, and the user told.
  void OnRestored();

  /// Makes the lists what the boxes say, before a count. False when one holds too many entries; the
  /// user has been told.
  [[nodiscard]] bool TakeBoxes();

  /// Checks the lists against each other; tells the user about the first fault and returns false.
  [[nodiscard]] bool CheckFileExtensions() const;

  /// Whether a file of that name is scanned.
  [[nodiscard]] bool IsScannable(std::string_view fileName) const {
    return filter_.Admits(fileName);
  }
  /// The lists in force.
  [[nodiscard]] const ExtensionFilter& Filter() const { return filter_; }

 private:
  using BoxTexts = std::array<std::string, 2>;

  void TellTooMany(ExtensionList which) const;
  void TellFaults() const;
  [[nodiscard]] BoxTexts Texts() const;

  MainForm& frmMain_;
  const Messages& messages_;
  ExtensionFilter filter_;
  /// What the boxes held when the user was last told of their faults.
  std::optional<BoxTexts> checked_;
};

}  // namespace quillomat
