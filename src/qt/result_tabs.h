// The views of a result, a tab each: the text box with the list first, then what else shows it.
// Each view has a key under which the user's choice is kept.
#pragma once

#include <QString>
#include <QTabWidget>
#include <QWidget>
#include <functional>

#include "text/program_text.h"

namespace quillomat {

class ResultTabs final : public QTabWidget {
 public:
  explicit ResultTabs(QWidget* parent = nullptr);

  /// What the window's own keys and commands do while a view is in front; what it cannot do is
  /// empty.
  struct Uses {
    std::function<void()> find = {};
    std::function<void()> copy = {};
  };

  /// Adds a view behind the others and takes it over; it has a focus proxy. `titleText` is the
  /// number of its title.
  void Add(QWidget* view, const QString& key, int titleText, Uses uses);

  /// The titles in the current language.
  void SetTexts(const ProgramText& text);
  [[nodiscard]] QList<QString> Titles() const;
  /// How they are written, with the letters that lead to them.
  void ShowTitles(const QList<QString>& shown);

  /// The key of the view in front, and which that is; a key that is unknown changes nothing.
  [[nodiscard]] QString Current() const;
  void Show(const QString& key);

  /// Puts the keyboard into the view in front.
  void Enter() const;
  /// Finds something in the view in front, if it knows how.
  void Find() const;
  /// Copies from the view in front; false if it leaves that to the program.
  [[nodiscard]] bool Copy() const;

 private:
  void GoOn(int step);

  struct View {
    QString key;
    QString title;
    int titleText = 0;
    Uses uses;
  };

  QList<View> views_;
};

}  // namespace quillomat
