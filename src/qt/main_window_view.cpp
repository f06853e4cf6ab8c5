#include "qt/main_window_view.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QShortcut>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/count/pace_text.h"
#include "qt/flow_row.h"
#include "qt/mixed_color.h"
#include "qt/path_of_url.h"
#include "qt/path_suggestions.h"
#include "qt/text_conversion.h"
#include "qt/window_memory.h"
#include "text/caption_table.h"
#include "ui_main_form.h"

namespace quillomat {
namespace {

// The keys of the views.
constexpr QLatin1String kTextView("text");
constexpr QLatin1String kTableView("table");
constexpr QLatin1String kFilesView("files");

/// The files and folders of this machine.
std::vector<std::string> DroppedPaths(const QMimeData& data) {
  std::vector<std::string> paths;
  for (const QUrl& url : data.urls()) {
    if (std::string path = PathOfUrl(url); !path.empty()) paths.push_back(std::move(path));
  }
  return paths;
}

/// Whoever offers a file to be moved would remove it afterwards.
void TakeAsCopy(QDropEvent& event) {
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

}  // namespace

MainWindowView::MainWindowView(Program& program)
    : FormWindow(program.frmMain),
      program_(program),
      ui_(std::make_unique<Ui::frmMain>()),
      findBar_((ui_->setupUi(this), *ui_->txbOutput), program),
      noticeStrip_(new NoticeStrip(ui_->paneResult)),
      views_(new ResultTabs),
      table_(new TablePage(program)),
      statistics_(new StatisticsPage(program)),
      files_(new FilesPage(program)),
      fold_(new SettingsFold(*ui_->paneSettings, [this] { views_->Enter(); })),
      foldedRun_(new FoldedRun(*ui_)),
      quitLetter_(new QShortcut(this)) {
  setAcceptDrops(true);
  MakeRowsFlow(*this);
  ui_->splitter->setStretchFactor(1, 1);  // a wider window is for the list
  connect(ui_->splitter, &QSplitter::splitterMoved, this,
          [this] { ui_->splitter->setProperty(kPlacedByUser, true); });
  PlaceNotices();
  PlaceNoticeStrip();
  BindControls();
  PlaceViews();
  for (QLineEdit* box : {ui_->txbFile_0, ui_->txbFile_1}) {
    new PathSuggestions(*box, PathKind::kFile);
  }
  new PathSuggestions(*ui_->txbFolder, PathKind::kFolder);
  for (QLineEdit* source : {ui_->txbFile_0, ui_->txbFolder}) source->setAcceptDrops(false);
  ConnectKeys();
  ConnectZoom();
  ConnectProgress();
  ConnectAnnouncements();
}

MainWindowView::~MainWindowView() = default;

ListView& MainWindowView::List() const {
  return *ui_->txbOutput;
}

/// The text box, with what finds words in it, becomes the first of several views.
void MainWindowView::PlaceViews() {
  auto* text = new QWidget;
  // The layout gives up the item of the text box.
  delete ui_->paneResult->layout()->replaceWidget(ui_->txbOutput, views_);
  auto* column = new QVBoxLayout(text);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(ui_->txbOutput, 1);
  column->addWidget(&findBar_);
  text->setFocusProxy(ui_->txbOutput);
  views_->setCornerWidget(fold_, Qt::TopLeftCorner);
  const auto findInText = [this] {
    views_->Show(kTextView);
    findBar_.Open();
  };
  views_->Add(text, kTextView, kTextViewText, {.find = [this] { findBar_.Open(); }});
  views_->Add(table_, kTableView, kTableViewText,
              {.find = [this] { table_->Find(); }, .copy = [this] { table_->View().Copy(); }});
  views_->Add(statistics_, QStringLiteral("statistics"), kStatisticsViewText,
              {.find = findInText, .copy = [this] { statistics_->Copy(); }});
  views_->Add(files_, kFilesView, kFilesViewText,
              {.find = findInText, .copy = [this] { files_->Copy(); }});
  // What stands below the views comes behind them on the keyboard's way, too.
  setTabOrder(&table_->View(), &statistics_->OrderBox());
  setTabOrder(&statistics_->OrderBox(), &statistics_->Table());
  setTabOrder(&statistics_->Table(), &files_->Table());
  setTabOrder(&files_->Table(), ui_->cmdCopyToClipboard);
  setTabOrder(ui_->cmdCopyToClipboard, ui_->cmdExport);
  setTabOrder(ui_->cmdExport, ui_->cmdClearOutput);
  setTabOrder(ui_->cmdClearOutput, ui_->cmdClipboardViewer);
  ConnectViews();
  ConnectFold();
}

void MainWindowView::ConnectFold() {
  ownCaptions = {[this] { return views_->Titles(); },
                 [this](const QList<QString>& shown) {
                   views_->ShowTitles(shown);
                   // Later, when all letters are chosen.
                   QTimer::singleShot(0, this, [this] { ShowQuitLetter(); });
                 }};
  connect(fold_, &SettingsFold::toggled, this, [this](bool folded) {
    foldedRun_->Follow(folded);
    ShowQuitLetter();
    ShowProgress();
  });
  // Later, when what was folded has been laid out.
  connect(
      fold_, &SettingsFold::toggled, this,
      [this] {
        if (std::exchange(fitsWhenUnfolded_, false)) FitSettings();
      },
      Qt::QueuedConnection);
}

/// The toolkit passes over the letter of what is hidden.
void MainWindowView::ShowQuitLetter() {
  quitLetter_->setKey(fold_->IsFolded() ? QKeySequence::mnemonic(ui_->cmdQuit->text())
                                        : QKeySequence());
}

/// The notices speak of the view in front, "Copy to clipboard" copies it, and exports are of what
/// the table shows.
void MainWindowView::ConnectViews() {
  NoticeBar& notices = program_.Notices();
  notices.SetTableShower([this] {
    views_->Show(kTableView);
    LeaveControls();
    table_->setFocus(Qt::OtherFocusReason);
  });
  notices.SetSkippedShower([this](bool byDesign) {
    views_->Show(kFilesView);
    LeaveControls();
    files_->ShowNotRead(byDesign);
  });
  connect(views_, &QTabWidget::currentChanged, this,
          [this, &notices] { notices.SetTextShown(views_->Current() == kTextView); });
  // What it lists is text.
  program_.frmMain.cmdListFiles.Click.Connect([this] { views_->Show(kTextView); });
  program_.SetViewCopier([this] { return views_->Copy(); });
  program_.Exports().SetFilter([this] { return table_->Table().Filtered(); });
  table_->Table().Changed.Connect([this] { program_.Exports().OnFilterChange(); });
}

/// The keyboard goes to what shows no control: the one that was clicked must not take it back.
void MainWindowView::LeaveControls() {
  program_.frmMain.LoseFocus();
}

/// The notices stand over the empty list.
void MainWindowView::PlaceNotices() {
  constexpr int kBetween = 24;
  auto* column = new QVBoxLayout(ui_->txbOutput);
  column->setSpacing(kBetween);
  column->addStretch();
  for (QLabel* notice : Notices()) column->addWidget(notice, 0, Qt::AlignHCenter);
  column->addStretch();
  ShowNoticesInWindowFont();
  ShowLinksReadably();
}

/// Above all that shows the result.
void MainWindowView::PlaceNoticeStrip() {
  static_cast<QVBoxLayout*>(ui_->paneResult->layout())->insertWidget(0, noticeStrip_);
  QWidget* before = ui_->cmdQuit;
  for (QAbstractButton* command : noticeStrip_->Commands()) {
    setTabOrder(before, command);
    before = command;
  }
  Label& lblNotice = program_.frmMain.lblNotice;
  lblNotice.Changed.Connect([this, &lblNotice] {
    noticeStrip_->setVisible(lblNotice.Visible());
    // Later, when the text is shown.
    QMetaObject::invokeMethod(
        this, [this] { noticeStrip_->AnnounceNotice(); }, Qt::QueuedConnection);
  });
}

std::array<QLabel*, 3> MainWindowView::Notices() const {
  return {ui_->lblCopyrightNotice, ui_->lblOnlineDocumentation, ui_->lblOrvandelSystems};
}

/// They are children of the list and would take its font and its zoom.
void MainWindowView::ShowNoticesInWindowFont() {
  for (QLabel* notice : Notices()) {
    QFont own = font();
    own.setFamilies(own.families());
    if (own.pointSizeF() > 0) own.setPointSizeF(own.pointSizeF());
    own.setUnderline(notice != ui_->lblCopyrightNotice);
    notice->setFont(own);
  }
}

/// Not every desktop of dark colours has one for links.
void MainWindowView::ShowLinksReadably() {
  const QColor color = ReadableColor(palette().color(QPalette::Link), palette());
  for (QLabel* link : {ui_->lblOnlineDocumentation, ui_->lblOrvandelSystems}) {
    QPalette own = link->palette();
    if (own.color(QPalette::WindowText) == color) continue;
    own.setColor(QPalette::WindowText, color);
    link->setPalette(own);
  }
}

void MainWindowView::changeEvent(QEvent* event) {
  FormWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowLinksReadably();
  if (event->type() != QEvent::FontChange) return;
  ShowNoticesInWindowFont();
  AlignLabels();
}

/// The splitter takes from the list alone what a smaller window has no room for.
void MainWindowView::resizeEvent(QResizeEvent* event) {
  FormWindow::resizeEvent(event);
  // Later, when the splitter has its new width.
  QMetaObject::invokeMethod(
      this, [this] { FitSettings(); }, Qt::QueuedConnection);
}

void MainWindowView::SetTexts(const ProgramText& text) {
  findBar_.SetTexts(text);
  views_->SetTexts(text);
  table_->SetTexts(text);
  statistics_->SetTexts(text);
  files_->SetTexts(text);
  fold_->SetTexts(text);
  fileOfFiles_ = ToQt(text.GetText(kFileOfFilesText));
  noticeStrip_->SetNames(ToQt(text.GetText(kNoticeCommandsText)),
                         ToQt(text.GetText(kDismissNoticeText)));
  ui_->barProgress->setAccessibleName(ToQt(text.GetText(kProgressText)));
  ShowProgress();
  // Later, when all captions are set.
  QTimer::singleShot(0, this, [this] {
    ShowChanges();
    AlignLabels();
    // What holds a caption wants another width when it has been laid out anew, and so on outwards.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    FitSettings();
  });
}

/// The boxes of the list stand one below the other.
void MainWindowView::AlignLabels() {
  const std::array<QLabel*, 2> labels = {ui_->Label1, ui_->Label2};
  int widest = 0;
  for (const QLabel* label : labels) widest = std::max(widest, label->sizeHint().width());
  for (QLabel* label : labels) label->setMinimumWidth(widest);
}

/// The settings get the width that their captions want, up to half of the window, until the user
/// has placed the splitter.
void MainWindowView::FitSettings() {
  QSplitter& splitter = *ui_->splitter;
  fitsWhenUnfolded_ = fold_->IsFolded();
  if (splitter.property(kPlacedByUser).toBool() || fitsWhenUnfolded_) return;
  const int room = splitter.width() - splitter.handleWidth();
  const int settings = std::min(ui_->paneSettings->sizeHint().width(), room / 2);
  splitter.setSizes({settings, room - settings});
}

/// One bar for the whole run: of a folder, its own, else the file's.
void MainWindowView::ConnectProgress() {
  MainForm& frmMain = program_.frmMain;
  const auto changes = [this] { progressChanged_ = true; };
  frmMain.lblNumOccurrences.Changed.Connect(changes);
  frmMain.lblTotalNumOccurrences.Changed.Connect(changes);
}

/// It may change with every file, which is more often than anybody sees.
void MainWindowView::ShowOwn() {
  if (std::exchange(progressChanged_, false)) ShowProgress();
}

void MainWindowView::ShowProgress() {
  const MainForm& frmMain = program_.frmMain;
  const std::optional<Progress>& ofFolder = frmMain.lblNumOccurrences.ShownProgress();
  const std::optional<Progress>& shown =
      ofFolder ? ofFolder : frmMain.lblTotalNumOccurrences.ShownProgress();
  QProgressBar& bar = *ui_->barProgress;
  bar.setVisible(shown.has_value());
  if (!shown) return;
  const QString format = ProgressFormat(*shown);
  if (bar.format() != format) bar.setFormat(format);
  bar.setValue(static_cast<int>(shown->Share() * bar.maximum()));
}

/// Whoever cannot see the list come is told what it holds, when all is done.
void MainWindowView::ConnectAnnouncements() {
  program_.Words().WordsRanked.Connect([this] { listIsNew_ = true; });
  program_.BecameIdle.Connect([this] {
    if (!std::exchange(listIsNew_, false)) return;
    ShowChanges();
    announce(*ui_->lblNumberOfWords);
  });
}

/// The pace is told where there is room for it.
QString MainWindowView::ProgressFormat(const Progress& progress) const {
  const QString dash = QStringLiteral(" \u2013 ");
  QString format = QStringLiteral("%p %");
  if (progress.files > 0) {
    format = fileOfFiles_.arg(progress.file).arg(progress.files) + dash + format;
  }
  const QString pace = ToQt(PaceText(progress, program_.Text(), program_.Signs()));
  if (pace.isEmpty()) return format;
  const QString whole = format + dash + pace;
  const QProgressBar& bar = *ui_->barProgress;
  return bar.fontMetrics().horizontalAdvance(whole + QStringLiteral("00")) < bar.width() ? whole
                                                                                         : format;
}

void MainWindowView::ConnectKeys() {
  MainForm& frmMain = program_.frmMain;
  onEnter = [this, &frmMain] {
    // Who reads a table of the result does not mean to make another.
    if (views_->Current() != kTextView && views_->isAncestorOf(focusWidget())) return;
    if (!program_.State().Busy()) frmMain.cmdCountWords.PerformClick();
  };
  onEscape = [this, &frmMain] {
    if (program_.State().Busy()) frmMain.cmdCountWords.PerformClick();
  };
  onHelp = [&frmMain] {
    // The focus stays where it is.
    if (frmMain.cmdHelp.Enabled()) frmMain.cmdHelp.Click.Fire();
  };
  auto* quitKey = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this);
  quitKey->setContext(Qt::ApplicationShortcut);
  for (const QShortcut* quit : {quitKey, quitLetter_}) {
    connect(quit, &QShortcut::activated, this, [&frmMain] { frmMain.cmdQuit.PerformClick(); });
  }
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          [this] { views_->Find(); });
  const auto findAgain = [this](QKeySequence::StandardKey key, auto find) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, find] {
      if (views_->Current() != kTextView) return views_->Find();
      find(findBar_);
    });
  };
  findAgain(QKeySequence::FindNext, [](FindBar& bar) { bar.FindNext(); });
  findAgain(QKeySequence::FindPrevious, [](FindBar& bar) { bar.FindPrevious(); });
}

void MainWindowView::ConnectZoom() {
  List().onZoom = [this](int zoom) {
    table_->View().SetZoom(zoom);
    statistics_->SetZoom(zoom);
    files_->SetZoom(zoom);
  };
  for (const QAbstractScrollArea* table : Tables()) table->viewport()->installEventFilter(this);
  const auto zoom = [this](const QList<QKeySequence>& keys, auto step) {
    for (const QKeySequence& key : keys) {
      connect(new QShortcut(key, this), &QShortcut::activated, this,
              [this, step] { List().SetZoom(step(List().Zoom())); });
    }
  };
  zoom({QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)},
       [](int size) { return size + 1; });
  zoom({QKeySequence::ZoomOut}, [](int size) { return size - 1; });
  zoom({QKeySequence(Qt::CTRL | Qt::Key_0)}, [](int) { return 0; });
}

std::array<QAbstractScrollArea*, 3> MainWindowView::Tables() const {
  return {&table_->View(), &statistics_->Table(), &files_->Table()};
}

/// Over the tables the wheel changes the size of all letters, as it does over the list.
bool MainWindowView::OnWheel(const QObject* watched, const QWheelEvent& wheel) {
  const auto tables = Tables();
  const bool isTable = std::ranges::any_of(
      tables, [&](const QAbstractScrollArea* table) { return table->viewport() == watched; });
  if (!isTable || !wheel.modifiers().testFlag(Qt::ControlModifier)) return false;
  const int turned = wheel.angleDelta().y();
  if (turned != 0) List().SetZoom(List().Zoom() + (turned > 0 ? 1 : -1));
  return true;
}

/// A file that is dropped on the box of the output file is meant for it.
bool MainWindowView::eventFilter(QObject* watched, QEvent* event) {
  const bool drags = event->type() == QEvent::DragEnter || event->type() == QEvent::Drop;
  if (watched == ui_->txbFile_1 && drags) {
    auto& drop = static_cast<QDropEvent&>(*event);
    const std::vector<std::string> paths = DroppedPaths(*drop.mimeData());
    if (paths.size() == 1) {
      TakeAsCopy(drop);
      if (event->type() == QEvent::Drop) program_.frmMain.txbFile[1].EnterText(paths.front());
      return true;
    }
  }
  if (event->type() == QEvent::Wheel && OnWheel(watched, static_cast<QWheelEvent&>(*event))) {
    return true;
  }
  return FormWindow::eventFilter(watched, event);
}

/// Any drop is taken, so that the program can say what it makes of it.
void MainWindowView::dragEnterEvent(QDragEnterEvent* event) {
  if (!program_.State().Busy()) TakeAsCopy(*event);
}

void MainWindowView::dragMoveEvent(QDragMoveEvent* event) {
  TakeAsCopy(*event);
}

void MainWindowView::dropEvent(QDropEvent* event) {
  TakeAsCopy(*event);
  // Later: the program may answer with a box, and the dragging must have ended by then.
  QMetaObject::invokeMethod(
      this,
      [this, paths = DroppedPaths(*event->mimeData())] { program_.Sources().TakeDrop(paths); },
      Qt::QueuedConnection);
}

}  // namespace quillomat
