#include "app/count/clipboard_source.h"

#include <new>
#include <string>
#include <utility>

#include "app/list/set_the_focus.h"
#include "base/run_time_error.h"
#include "base/text_helpers.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

class ClipboardObserver final : public WindowObserver {
 public:
  explicit ClipboardObserver(const WindowCount& count)
      : WindowObserver(count, {CountedText::Source::kClipboard}) {}
  ClipboardObserver(const ClipboardObserver&) = delete;
  ClipboardObserver& operator=(const ClipboardObserver&) = delete;
  ClipboardObserver(ClipboardObserver&&) = delete;
  ClipboardObserver& operator=(ClipboardObserver&&) = delete;
  ~ClipboardObserver() override { Count().frmMain.lblTwirler.SetCaption(" "); }

  void OnScanBegins() override {
    Count().output.ClearOutput();
    Count().run.ForgetStop();
    WindowObserver::OnScanBegins();
  }
};

}  // namespace

bool ClipboardSource::ReadClipboard(bool paste) {
  count_.output.ClearOutput();
  std::size_t length = 0;
  try {
    std::string text = desktop_.ClipboardText();
    length = CharacterCount(text);
    if (text.empty()) {
      count_.messages.Refuse("Clipboard is empty.", "Clipboard empty");
      return false;
    }
    if (length > kClipboardTextLimit) {
      const bool goesOn = desktop_.ClipboardGoesOn();
      count_.messages.Refuse(
          std::string("There are ") + (goesOn ? "more than " : "") +
              count_.messages.Grouped(
                  static_cast<std::int64_t>(goesOn ? kClipboardTextLimit : length)) +
              " characters in the text on the clipboard." + std::string(kCrLf) +
              "The maximum permitted is " +
              count_.messages.Grouped(static_cast<std::int64_t>(kClipboardTextLimit)) +
              ".  If possible," + std::string(kCrLf) +
              "count word frequencies for this text using an input file.",
          "Too much clipboard text");
      return false;
    }
    text_ = std::move(text);
    if (paste) {
      count_.frmMain.txbOutput.SetText(text_);
      count_.words.blnWordsGot = false;
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
  count_.messages.Refuse(message, count_.messages.ProgramTitle());
}

bool ClipboardSource::ScanClipboard(CountRequest request) {
  CheckBox& chkSuppressWords = count_.frmMain.chkSuppressWords;
  const CheckState suppress = chkSuppressWords.Value();
  ClipboardObserver observer(count_);
  request.source = TextOfClipboard{std::move(text_)};
  const CountResult result = CountInWindow(count_, request, observer);
  if (result.end == CountEnd::kRefused) {
    count_.messages.Refuse("The text on the clipboard does not consist" + std::string(kCrLf) +
                               "solely of natural language words.",
                           "Invalid input");
    return false;
  }
  if (result.error) lister_.ReportError(*result.error, "reading the text on the clipboard");
  chkSuppressWords.SetValue(suppress);
  SetTheFocus(count_.frmMain);
  return !result.error;
}

}  // namespace quillomat
