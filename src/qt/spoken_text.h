// What a screen reader is to say although the keyboard stands elsewhere. The screen readers of
// Linux pass over alerts and over labels that change; they read out a notification that comes to be
// shown. So a label whose text is to be heard gets one, which is nowhere on the screen and goes
// after a while. Each label has its own: what is said a moment later must not take the place of
// what has not been asked for yet.
#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>

namespace quillomat {

class SpokenText final : public QWidget {
 public:
  /// That of a label, made when it is first needed. It belongs to the label's window: labels come
  /// and go, and would each time bring back what they said last.
  static SpokenText& Of(const QWidget& label);

  /// The same text twice is said twice.
  void Say(const QString& text);

 private:
  explicit SpokenText(const QWidget& label);

  /// Compared, and not asked for anything.
  const QWidget* label_;
  QTimer gone_;
};

}  // namespace quillomat
