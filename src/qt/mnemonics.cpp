#include "qt/mnemonics.h"

#include <bitset>
#include <utility>

namespace quillomat {
namespace {

/// Letters that every keyboard has.
using Letters = std::bitset<128>;

bool StartsWord(const QString& caption, qsizetype place) {
  return place == 0 || !caption[place - 1].isLetterOrNumber();
}

/// The place of a letter that nobody has taken, or -1.
qsizetype FreeLetter(const QString& caption, const Letters& taken, bool atWordStart) {
  for (qsizetype place = 0; place < caption.size(); ++place) {
    const QChar letter = caption[place].toLower();
    if (letter.isLetter() && letter.unicode() < taken.size() && !taken[letter.unicode()] &&
        (!atWordStart || StartsWord(caption, place))) {
      return place;
    }
  }
  return -1;
}

/// The caption with a letter that is free, which is taken then.
QString WithFreeLetter(const QString& caption, Letters& taken) {
  qsizetype place = FreeLetter(caption, taken, true);
  if (place < 0) place = FreeLetter(caption, taken, false);
  if (place < 0) return WithoutMnemonic(caption);
  taken.set(caption[place].toLower().unicode());
  return WithoutMnemonic(caption.left(place)) + QLatin1Char('&') +
         WithoutMnemonic(caption.mid(place));
}

/// Takes the letter that a caption bears already.
void Take(const QString& shownCaption, Letters& taken) {
  for (qsizetype place = 0; place + 1 < shownCaption.size(); ++place) {
    if (shownCaption[place] != QLatin1Char('&')) continue;
    const QChar letter = shownCaption[++place].toLower();
    if (letter != QLatin1Char('&')) taken.set(letter.unicode());
  }
}

}  // namespace

QString WithoutMnemonic(QString caption) {
  return caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString Readable(const QString& shownCaption) {
  QString text;
  for (qsizetype place = 0; place < shownCaption.size(); ++place) {
    if (shownCaption[place] == QLatin1Char('&') && ++place >= shownCaption.size()) break;
    text.append(shownCaption[place]);
  }
  return text;
}

void Mnemonics::GiveBack(const QList<QString>& captions) {
  if (!loan_) return;
  const bool ownerStays = captions[loan_->owner] == captions_[loan_->owner];
  const bool borrowerStays = captions[loan_->borrower] == captions_[loan_->borrower];
  if (ownerStays && borrowerStays) return;
  if (ownerStays) shown_[loan_->owner] = loan_->shown;
  loan_.reset();
}

/// For the one caption that has changed, if it has found no letter.
void Mnemonics::BorrowLetter(const QList<QString>& captions, QList<QString>& shown) {
  for (qsizetype i = 0; i < captions.size(); ++i) {
    if (captions[i] == captions_[i] || shown[i] != WithoutMnemonic(captions[i])) continue;
    Letters borrowed;
    shown[i] = WithFreeLetter(captions[i], borrowed);
    for (qsizetype owner = 0; owner < captions.size(); ++owner) {
      Letters taken;
      Take(shown[owner], taken);
      if (owner == i || (taken & borrowed).none()) continue;
      loan_ = {i, owner, std::exchange(shown[owner], WithoutMnemonic(captions[owner]))};
      return;
    }
  }
}

QList<QString> Mnemonics::Assign(const QList<QString>& captions) {
  const bool sameWindow = captions.size() == captions_.size();
  if (sameWindow) {
    GiveBack(captions);
  } else {
    loan_.reset();
  }
  const auto stays = [&](qsizetype i) { return sameWindow && captions[i] == captions_[i]; };
  Letters taken;
  for (qsizetype i = 0; i < captions.size(); ++i) {
    if (stays(i)) Take(shown_[i], taken);
  }
  QList<QString> result;
  qsizetype changed = 0;
  for (qsizetype i = 0; i < captions.size(); ++i) {
    if (!stays(i)) ++changed;
    result.append(stays(i) ? shown_[i] : WithFreeLetter(captions[i], taken));
  }
  if (sameWindow && changed == 1) BorrowLetter(captions, result);
  captions_ = captions;
  shown_ = result;
  return result;
}

}  // namespace quillomat
