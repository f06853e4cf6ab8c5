#include "app/count/word_echo.h"

#include <string>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// A new number is shown for every tenth word; that is often enough.
constexpr std::int32_t kWordsPerNumber = 10;

}  // namespace

void WordEcho::OnNewWord(std::string_view word, std::int32_t numDifferentWords) {
  const bool first = numDifferentWords == 1;
  if (!first) ShowNumber(numDifferentWords);
  Echo(word, first);
  if (!first) return;
  // The caption of an earlier count says nothing about this one.
  Label& label = frmMain_.lblNumberOfWords;
  label.SetCaption(settings_.CountOnlyMode ? "One word found so far." : "");
  label.SetVisible(true);
}

void WordEcho::ShowNumber(std::int32_t numDifferentWords) {
  const bool tenth = numDifferentWords % kWordsPerNumber == 0;
  const bool everyWord = settings_.CountOnlyMode && !settings_.ReadingWordList;
  if (!tenth && !everyWord) return;
  const std::string_view label = settings_.ReadingWordList
                                     ? "Number of words read so far: "
                                     : "Number of different words found so far: ";
  frmMain_.lblNumberOfWords.SetCaption(
      std::string(label).append(messages_.Grouped(numDifferentWords)));
  frmMain_.lblNumberOfWords.SetVisible(true);
}

void WordEcho::Echo(std::string_view word, bool first) {
  if (frmMain_.chkSuppressWords.Value() != CheckState::kUnchecked) return;
  output_.SetDisplayingWords(true);
  output_.OutputToTxb(std::string(word).append(" "));
  if (first || frmMain_.txbOutput.Length() <= kDisplayLimit) return;
  output_.OutputToTxb(std::string(kCrLf).append(kCrLf).append(
      "[Suppressing display of words to avoid buffer overflow.]"));
  frmMain_.chkSuppressWords.SetChecked(true);
  output_.SetSuppressedByItself(true);
}

}  // namespace quillomat
