// The main window on the screen: the form's widgets, and what people expect on top of them (files
// dropped on the window, completed paths, finding in the list, the size of its letters).
#pragma once

#include <QAbstractScrollArea>
#include <QLabel>
#include <QShortcut>
#include <array>
#include <functional>
#include <memory>

#include "app/program.h"
#include "qt/accessible_names.h"
#include "qt/files_page.h"
#include "qt/find_bar.h"
#include "qt/folded_run.h"
#include "qt/form_window.h"
#include "qt/list_view.h"
#include "qt/notice_strip.h"
#include "qt/result_tabs.h"
#include "qt/settings_fold.h"
#include "qt/statistics_page.h"
#include "qt/table_page.h"

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
  [[nodiscard]] SettingsFold& Fold() { return *fold_; }
  /// The views of the result, and that of them which is a table.
  [[nodiscard]] ResultTabs& Views() { return *views_; }
  [[nodiscard]] TablePage& Table() { return *table_; }
  [[nodiscard]] StatisticsPage& StatisticsView() { return *statistics_; }
  [[nodiscard]] FilesPage& FilesView() { return *files_; }

  /// The texts that are the window's own, in the current language.
  void SetTexts(const ProgramText& text);

  /// How a screen reader is told at once what a label says.
  std::function<void(QWidget&)> announce = Announce;

 protected:
  void ShowOwn() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void PlaceViews();
  void ConnectViews();
  void LeaveControls();
  void PlaceNotices();
  void PlaceNoticeStrip();
  [[nodiscard]] std::array<QLabel*, 3> Notices() const;
  void ShowNoticesInWindowFont();
  void ShowLinksReadably();
  void ConnectFold();
  void ShowQuitLetter();
  void ConnectKeys();
  void ConnectZoom();
  [[nodiscard]] std::array<QAbstractScrollArea*, 3> Tables() const;
  [[nodiscard]] bool OnWheel(const QObject* watched, const QWheelEvent& wheel);
  void AlignLabels();
  void FitSettings();
  void ConnectProgress();
  void ConnectAnnouncements();
  void ShowProgress();
  [[nodiscard]] QString ProgressFormat(const Progress& progress) const;

  Program& program_;
  std::unique_ptr<Ui::frmMain> ui_;
  FindBar findBar_;
  // Children of the window.
  NoticeStrip* noticeStrip_;
  ResultTabs* views_;
  TablePage* table_;
  StatisticsPage* statistics_;
  FilesPage* files_;
  SettingsFold* fold_;
  FoldedRun* foldedRun_;
  /// The letter of the quit command, where that is folded away.
  QShortcut* quitLetter_;
  /// The settings were folded when they should have got their width.
  bool fitsWhenUnfolded_ = false;
  /// Since a count has listed its words, and nobody has been told.
  bool listIsNew_ = false;
  /// Since the bar was shown.
  bool progressChanged_ = true;
  /// "File %1 of %2".
  QString fileOfFiles_;
};

}  // namespace quillomat
