#include "app/list/summary.h"

#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

void Show(Label& label, std::string caption) {
  label.SetCaption(std::move(caption));
  label.SetVisible(true);
}

/// Writes the numbers of one summary, all in one width.
class SummaryNumbers {
 public:
  SummaryNumbers(std::int32_t greatest, std::string_view separator)
      : separator_(separator), width_(CharacterCount(GroupDigits(greatest, separator)) + 1) {}

  [[nodiscard]] std::string Justified(std::int32_t number) const {
    return PadLeft(GroupDigits(number, separator_), width_);
  }

  /// Shows a label with a text and a number.
  void Show(Label& label, std::string_view text, std::int32_t number) const {
    label.SetCaption(text, Justified(number));
    label.SetVisible(true);
  }

 private:
  std::string_view separator_;
  std::size_t width_;
};

std::string FoundWordsCaption(std::int32_t words, const SummaryNumbers& numbers) {
  if (words == 1) return "The word to be counted was found.";
  if (words == 2) return "Both words to be counted were found.";
  return "All " + numbers.Justified(words) + " words to be counted were found.";
}

}  // namespace

void ShowSummary(MainForm& frmMain, const CurrentWords& words, const InForce& inForce,
                 std::string_view separator) {
  HideNoticeLabels(frmMain);
  const SummaryNumbers numbers(words.WordsRead, separator);
  const WordTotals& totals = words.totals;
  const bool countOnly = inForce.settings.CountOnlyMode;
  const std::int32_t countOnlyWords =
      inForce.lists.CountOnlyList.Count() + inForce.lists.ExtraCountOnlyList.Count();

  if (countOnly && totals.NumIncludedWords == countOnlyWords) {
    Show(frmMain.lblNumberOfWords, FoundWordsCaption(countOnlyWords, numbers));
  } else {
    numbers.Show(frmMain.lblNumberOfWords,
                 "Number of words in this list:", totals.NumIncludedWords);
  }
  if (countOnly) {
    Show(frmMain.lblNumWordsExcluded, "");
  } else {
    numbers.Show(frmMain.lblNumWordsExcluded, "Number of words excluded:", totals.NumExcludedWords);
  }
  const bool counted = !countOnly && !words.listAfterStop;
  if (counted && totals.TotalIncludedCount > 0) {
    numbers.Show(frmMain.lblNumOccurrences,
                 "Number of instances of words in this list:", totals.TotalIncludedCount);
  } else {
    Show(frmMain.lblNumOccurrences, "");
  }
  if (counted) {
    numbers.Show(frmMain.lblTotalNumOccurrences,
                 "Total number of instances of words:", words.WordsRead);
  } else {
    Show(frmMain.lblTotalNumOccurrences, "");
  }
}

void ConcealNumWords(MainForm& frmMain, bool showNotice) {
  frmMain.lblNumberOfWords.SetVisible(false);
  frmMain.lblNumWordsExcluded.SetVisible(false);
  frmMain.lblNumOccurrences.SetVisible(false);
  frmMain.lblTotalNumOccurrences.SetVisible(false);
  if (showNotice) ShowNoticeLabels(frmMain);
}

void ShowNoticeLabels(MainForm& frmMain) {
  frmMain.lblCopyrightNotice.SetVisible(true);
  frmMain.lblOrvandelSystems.SetVisible(true);
  frmMain.lblOnlineDocumentation.SetVisible(true);
}

void HideNoticeLabels(MainForm& frmMain) {
  frmMain.lblCopyrightNotice.SetVisible(false);
  frmMain.lblOrvandelSystems.SetVisible(false);
  frmMain.lblOnlineDocumentation.SetVisible(false);
}

}  // namespace quillomat
