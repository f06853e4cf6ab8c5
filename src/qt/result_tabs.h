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

  /// Adds a view behind the others and takes it over. `titleText` is the number of its title;
  /// `find` is what the keys of "find" do while it is in front.
  void Add(QWidget* view, const QString& key, int titleText, std::function<void()> find = {});

  /// The titles in the current language.
  void SetTexts(const ProgramText& text);

  /// The key of the view in front, and which that is; a key that is unknown changes nothing.
  [[nodiscard]] QString Current() const;
  void Show(const QString& key);

  /// Finds something in the view in front, if it knows how.
  void Find() const;

 private:
  struct View {
    QString key;
    int titleText = 0;
    std::function<void()> find;
  };

  QList<View> views_;
};

}  // namespace quillomat
