// The main window on the screen: the form's widgets, and what people expect on top of them (files
// dropped on the window, completed paths, finding in the list, the size of its letters).
#pragma once

#include <memory>

#include "app/program.h"
#include "qt/find_bar.h"
#include "qt/form_window.h"
#include "qt/list_view.h"

namespace Ui {
class frmMain;
}

namespace quillomat {

class MainWindowView final : public FormWindow {
 public:
  explicit MainWindowView(Program& program);
  ~MainWindowView() override;
  MainWindowView(const MainWindowView&) = delete;
  MainWindowView& operator=(const MainWindowView&) = delete;
  MainWindowView(MainWindowView&&) = delete;
  MainWindowView& operator=(MainWindowView&&) = delete;

  [[nodiscard]] ListView& List() const;
  [[nodiscard]] FindBar& Finder() { return findBar_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void PlaceNotices();
  void KeepRoomForSummary();
  void ConnectKeys();
  void ConnectZoom();

  Program& program_;
  std::unique_ptr<Ui::frmMain> ui_;
  FindBar findBar_;
};

}  // namespace quillomat
