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
}

}  // namespace quillomat
