// The bar below the list that finds a word in it.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QWidget>
#include <functional>

#include "qt/accessible_names.h"
#include "text/program_text.h"

namespace quillomat {

class FindBar : public QWidget {
 public:
  /// Says where the list that goes on below its text holds what is looked for; "" for nowhere.
  using TellBelow = std::function<QString(const QString& wanted)>;

  /// Whether something is at work, which Escape stops.
  using IsBusy = std::function<bool()>;

  /// `list` must outlive the bar.
  FindBar(QPlainTextEdit& list, TellBelow tellBelow, IsBusy isBusy);

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
  void FindAgain(bool backward);
  void Find(bool backward, bool fromHere);
  [[nodiscard]] QTextCursor FoundFrom(QTextCursor start, bool backward) const;
  void ShowPlace(const QTextCursor& found);
  void ShowNoPlace();
  void Forget();
  /// What has come of a search; "" for nothing to say.
  void ShowOutcome(const QString& outcome);
  void Close();

  QPlainTextEdit& list_;
  QLabel label_;
  QLineEdit word_;
  QPushButton previous_;
  QPushButton next_;
  /// "3 of 7".
  QLabel place_;
  QLabel outcome_;
  QString placeOfPlaces_;
  QString notFoundText_;
  TellBelow tellBelow_;
  IsBusy isBusy_;
};

}  // namespace quillomat
