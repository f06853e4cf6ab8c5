// Everything that the program asks of the desktop around it: boxes that ask and tell, dialogs, the
// clipboard, the shell, the registry, painting and pending events. A face implements it; tests
// script it.
//
// All texts are UTF-8 with CR LF for a line break; paths are the bytes that the system uses (UTF-8
// on Windows). Calls that ask wait for the answer. All calls come from the one thread of the
// program.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/registry.h"

namespace quillomat {

enum class MessageIcon { kNone, kInformation, kExclamation, kQuestion, kCritical };
enum class MessageButtons { kOk, kOkCancel, kYesNo, kYesNoCancel };
/// How grave a message is, which its icon does not tell.
enum class MessageSeverity {
  /// Worth knowing; nothing is wrong.
  kAdvice,
  /// Something is not as it should be, but stops nothing.
  kWarning,
  /// Something was refused or went wrong.
  kError,
  /// The answer decides.
  kQuestion,
};
enum class MessageAnswer { kOk, kCancel, kYes, kNo };

struct MessageBox {
  std::string text;
  std::string title;  // shown as it is, an empty one too
  MessageIcon icon = MessageIcon::kNone;
  MessageButtons buttons = MessageButtons::kOk;
  MessageSeverity severity = MessageSeverity::kAdvice;
  /// No loses something: Escape, which may have been pressed for what was there before the box, is
  /// no answer.
  bool noLoses = false;

  bool operator==(const MessageBox&) const = default;
};

struct InputBox {
  std::string title;
  std::string prompt;
  std::string defaultAnswer;
  /// What the box says of its commands; "" leaves that to the desktop.
  std::string okCaption = {};
  std::string cancelCaption = {};
  /// OK on the default answer loses something: Enter is Cancel until the user has changed it.
  bool okLoses = false;

  bool operator==(const InputBox&) const = default;
};

struct FileDialog {
  enum class Mode { kOpen, kSave };

  Mode mode = Mode::kOpen;
  std::string title;
  std::string filter;  // "description | pattern", see SplitFileFilter
  std::string folder;  // where it opens; "" leaves that to the desktop
  std::string fileName;

  bool promptBeforeOverwriting = false;
  bool pathMustExist = false;
  bool fileMustExist = false;
  bool hideReadOnly = false;
  bool noReadOnlyReturn = false;  // who asks refuses a file that cannot be written

  bool operator==(const FileDialog&) const = default;
};

/// One entry of a file dialog's filter: "Any text file (*.*)" and "*.*".
struct FileFilter {
  std::string description;
  std::string pattern;

  bool operator==(const FileFilter&) const = default;
};

/// Splits "description | pattern | description | pattern ..."; blanks around the parts are dropped.
[[nodiscard]] std::vector<FileFilter> SplitFileFilter(std::string_view filter);

class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  Desktop(Desktop&&) = delete;
  Desktop& operator=(Desktop&&) = delete;
  virtual ~Desktop() = default;

  /// Waits until the user has chosen one of the buttons, and returns it. Closing the box otherwise
  /// is Cancel where there is such a button, else Ok or No.
  virtual MessageAnswer ShowMessage(const MessageBox& box) = 0;

  /// Shows lines that may be many, to be read and scrolled through; waits until they are closed.
  virtual void ShowText(const std::string& lines, const std::string& title) {
    ShowMessage({lines, title, MessageIcon::kInformation});
  }

  /// The text that the user left in the box; "" when the user cancelled.
  virtual std::string AskForText(const InputBox& box) = 0;

  /// The path chosen; nothing when the user cancelled. For saving, the user has agreed to overwrite
  /// if `promptBeforeOverwriting` is set.
  virtual std::optional<std::string> ChooseFile(const FileDialog& dialog) = 0;

  /// The path of the folder chosen; nothing when the user cancelled. Opens at `folder`; "" leaves
  /// that to the desktop.
  virtual std::optional<std::string> BrowseForFolder(const std::string& title,
                                                     const std::string& folder) = 0;

  /// Where the user keeps documents: a folder that is there. "" where paths count from the current
  /// folder and nobody is asked for any.
  virtual std::string DocumentsFolder() = 0;

  /// The text on the clipboard; "" when there is none. Throws RunTimeError 7 when there is more
  /// than can be had, other RunTimeErrors when the clipboard cannot be read.
  virtual std::string ClipboardText() = 0;
  /// Whether ClipboardText gives only the start of a text that is too long to be taken in.
  virtual bool ClipboardGoesOn() { return false; }
  virtual void ClearClipboard() = 0;
  /// Throws a RunTimeError when the clipboard does not take the text.
  virtual void PutClipboardText(const std::string& text) = 0;

  /// Paints now what has changed.
  virtual void Repaint() = 0;
  /// Handles the user's pending clicks and keys, whose handlers run inside this call, and returns.
  virtual void PumpEvents() = 0;

  /// Has the shell open a document or a web address with the application that belongs to it, and
  /// returns at once. False when the shell refuses; where it tells only later that it could not,
  /// `onFailure` is called then, in the program's thread, between two events.
  virtual bool OpenWithShell(const std::string& documentOrAddress,
                             std::function<void()> onFailure) = 0;

  /// The registry of the current user; lives as long as the desktop.
  virtual Registry& UserKeys() = 0;

  /// What stands between groups of three digits in the user's locale; never empty.
  virtual std::string DigitGroupSeparator() = 0;
};

}  // namespace quillomat
