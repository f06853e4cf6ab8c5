// The program's windows on the screen, and what holds them together.
#pragma once

#include <QPushButton>
#include <QTranslator>
#include <memory>
#include <optional>
#include <vector>

#include "app/count/common_words.h"
#include "app/program.h"
#include "qt/main_window_view.h"
#include "qt/qt_desktop.h"

namespace quillomat {

class Windows {
 public:
  /// Makes the windows of a program that has not started yet. Both must outlive them.
  Windows(Program& program, QtDesktop& desktop);

  MainWindowView& Main() { return main_; }
  FormWindow& Panel() { return *panel_; }
  FormWindow& Help() { return *help_; }
  FormWindow& Export() { return *export_; }

  /// Shows what has changed in any of them.
  void ShowChanges();

  /// Puts the windows where the user left them; KeepPlaces is called when the program ends.
  void RestorePlaces();
  void KeepPlaces();

 private:
  void MakePanel();
  void OfferCommonWords(QPushButton& button);
  [[nodiscard]] QString NameOf(const CommonWordsList& list) const;
  [[nodiscard]] std::vector<CommonWordsList> CommonWordsByName() const;
  void MakeHelp();
  void MakeExport();
  void LeaveOthersWhenActivated(QtDesktop& desktop);
  void ShowLanguage();

  Program& program_;
  QTranslator buttonTexts_;
  std::optional<Language> shownLanguage_;
  MainWindowView main_;
  std::unique_ptr<FormWindow> panel_;
  std::unique_ptr<FormWindow> help_;
  std::unique_ptr<FormWindow> export_;
};

}  // namespace quillomat
