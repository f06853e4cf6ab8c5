// Keeps keys and clicks that were not meant for a box from answering it: the second click of a
// double click whose first has opened it, or has just answered the box before it, and of the keys
// one that is held down and repeats itself, one that went down before the box was there, and one
// that comes so soon after it that nobody can have read it. What is typed into a box of text goes
// there all the same; only Enter and Escape are kept from that.
//
// It watches all boxes of the program, also those that the toolkit opens over its own.
#pragma once

#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPoint>
#include <chrono>

namespace quillomat {

class BoxGuard final : public QObject {
 public:
  /// As long as it lives, which is within that of the application.
  BoxGuard();

  /// A box is answered by no key before it has stood, and had the keyboard, for so long.
  static constexpr std::chrono::milliseconds kPause{250};
  /// A key that is held down repeats itself within that time. One that was silent for longer was
  /// let go unseen, as the system does not tell a window of that when a box has come over it.
  static constexpr std::chrono::milliseconds kLongestSilence{1000};

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Clock = std::chrono::steady_clock;

  void NotePress(const QKeyEvent& key);
  [[nodiscard]] bool MayAnswer(const QKeyEvent& key) const;
  [[nodiscard]] bool KeepsAway(const QKeyEvent& key) const;
  [[nodiscard]] bool KeepsAway(const QMouseEvent& mouse);

  /// Keys that went down from then on may answer the box in front.
  Clock::time_point open_;
  struct Press {
    Clock::time_point down;
    /// When it was told last that it is down.
    Clock::time_point told;
  };
  /// The keys that are down.
  QHash<int, Press> presses_;
  /// The last click that was kept from nothing.
  Clock::time_point clicked_;
  QPoint clickedAt_;
  bool clickedInBox_ = false;
  /// Of the key whose letter a command of the box may take.
  bool shortcutMayAnswer_ = true;
};

}  // namespace quillomat
