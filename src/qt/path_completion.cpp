#include "qt/path_completion.h"

#include <QCompleter>
#include <QDir>
#include <QFileSystemModel>

namespace quillomat {
namespace {

QCompleter* NewCompleter(QLineEdit& box, PathKind kind) {
  auto* completer = new QCompleter(&box);
  auto* model = new QFileSystemModel(completer);
  const QDir::Filters folders = QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives;
  model->setFilter(kind == PathKind::kFolder ? folders : folders | QDir::Files);
  model->setRootPath(QString());
  completer->setModel(model);
  return completer;
}

}  // namespace

void CompletePaths(QLineEdit& box, PathKind kind) {
  QObject::connect(&box, &QLineEdit::textEdited, &box, [&box, kind] {
    if (box.completer() == nullptr) box.setCompleter(NewCompleter(box, kind));
  });
  // A completion goes on watching the folder, and would open its list over the window as soon as a
  // file of the typed name is there: the output file, of all files, when the count has written it.
  // Queued, as the completion itself may be passing on the key that ends the editing.
  QObject::connect(
      &box, &QLineEdit::editingFinished, &box, [&box] { box.setCompleter(nullptr); },
      Qt::QueuedConnection);
}

}  // namespace quillomat
