// The output text box: notices, the words of a running count, and the list. It holds a limited
// text; once it has been found full nothing is added until it is cleared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "listing/list_cells.h"
#include "ui/desktop.h"
#include "ui/main_form.h"

namespace quillomat {

/// In characters: a list in the text box grows no further, and new words are no longer shown.
inline constexpr std::size_t kDisplayLimit = 44'000;

/// How much of a list the box holds, in words.
struct ListPart {
  std::int32_t shown = 0;
  std::int32_t all = 0;

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
  /// A count has switched the display of words off since the box would not hold them; the user has
  /// not chosen that.
  [[nodiscard]] bool SuppressedByItself() const { return suppressedByItself_; }
  void SetSuppressedByItself(bool byItself) { suppressedByItself_ = byItself; }

  [[nodiscard]] bool IsEmpty() const { return frmMain_.txbOutput.Text().empty(); }

  /// Of the list in the box; of no words when it holds none.
  [[nodiscard]] ListPart Part() const { return IsEmpty() ? ListPart() : list_.part; }
  /// The cells of a line, if it is one of the list in the box (CellSource).
  [[nodiscard]] std::span<const CellSpan> CellsOf(std::string_view line) const {
    return list_.cells.Of(line);
  }
  /// A list has been put into the box, which holds so much of it, below so many lines of titles.
  void SetList(ListPart part, ListCells cells, std::size_t titleLines) {
    list_ = {part, std::move(cells), {}, titleLines};
  }
  /// The lines above the words, as long as the list stands there as it was made.
  [[nodiscard]] std::size_t TitleLines() const { return HoldsList() ? list_.titleLines : 0; }
  /// What stands in the box now is all that is said of the words.
  void FinishList() { list_.text = frmMain_.txbOutput.Text(); }
  /// Whether it stands there still, and nobody has written anything else.
  [[nodiscard]] bool HoldsList() const {
    return !IsEmpty() && list_.text == frmMain_.txbOutput.Text();
  }

  /// Keeps the text that stands in the box now.
  void SaveOutputText() {
    saved_ = frmMain_.txbOutput.Text();
    savedList_ = list_;
  }
  /// Puts the kept text back and moves the focus to where the user needs it.
  void RestoreOutputText();

 private:
  /// What is known of the list in the box.
  struct ShownList {
    ListPart part;
    ListCells cells;
    std::string text;
    std::size_t titleLines = 0;
  };

  MainForm& frmMain_;
  Desktop& desktop_;
  bool full_ = false;
  bool displayingWords_ = false;
  bool suppressedByItself_ = false;
  ShownList list_;
  std::string saved_;
  ShownList savedList_;
};

}  // namespace quillomat
