#include "qt/path_completion.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QTimer>
#include <chrono>

namespace quillomat {
namespace {

constexpr std::chrono::milliseconds kPause{400};

/// Offers what is in the folder of the box's text, as soon as the folder has been read.
void Offer(QLineEdit& box, PathKind kind) {
  auto* completer = new QCompleter(&box);
  auto* model = new QFileSystemModel(completer);
  const QDir::Filters folders = QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives;
  model->setFilter(kind == PathKind::kFolder ? folders : folders | QDir::Files);
  completer->setModel(model);
  box.setCompleter(completer);
  completer->setCompletionPrefix(box.text());
  QObject::connect(model, &QFileSystemModel::directoryLoaded, completer, [completer] {
    if (!completer->popup()->isVisible()) completer->complete();
  });
  model->setRootPath(QFileInfo(box.text()).path());
}

bool IsOffering(const QLineEdit& box) {
  return box.completer() != nullptr && box.completer()->popup()->isVisible();
}

}  // namespace

// The list of a completion takes the keys while it is open, and keys that are on their way when it
// opens or closes are lost: hence only in a pause of the typing. And it goes on watching the
// folder, and would open over the window as soon as a file of the typed name is there: the output
// file, of all files, when the count has written it.
void CompletePaths(QLineEdit& box, PathKind kind) {
  auto* pause = new QTimer(&box);
  pause->setSingleShot(true);
  pause->setInterval(kPause);
  const auto drop = [&box] {
    if (!IsOffering(box)) box.setCompleter(nullptr);
  };
  QObject::connect(&box, &QLineEdit::textEdited, pause, [&box, pause] {
    if (!IsOffering(box)) pause->start();
  });
  QObject::connect(pause, &QTimer::timeout, &box, [&box, kind, drop] {
    drop();
    if (box.hasFocus() && !IsOffering(box)) Offer(box, kind);
  });
  QObject::connect(&box, &QLineEdit::editingFinished, pause, &QTimer::stop);
  // Queued, as the completion itself may be passing on the key.
  QObject::connect(&box, &QLineEdit::textEdited, &box, drop, Qt::QueuedConnection);
  QObject::connect(
      &box, &QLineEdit::editingFinished, &box, [&box] { box.setCompleter(nullptr); },
      Qt::QueuedConnection);
}

}  // namespace quillomat
