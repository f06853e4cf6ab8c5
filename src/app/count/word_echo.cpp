#include "app/count/word_echo.h"

#include <string>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// A new number is shown for every tenth word; that is often enough.
constexpr std::int32_t kWordsPerNumber = 10;

}  // namespace

WordEcho::WordEcho(const RunContext& context)
    : context_(context), separator_(context.desktop.DigitGroupSeparator()) {}

void WordEcho::OnNewWord(std::string_view word, std::int32_t numDifferentWords) {
  const bool first = numDifferentWords == 1;
  if (!first) ShowNumber(numDifferentWords);
  Echo(word, first);
  if (!first) return;
  // The caption of an earlier count says nothing about this one.
  Label& label = context_.frmMain.lblNumberOfWords;
  label.SetCaption(context_.state.settings.CountOnlyMode ? "One word found so far." : "");
  label.SetVisible(true);
}

void WordEcho::ShowNumber(std::int32_t numDifferentWords) {
  const ScanSettings& settings = context_.state.settings;
  const bool tenth = numDifferentWords % kWordsPerNumber == 0;
  const bool everyWord = settings.CountOnlyMode && !settings.ReadingWordList;
  if (!tenth && !everyWord) return;
  const std::string_view label = settings.ReadingWordList
                                     ? "Number of words read so far: "
                                     : "Number of different words found so far: ";
  context_.frmMain.lblNumberOfWords.SetCaption(
      std::string(label).append(GroupDigits(numDifferentWords, separator_)));
  context_.frmMain.lblNumberOfWords.SetVisible(true);
}

void WordEcho::Echo(std::string_view word, bool first) {
  MainForm& frmMain = context_.frmMain;
  if (frmMain.chkSuppressWords.Value() != CheckState::kUnchecked) return;
  context_.state.displayingWords = true;
  context_.output.OutputToTxb(std::string(word).append(" "));
  if (first || frmMain.txbOutput.Length() <= kDisplayLimit) return;
  context_.output.OutputToTxb(std::string(kCrLf).append(kCrLf).append(
      "[Suppressing display of words to avoid buffer overflow.]"));
  frmMain.chkSuppressWords.SetChecked(true);
}

}  // namespace quillomat
