// Offers paths below a box while one is typed.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>
#include <stop_token>

#include "qt/accessible_names.h"
#include "qt/calls_from_threads.h"

namespace quillomat {

enum class PathKind { kFile, kFolder };

/// What begins like the box's text is offered when the typing pauses, after a key and never without
/// one. The list takes neither the keyboard nor the mouse from the window: Up and Down go through
/// it, Enter takes what they have marked and is the window's when nothing is, a click on an entry
/// takes it, and any other click goes where it is aimed. Escape closes it until the next key.
///
/// Folders are read by threads of their own, for which nobody waits: one may be far away, and not
/// answer at all.
class PathSuggestions final : public QObject {
 public:
  /// What begins like `typed` in its folder, in order. Called from any thread; may end early, with
  /// anything, when it is told to stop.
  using Source =
      std::function<QStringList(const QString& typed, PathKind kind, const std::stop_token& stop)>;

  /// Belongs to the box. Looks at the disk unless a test has another source.
  PathSuggestions(QLineEdit& box, PathKind kind, Source source = PathsLike);
  PathSuggestions(const PathSuggestions&) = delete;
  PathSuggestions& operator=(const PathSuggestions&) = delete;
  PathSuggestions(PathSuggestions&&) = delete;
  PathSuggestions& operator=(PathSuggestions&&) = delete;
  ~PathSuggestions() override;

  /// So many folders that do not answer, and nothing more is offered.
  static constexpr int kMostLooks = 4;

  /// How a screen reader is told which entry of the list is marked.
  std::function<void(QListWidget& list, int row)> announce = AnnounceItem;

  [[nodiscard]] bool IsOffering() const { return list_.isVisible(); }
  [[nodiscard]] QStringList Offered() const;
  [[nodiscard]] const QListWidget& List() const { return list_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static QStringList PathsLike(const QString& typed, PathKind kind, const std::stop_token& stop);
  void Look();
  void StartLook(const QString& typed);
  void Offer(const QString& typed, const QStringList& paths);
  void Narrow(const QString& typed);
  bool Fill(const QString& typed, const QStringList& paths);
  void Place();
  void Take(const QListWidgetItem& item);
  void Close();
  [[nodiscard]] bool OnKey(int key);
  void Mark(int step);

  QLineEdit& box_;
  PathKind kind_;
  Source source_;
  std::shared_ptr<CallsFromThreads> callsFromThreads_ = std::make_shared<CallsFromThreads>();
  /// Of the look that was started last.
  std::stop_source stop_;
  /// How many threads look, or wait for a folder.
  std::shared_ptr<std::atomic<int>> looks_ = std::make_shared<std::atomic<int>>(0);
  QTimer pause_;
  QListWidget list_;
  /// Nothing is offered before the next key.
  bool closed_ = true;
};

}  // namespace quillomat
