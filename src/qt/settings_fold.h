// Folds the settings at the left of the main window away, so that the result has all of it, and
// brings them back: with a small button above the result, or a key.
#pragma once

#include <QToolButton>
#include <QWidget>
#include <functional>

#include "text/program_text.h"

namespace quillomat {

class SettingsFold final : public QToolButton {
 public:
  /// `settings` is what is folded; `enterResult` moves the keyboard to the result when it stood
  /// there. The key works in the window of `settings`.
  SettingsFold(QWidget& settings, std::function<void()> enterResult);

  void SetTexts(const ProgramText& text);

  [[nodiscard]] bool IsFolded() const { return isChecked(); }
  void SetFolded(bool folded) { setChecked(folded); }

 private:
  void Show();

  QWidget& settings_;
  std::function<void()> enterResult_;
  QString hideText_;
  QString showText_;
};

}  // namespace quillomat
