// The output text box: notices, the words of a running count, and the list. It holds a limited
// text; once it has been found full nothing is added until it is cleared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "listing/display_format.h"
#include "ui/desktop.h"
#include "ui/main_form.h"

namespace quillomat {

/// In characters: a list in the text box grows no further, and new words are no longer shown.
inline constexpr std::size_t kDisplayLimit = 44'000;

/// How much of a list the box holds, in words, and in which format.
struct ListPart {
  std::int32_t shown = 0;
  std::int32_t all = 0;
  DisplayFormat format = DisplayFormat::kRankFrequencyWord;

  [[nodiscard]] bool IsCut() const { return shown < all; }
};

class OutputBox {
 public:
  OutputBox(MainForm& frmMain, Desktop& desktop) : frmMain_(frmMain), desktop_(desktop) {}

  /// Appends `text` and puts the caret behind it, unless the box is full.
  void OutputToTxb(std::string_view text);
  /// Empties the box; it is not full then.
  void ClearOutput();
  /// Replaces the text and paints it at once.
  void ShowText(std::string_view text);

  [[nodiscard]] bool IsFull() const { return full_; }
  void SetFull(bool full) { full_ = full; }
  /// New words of a running count are being shown.
  [[nodiscard]] bool DisplayingWords() const { return displayingWords_; }
  void SetDisplayingWords(bool displaying) { displayingWords_ = displaying; }

  [[nodiscard]] bool IsEmpty() const { return frmMain_.txbOutput.Text().empty(); }

  /// Of the list in the box; of no words when it holds none.
  [[nodiscard]] ListPart Part() const { return IsEmpty() ? ListPart() : part_; }
  /// The format of the list in the box; none when it holds no list.
  [[nodiscard]] std::optional<DisplayFormat> ListFormat() const {
    return Part().all > 0 ? std::optional(part_.format) : std::nullopt;
  }
  void SetListPart(ListPart part) { part_ = part; }

  /// Keeps the text that stands in the box now.
  void SaveOutputText() {
    saved_ = frmMain_.txbOutput.Text();
    savedPart_ = part_;
  }
  /// Puts the kept text back and moves the focus to where the user needs it.
  void RestoreOutputText();

 private:
  MainForm& frmMain_;
  Desktop& desktop_;
  bool full_ = false;
  bool displayingWords_ = false;
  ListPart part_;
  std::string saved_;
  ListPart savedPart_;
};

}  // namespace quillomat
