// The desktop as the toolkit gives it: boxes, dialogs, the clipboard.
#pragma once

#include <functional>

#include "ui/desktop.h"

namespace quillomat {

class QtDesktop final : public Desktop {
 public:
  /// What shows the changes of the windows; nothing is shown before it is set.
  void SetPainter(std::function<void()> showChanges) { showChanges_ = std::move(showChanges); }

  MessageAnswer ShowMessage(const MessageBox& box) override;
  std::string AskForText(const InputBox& box) override;
  std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
  std::optional<std::string> BrowseForFolder(const std::string& title) override;
  std::string ClipboardText() override;
  void ClearClipboard() override;
  void PutClipboardText(const std::string& text) override;
  void Repaint() override;
  void PumpEvents() override;
  bool OpenWithShell(const std::string& documentOrAddress) override;
  Registry& UserKeys() override { return registry_; }
  std::string DigitGroupSeparator() override;

 private:
  std::function<void()> showChanges_;
  UserRegistry registry_;
  std::optional<std::string> digitGroupSeparator_;  // asked of the system once
};

}  // namespace quillomat
