// The line above the list: a notice and its commands on a quiet tint of the desktop's colours. As
// high as its commands, and not there at all while there is nothing to say.
#pragma once

#include <QFrame>
#include <QPushButton>
#include <array>

#include "qt/elided_label.h"

namespace quillomat {

class NoticeStrip final : public QFrame {
 public:
  /// Its parts bear the names of the controls that they show.
  explicit NoticeStrip(QWidget* parent = nullptr);

  /// A screen reader reads it out.
  void AnnounceNotice();
  /// What the command is called whose caption is a mere sign.
  void SetDismissName(const QString& name) { dismiss_->setAccessibleName(name); }
  /// Its commands in the order in which the Tab key goes through them.
  [[nodiscard]] std::array<QPushButton*, 3> Commands() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ElidedLabel* notice_;
  std::array<QPushButton*, 2> actions_;
  QPushButton* dismiss_;
  QString announced_;
};

}  // namespace quillomat
