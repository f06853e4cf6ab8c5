// The line above the list: a notice and its commands on a quiet tint of the desktop's colours. As
// high as its commands; while there is nothing to say its place stays empty, so that nothing jumps.
// Where the notice has no room beside its commands, these make room and stand in a menu; where it
// has none even then, it stands in two lines of the same place.
#pragma once

#include <QFrame>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <array>

#include "qt/elided_label.h"

namespace quillomat {

class NoticeStrip final : public QFrame {
 public:
  /// Its parts bear the names of the controls that they show.
  explicit NoticeStrip(QWidget* parent = nullptr);

  /// A screen reader reads it out.
  void AnnounceNotice();
  /// What the commands are called whose captions are mere signs: the menu and the one that closes.
  void SetNames(const QString& more, const QString& dismiss);
  /// Its commands in the order in which the Tab key goes through them.
  [[nodiscard]] std::array<QAbstractButton*, 4> Commands() const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fit();
  [[nodiscard]] int WidthOfAll() const;
  void FillMenu();

  ElidedLabel* notice_;
  /// Holds the actions, so that they can be hidden whatever their controls say.
  QWidget* commands_;
  std::array<QPushButton*, 2> actions_;
  QToolButton* more_;
  QMenu menu_;
  QPushButton* dismiss_;
  QString announced_;
};

}  // namespace quillomat
