// Offers paths below a box while one is typed.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace quillomat {

enum class PathKind { kFile, kFolder };

/// What begins like the box's text is offered when the typing pauses, after a key and never without
/// one. The list takes neither the keyboard nor the mouse from the window: Up and Down go through
/// it, Enter takes what they have marked and is the window's when nothing is, a click on an entry
/// takes it, and any other click goes where it is aimed. Escape closes it until the next key.
class PathSuggestions final : public QObject {
 public:
  /// Belongs to the box.
  PathSuggestions(QLineEdit& box, PathKind kind);

  [[nodiscard]] bool IsOffering() const { return list_.isVisible(); }
  [[nodiscard]] QStringList Offered() const;
  [[nodiscard]] const QListWidget& List() const { return list_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Look();
  void Offer(const QString& typed, const QStringList& paths);
  void Narrow(const QString& typed);
  void Place();
  void Take(const QListWidgetItem& item);
  void Close();
  [[nodiscard]] bool OnKey(int key);
  void Mark(int step);

  QLineEdit& box_;
  PathKind kind_;
  QTimer pause_;
  QListWidget list_;
  /// Nothing is offered before the next key.
  bool closed_ = true;
};

}  // namespace quillomat
