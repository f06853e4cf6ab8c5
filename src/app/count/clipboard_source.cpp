#include "app/count/clipboard_source.h"

#include <new>
#include <string>
#include <utility>

#include "app/count/window_count.h"
#include "app/list/set_the_focus.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

class ClipboardObserver final : public WindowObserver {
 public:
  explicit ClipboardObserver(const RunContext& context)
      : WindowObserver(context, {CountedText::Source::kClipboard}) {}
  ClipboardObserver(const ClipboardObserver&) = delete;
  ClipboardObserver& operator=(const ClipboardObserver&) = delete;
  ClipboardObserver(ClipboardObserver&&) = delete;
  ClipboardObserver& operator=(ClipboardObserver&&) = delete;
  ~ClipboardObserver() override { Context().frmMain.lblTwirler.SetCaption(" "); }

  void OnScanBegins() override {
    Context().output.ClearOutput();
    Context().state.StopRequested = false;
    WindowObserver::OnScanBegins();
  }
};

}  // namespace

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
  CheckBox& chkSuppressWords = context_.frmMain.chkSuppressWords;
  const CheckState suppress = chkSuppressWords.Value();
  ClipboardObserver observer(context_);
  const CountRequest request = RequestFromControls(context_, TextOfClipboard{std::move(text_)});
  const CountResult result = CountInWindow(context_, request, observer);
  if (result.end == CountEnd::kRefused) {
    Refuse(context_,
           "The text on the clipboard does not consist" + std::string(kCrLf) +
               "solely of natural language words.",
           "Invalid input");
    return false;
  }
  if (result.error && IsOutOfMemory(*result.error)) {
    context_.lister.ReportOutOfMemory("the text on the clipboard");
  } else if (result.error) {
    context_.lister.ReportProblem(result.error->Number(), result.error->Description());
  }
  chkSuppressWords.SetValue(suppress);
  SetTheFocus(context_.frmMain);
  return !result.error;
}

}  // namespace quillomat
