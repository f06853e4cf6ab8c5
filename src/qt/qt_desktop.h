// The desktop as the toolkit gives it: boxes, dialogs, the clipboard.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <utility>

#include "qt/box_guard.h"
#include "qt/calls_from_threads.h"
#include "qt/list_table.h"
#include "ui/desktop.h"

namespace quillomat {

class QtDesktop final : public Desktop {
 public:
  QtDesktop();
  QtDesktop(const QtDesktop&) = delete;
  QtDesktop& operator=(const QtDesktop&) = delete;
  QtDesktop(QtDesktop&&) = delete;
  QtDesktop& operator=(QtDesktop&&) = delete;
  ~QtDesktop() override;

  /// What shows the changes of the windows; nothing is shown before it is set.
  void SetPainter(std::function<void()> showChanges) { showChanges_ = std::move(showChanges); }

  /// Asked for the cells of a text that goes on the clipboard; without it there are none.
  void SetCells(CellSource cells) { cells_ = std::move(cells); }

  /// The window that the user is in, or was in last: boxes are shown over it. It outlives them.
  void SetWindow(QWidget* window) { window_ = window; }

  /// From now on nobody is asked, or told, anything: boxes that are open close, and each is
  /// answered as nothing is lost by.
  void StopAsking();

  MessageAnswer ShowMessage(const MessageBox& box) override;
  void ShowText(const std::string& lines, const std::string& title) override;
  std::string AskForText(const InputBox& box) override;
  std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
  std::optional<std::string> BrowseForFolder(const std::string& title,
                                             const std::string& folder) override;
  std::string DocumentsFolder() override;
  std::string ClipboardText() override;
  void ClearClipboard() override;
  void PutClipboardText(const std::string& text) override;
  void Repaint() override;
  void PumpEvents() override;
  bool OpenWithShell(const std::string& documentOrAddress,
                     std::function<void()> onFailure) override;
  Registry& UserKeys() override { return registry_; }
  std::string DigitGroupSeparator() override;

 private:
  [[nodiscard]] QWidget* BoxParent() const;

  BoxGuard guard_;
  bool asks_ = true;
  std::function<void()> showChanges_;
  CellSource cells_;
  QPointer<QWidget> window_;
  std::shared_ptr<CallsFromThreads> callsFromThreads_;
  UserRegistry registry_;
  std::optional<std::string> digitGroupSeparator_;  // asked of the system once
};

}  // namespace quillomat
