#include "listing/summary.h"

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

  [[nodiscard]] std::string Line(std::string_view label, std::int32_t number) const {
    return std::string(label).append(Justified(number));
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

void ShowSummary(MainForm& frmMain, const CountState& state, std::string_view separator) {
  HideNoticeLabels(frmMain);
  const SummaryNumbers numbers(state.WordsRead, separator);
  const WordTotals& totals = state.totals;
  const bool countOnly = state.settings.CountOnlyMode;
  const std::int32_t countOnlyWords =
      state.lists.CountOnlyList.Count() + state.lists.ExtraCountOnlyList.Count();

  const bool allFound = countOnly && totals.NumIncludedWords == countOnlyWords;
  Show(frmMain.lblNumberOfWords,
       allFound ? FoundWordsCaption(countOnlyWords, numbers)
                : numbers.Line("Number of words in this list:", totals.NumIncludedWords));
  Show(frmMain.lblNumWordsExcluded,
       countOnly ? std::string()
                 : numbers.Line("Number of words excluded:", totals.NumExcludedWords));

  std::string occurrences;
  std::string allOccurrences;
  if (!countOnly && !state.listAfterStop) {
    if (totals.TotalIncludedCount > 0) {
      occurrences =
          numbers.Line("Number of instances of words in this list:", totals.TotalIncludedCount);
    }
    allOccurrences = numbers.Line("Total number of instances of words:", state.WordsRead);
  }
  Show(frmMain.lblNumOccurrences, std::move(occurrences));
  Show(frmMain.lblTotalNumOccurrences, std::move(allOccurrences));
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
