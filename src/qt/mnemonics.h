// The underlined letters that reach a control with the Alt key. They are not written into the
// captions, which exist in two languages and change while the program runs, but worked out: within
// a window every letter is given once.
#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace quillomat {

/// A caption as the toolkit takes it, without a mnemonic.
[[nodiscard]] QString WithoutMnemonic(QString caption);
/// What a person reads in a caption that was made for the toolkit.
[[nodiscard]] QString Readable(const QString& shownCaption);

/// The letters of one window. A caption that stays keeps its letter while others change: the hand
/// has learnt it. A caption that changes alone, as that of a command that has begun its work,
/// borrows a letter when none is free, and gives it back when it changes again.
class Mnemonics {
 public:
  /// The captions as the toolkit takes them, with "&" before the letter chosen. Earlier captions
  /// choose first; a letter at the start of a word is taken before one inside. A caption of which
  /// no letter is free gets none. To be called for the same captions in the same order time and
  /// again.
  [[nodiscard]] QList<QString> Assign(const QList<QString>& captions);

 private:
  struct Loan {
    qsizetype borrower = 0;
    qsizetype owner = 0;
    /// The owner's caption with its letter.
    QString shown;
  };

  void GiveBack(const QList<QString>& captions);
  void BorrowLetter(const QList<QString>& captions, QList<QString>& shown);

  QList<QString> captions_;
  QList<QString> shown_;
  std::optional<Loan> loan_;
};

}  // namespace quillomat
