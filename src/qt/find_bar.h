// The bar below the list that finds a word in it.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <vector>

#include "qt/accessible_names.h"
#include "text/program_text.h"

namespace quillomat {

class Program;

class FindBar : public QWidget {
 public:
  /// Both must outlive the bar.
  FindBar(QPlainTextEdit& list, const Program& program);

  /// How a screen reader is told at once what a label says.
  std::function<void(QWidget&)> announce = Announce;

  /// The bar's texts in the current language.
  void SetTexts(const ProgramText& text);

  /// Shows the bar and puts the keyboard there.
  void Open();

  /// Goes on to the next or the previous place; opens the bar where nothing was looked for yet.
  void FindNext() { FindAgain(false); }
  void FindPrevious() { FindAgain(true); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Characters of the list's text as the toolkit counts them.
  struct Place {
    int begin = 0;
    int end = 0;
  };

  void FindAgain(bool backward);
  [[nodiscard]] std::vector<Place> Places() const;
  void Find(bool backward, bool fromHere);
  void ShowPlace(const Place& place);
  void ShowNoPlace();
  void Forget();
  /// What has come of a search; "" for nothing to say.
  void ShowOutcome(const QString& outcome);
  void Close();

  QPlainTextEdit& list_;
  const Program& program_;
  QLabel label_;
  QLineEdit word_;
  QPushButton previous_;
  QPushButton next_;
  /// "3 of 7".
  QLabel place_;
  QLabel outcome_;
  QString placeOfPlaces_;
  QString notFoundText_;
};

}  // namespace quillomat
