#include "qt/main_window_view.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QLayout>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>
#include <array>
#include <string>
#include <vector>

#include "qt/path_completion.h"
#include "qt/text_conversion.h"
#include "ui_main_form.h"

namespace quillomat {
namespace {

/// The files and folders of this machine.
std::vector<std::string> DroppedPaths(const QMimeData& data) {
  std::vector<std::string> paths;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) paths.push_back(FromQt(QDir::toNativeSeparators(url.toLocalFile())));
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
      findBar_((ui_->setupUi(this), *ui_->txbOutput),
               [&program] { return ToQt(program.NotFoundText()); }) {
  setAcceptDrops(true);
  PlaceNotices();
  KeepRoomForSummary();
  BindControls();
  auto* rows = static_cast<QVBoxLayout*>(layout());
  rows->insertWidget(rows->indexOf(ui_->txbOutput) + 1, &findBar_);
  for (QLineEdit* box : {ui_->txbFile_0, ui_->txbFile_1}) {
    new PathSuggestions(*box, PathKind::kFile);
  }
  new PathSuggestions(*ui_->txbFolder, PathKind::kFolder);
  for (QLineEdit* source : {ui_->txbFile_0, ui_->txbFolder}) source->setAcceptDrops(false);
  ConnectKeys();
  ConnectZoom();
}

MainWindowView::~MainWindowView() {
  findBar_.setParent(nullptr);  // a member, which the window must not delete as its child
}

ListView& MainWindowView::List() const {
  return *ui_->txbOutput;
}

/// The notices stand over the empty list.
void MainWindowView::PlaceNotices() {
  constexpr int kBetween = 24;
  auto* column = new QVBoxLayout(ui_->txbOutput);
  column->setSpacing(kBetween);
  column->addStretch();
  for (QLabel* notice :
       {ui_->lblCopyrightNotice, ui_->lblOnlineDocumentation, ui_->lblOrvandelSystems}) {
    notice->setFont(font());  // not the list's
    column->addWidget(notice, 0, Qt::AlignHCenter);
  }
  column->addStretch();
  for (QLabel* link : {ui_->lblOnlineDocumentation, ui_->lblOrvandelSystems}) {
    link->setCursor(Qt::PointingHandCursor);
    link->setForegroundRole(QPalette::Link);
    link->setFocusPolicy(Qt::TabFocus);
    QFont underlined = link->font();
    underlined.setUnderline(true);
    link->setFont(underlined);
  }
}

/// The list keeps its height when the summary appears.
void MainWindowView::KeepRoomForSummary() {
  const std::array<QLabel*, 4> labels = {ui_->lblNumberOfWords, ui_->lblNumWordsExcluded,
                                         ui_->lblNumOccurrences, ui_->lblTotalNumOccurrences};
  for (QLabel* label : labels) {
    QSizePolicy policy = label->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label->setSizePolicy(policy);
    label->setFont(ui_->txbOutput->font());
  }
}

void MainWindowView::ConnectKeys() {
  MainForm& frmMain = program_.frmMain;
  onEnter = [this, &frmMain] {
    if (!program_.state.busy) frmMain.cmdCountWords.PerformClick();
  };
  onEscape = [this, &frmMain] {
    if (program_.state.busy) frmMain.cmdCountWords.PerformClick();
  };
  onHelp = [&frmMain] {
    // The focus stays where it is.
    if (frmMain.cmdHelp.Enabled()) frmMain.cmdHelp.Click.Fire();
  };
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          [this] { findBar_.Open(); });
}

void MainWindowView::ConnectZoom() {
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
  return FormWindow::eventFilter(watched, event);
}

/// Any drop is taken, so that the program can say what it makes of it.
void MainWindowView::dragEnterEvent(QDragEnterEvent* event) {
  if (!program_.state.busy) TakeAsCopy(*event);
}

void MainWindowView::dragMoveEvent(QDragMoveEvent* event) {
  TakeAsCopy(*event);
}

void MainWindowView::dropEvent(QDropEvent* event) {
  TakeAsCopy(*event);
  // Later: the program may answer with a box, and the dragging must have ended by then.
  QMetaObject::invokeMethod(
      this, [this, paths = DroppedPaths(*event->mimeData())] { program_.TakeDrop(paths); },
      Qt::QueuedConnection);
}

}  // namespace quillomat
