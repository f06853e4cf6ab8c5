// The bar below the list that finds a word in it.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "text/program_text.h"

namespace quillomat {

class FindBar : public QWidget {
 public:
  /// `list` must outlive the bar. `notFound` says what is shown when a word is not there.
  FindBar(QPlainTextEdit& list, std::function<QString()> notFound);

  /// The bar's texts in the current language.
  void SetTexts(const ProgramText& text);

  /// Shows the bar and puts the keyboard there.
  void Open();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Find(bool backward, bool fromHere);
  /// What has come of a search; "" for nothing to say.
  void ShowOutcome(const QString& outcome);
  void Close();

  QPlainTextEdit& list_;
  QLabel label_;
  QLineEdit word_;
  QPushButton previous_;
  QPushButton next_;
  QLabel outcome_;
  std::function<QString()> notFound_;
};

}  // namespace quillomat
