#include "qt/main_window_view.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QLayout>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>
#include <array>

#include "qt/path_completion.h"
#include "qt/text_conversion.h"
#include "ui_main_form.h"

namespace quillomat {
namespace {

/// The path of what is dragged, if it is one file or folder of this machine.
QString DraggedPath(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

}  // namespace

MainWindowView::MainWindowView(Program& program)
    : FormWindow(program.frmMain),
      program_(program),
      ui_(std::make_unique<Ui::frmMain>()),
      findBar_((ui_->setupUi(this), *ui_->txbOutput)) {
  setAcceptDrops(true);
  PlaceNotices();
  KeepRoomForSummary();
  BindControls();
  auto* rows = static_cast<QVBoxLayout*>(layout());
  rows->insertWidget(rows->indexOf(ui_->txbOutput) + 1, &findBar_);
  CompletePaths(*ui_->txbFile_0, PathKind::kFile);
  CompletePaths(*ui_->txbFile_1, PathKind::kFile);
  CompletePaths(*ui_->txbFolder, PathKind::kFolder);
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

void MainWindowView::dragEnterEvent(QDragEnterEvent* event) {
  if (!program_.state.busy && !DraggedPath(*event->mimeData()).isEmpty()) {
    event->acceptProposedAction();
  }
}

void MainWindowView::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  const std::string path = FromQt(QDir::toNativeSeparators(DraggedPath(*event->mimeData())));
  // Later: the program may answer with a box, and the dragging must have ended by then.
  QMetaObject::invokeMethod(
      this, [this, path] { program_.ChooseText(path); }, Qt::QueuedConnection);
}

}  // namespace quillomat
