#include "qt/program_windows.h"

#include <QActionGroup>
#include <QApplication>
#include <QCollator>
#include <QLibraryInfo>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <string>

#include "qt/accessible_names.h"
#include "qt/flow_row.h"
#include "qt/path_suggestions.h"
#include "qt/text_conversion.h"
#include "qt/window_memory.h"
#include "system/settings_folder.h"
#include "ui_export_form.h"
#include "ui_help_form.h"
#include "ui_params_form.h"

namespace quillomat {
namespace {

WindowMemory Memory() {
  const std::string folder(kSettingsFolderName);
  return WindowMemory(ToQt(PathInSettings("windows.ini", folder)));
}

QLocale LocaleOf(Language language) {
  return {language == Language::kGerman ? QLocale::German : QLocale::English};
}

}  // namespace

Windows::Windows(Program& program, QtDesktop& desktop)
    : program_(program),
      main_(program),
      panel_(std::make_unique<FormWindow>(program.frmParams, &main_)),
      help_(std::make_unique<FormWindow>(program.frmHelp, &main_)),
      export_(std::make_unique<FormWindow>(program.frmExport, &main_)) {
  MakePanel();
  MakeHelp();
  MakeExport();
  ResizeOnScreen(main_, QSize(1024, 700).expandedTo(main_.sizeHint()));
  ResizeOnScreen(*panel_, QSize(860, 660).expandedTo(panel_->sizeHint()));
  ResizeOnScreen(*help_, QSize(760, 600).expandedTo(help_->sizeHint()));
  ResizeOnScreen(*export_, QSize(640, 380).expandedTo(export_->sizeHint()));
  LeaveOthersWhenActivated(desktop);
  desktop.SetWindow(&main_);
  const CellSource cells = [&program](std::string_view line) {
    return program.Output().CellsOf(line);
  };
  desktop.SetCells(cells);
  main_.List().SetCells(cells);
  program.frmMain.Changed.Connect([this] { ShowLanguage(); });
  program.frmMain.cmdLanguage.Changed.Connect([this] { ShowLanguage(); });
  desktop.SetPainter([this] { ShowChanges(); });
}

void Windows::MakePanel() {
  Ui::frmParams ui;
  ui.setupUi(panel_.get());
  MakeRowsFlow(*panel_);
  panel_->BindControls();
  for (QLineEdit* box : {ui.txbWordsFile_0, ui.txbWordsFile_1, ui.txbStateFile}) {
    new PathSuggestions(*box, PathKind::kFile);
  }
  OfferCommonWords(*ui.cmdCommonWords);
  ParamsForm& frmParams = program_.frmParams;
  panel_->onEscape = [&frmParams] { frmParams.cmdClose.PerformClick(); };
  panel_->onHelp = main_.onHelp;
}

void Windows::OfferCommonWords(QPushButton& button) {
  auto* menu = new QMenu(&button);
  auto* oneOfThem = new QActionGroup(menu);
  QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu, oneOfThem] {
    menu->clear();
    const std::string& inForce = program_.frmParams.txbWordsFile[0].Text();
    for (const CommonWordsList& list : CommonWordsByName()) {
      // Of two that begin alike, the letter leads to one after the other.
      QAction* language = menu->addAction(QLatin1Char('&') + NameOf(list));
      oneOfThem->addAction(language);
      language->setCheckable(true);
      language->setChecked(list.path == inForce);
      if (list.path == inForce) continue;  // to choose it again changes nothing
      QObject::connect(language, &QAction::triggered, menu,
                       [this, list] { program_.WordLists().ChooseCommonWords(list.path); });
    }
  });
  button.setMenu(menu);
}

QString Windows::NameOf(const CommonWordsList& list) const {
  return ToQt(program_.Text().GetText(list.languageText));
}

/// In the order of the user's language.
std::vector<CommonWordsList> Windows::CommonWordsByName() const {
  std::vector<CommonWordsList> lists = FindCommonWords();
  const QCollator order(LocaleOf(program_.Text().CurrentLanguage()));
  std::ranges::stable_sort(lists, [&](const CommonWordsList& left, const CommonWordsList& right) {
    return order.compare(NameOf(left), NameOf(right)) < 0;
  });
  return lists;
}

void Windows::MakeHelp() {
  Ui::frmHelp ui;
  ui.setupUi(help_.get());
  help_->BindControls();
  HelpForm& frmHelp = program_.frmHelp;
  help_->onEscape = [&frmHelp] { frmHelp.cmdClose.PerformClick(); };
}

void Windows::MakeExport() {
  Ui::frmExport ui;
  ui.setupUi(export_.get());
  MakeRowsFlow(*export_);
  export_->BindControls();
  new PathSuggestions(*ui.txbFile, PathKind::kFile);
  ExportForm& frmExport = program_.frmExport;
  export_->onEnter = [&frmExport] { frmExport.cmdExport.PerformClick(); };
  export_->onEscape = [&frmExport] {
    // Closing rests while the export runs, which Escape stops.
    CommandButton& close = frmExport.cmdClose;
    (close.Enabled() ? close : frmExport.cmdExport).PerformClick();
  };
  export_->onHelp = main_.onHelp;
  QWidget* state = ui.lblState;
  frmExport.lblState.Changed.Connect([this, &frmExport, state] {
    if (frmExport.lblState.Caption().empty() || program_.State().Busy()) return;
    // Later, when it is shown.
    QMetaObject::invokeMethod(
        state, [state] { Announce(*state); }, Qt::QueuedConnection);
  });
}

/// A box that is left for another window of the program is left all the same.
void Windows::LeaveOthersWhenActivated(QtDesktop& desktop) {
  const std::array<FormWindow*, 4> windows = {&main_, panel_.get(), help_.get(), export_.get()};
  for (FormWindow* window : windows) {
    window->onActivated = [windows, window, &desktop] {
      desktop.SetWindow(window);
      for (FormWindow* other : windows) {
        if (other == window) continue;
        // Later: what is done on leaving a box may open another window.
        QMetaObject::invokeMethod(
            other, [other] { other->Source().LoseFocus(); }, Qt::QueuedConnection);
      }
    };
  }
}

void Windows::ShowChanges() {
  main_.ShowChanges();
  panel_->ShowChanges();
  help_->ShowChanges();
  export_->ShowChanges();
}

/// The toolkit's own buttons ("Cancel") speak the language of the program.
void Windows::ShowLanguage() {
  const Language language = program_.Text().CurrentLanguage();
  if (shownLanguage_ == language) return;
  shownLanguage_ = language;
  QApplication::removeTranslator(&buttonTexts_);
  const QLocale locale = LocaleOf(language);
  const auto load = [&](const QString& folder) {
    return buttonTexts_.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), folder);
  };
  // A program that has the toolkit linked in brings these texts along, too.
  const bool loaded = load(QStringLiteral(":/translations")) ||
                      load(QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  if (loaded) QApplication::installTranslator(&buttonTexts_);
  main_.SetTexts(program_.Text());  // some of which are the toolkit's own
  main_.setAccessibleDescription(ToQt(program_.Text().GetText(kProgramDescriptionText)));
}

void Windows::RestorePlaces() {
  const WindowMemory memory = Memory();
  memory.Restore(main_);
  memory.Restore(*panel_);
  memory.Restore(*help_);
  memory.Restore(*export_);
  memory.RestoreZoom(main_.List());
  main_.Fold().SetFolded(memory.SettingsFolded());
  memory.RestoreView(main_.Views());
  memory.RestoreColumns(main_.Table().View().Columns());
  memory.RestoreOrderFigures(main_.StatisticsView().OrderBox());
  program_.Paths().SetLastFolder(memory.LastFolder());
}

void Windows::KeepPlaces() {
  const WindowMemory memory = Memory();
  for (const QWidget* window :
       {static_cast<const QWidget*>(&main_), static_cast<const QWidget*>(panel_.get()),
        static_cast<const QWidget*>(help_.get()), static_cast<const QWidget*>(export_.get())}) {
    memory.Keep(*window);
  }
  memory.KeepZoom(main_.List());
  memory.KeepSettingsFolded(main_.Fold().IsFolded());
  memory.KeepView(main_.Views());
  memory.KeepColumns(main_.Table().View().Columns());
  memory.KeepOrderFigures(main_.StatisticsView().OrderBox());
  memory.KeepLastFolder(program_.Paths().LastFolder());
}

}  // namespace quillomat
