#include "sources/clipboard_source.h"

#include <new>
#include <optional>

#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "listing/set_the_focus.h"
#include "listing/summary.h"
#include "sources/comment_marker_check.h"
#include "sources/scan_job.h"
#include "sources/window_state.h"

namespace quillomat {

bool ClipboardSource::ReadClipboard(bool paste) {
  context_.output.ClearOutput();
  std::size_t length = 0;
  try {
    std::string text = context_.desktop.ClipboardText();
    length = CharacterCount(text);
    if (text.empty()) {
      Refuse(context_, "Clipboard is empty.", "Clipboard empty");
      return false;
    }
    if (length > kClipboardTextLimit) {
      const bool goesOn = context_.desktop.ClipboardGoesOn();
      Refuse(
          context_,
          std::string("There are ") + (goesOn ? "more than " : "") +
              Grouped(context_, static_cast<std::int64_t>(goesOn ? kClipboardTextLimit : length)) +
              " characters in the text on the clipboard." + std::string(kCrLf) +
              "The maximum permitted is " +
              Grouped(context_, static_cast<std::int64_t>(kClipboardTextLimit)) +
              ".  If possible," + std::string(kCrLf) +
              "count word frequencies for this text using an input file.",
          "Too much clipboard text");
      return false;
    }
    text_ = std::move(text);
    if (paste) {
      context_.frmMain.txbOutput.SetText(text_);
      context_.state.blnWordsGot = false;
    }
    return true;
  } catch (const RunTimeError& error) {
    RefuseClipboard(error, length);
  } catch (const std::bad_alloc&) {
    RefuseClipboard(RunTimeError(RunTimeErrorNumber::kOutOfMemory), length);
  }
  return false;
}

void ClipboardSource::RefuseClipboard(const RunTimeError& error, std::size_t length) const {
  std::string message = error.Description();
  if (error.Number() == static_cast<int>(RunTimeErrorNumber::kOutOfMemory)) {
    message = "There is too much text on the clipboard to paste into the textbox.";
    if (length < kClipboardTextLimit) {
      message.append(kCrLf).append("It may, however, still be possible to count word frequencies.");
    }
  }
  Refuse(context_, message, context_.text.GetText(kProgramTitleText));
}

bool ClipboardSource::ScanClipboard() {
  if (!IsText(text_, kClipboardTestLength)) {
    Refuse(context_,
           "The text on the clipboard does not consist" + std::string(kCrLf) +
               "solely of natural language words.",
           "Invalid input");
    return false;
  }
  if (!LoadMarkers()) return false;
  CheckBox& chkSuppressWords = context_.frmMain.chkSuppressWords;
  const CheckState suppress = chkSuppressWords.Value();
  std::optional<RunTimeError> error;
  try {
    ScanText();
  } catch (const RunTimeError& thrown) {
    error = thrown;
  } catch (const std::bad_alloc&) {
    error = RunTimeError(RunTimeErrorNumber::kOutOfMemory);
  }
  if (error && IsOutOfMemory(*error)) {
    context_.lister.ReportOutOfMemory("the text on the clipboard");
  } else if (error) {
    context_.lister.ReportProblem(error->Number(), error->Description());
  }
  chkSuppressWords.SetValue(suppress);
  SetTheFocus(context_.frmMain);
  return !error;
}

bool ClipboardSource::LoadMarkers() {
  ScanSettings& settings = context_.state.settings;
  const ScanChoices choices = ReadScanChoices(context_.frmParams);
  if (!IsSet(choices.allowCommentMarkers)) {
    settings.SetCommentMarkers("", choices);
    return true;
  }
  if (!CheckCommentMarkers(context_)) return false;
  settings.SetCommentMarkers("according to user's settings", choices);
  return true;
}

void ClipboardSource::ScanText() {
  CountState& state = context_.state;
  state.settings.ReadingWordList = false;
  state.settings.SetAllowWordsFlags(ReadScanChoices(context_.frmParams));
  context_.output.ClearOutput();
  state.DiscardWords();
  state.counted = {CountedText::Source::kClipboard};
  state.store.Files().Reset(false);
  state.StopRequested = false;
  context_.frmMain.cmdCountWords.SetCaption(std::string(kStopCaption));
  EnableControls(context_, false);
  HideNoticeLabels(context_.frmMain);
  ScanJob job(context_);
  if (!text_.empty()) job.ScanText(text_);
  context_.frmMain.lblTwirler.SetCaption(" ");
}

}  // namespace quillomat
