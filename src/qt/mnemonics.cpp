#include "qt/mnemonics.h"

#include <bitset>

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

}  // namespace

QString WithoutMnemonic(QString caption) {
  return caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QList<QString> WithMnemonics(const QList<QString>& captions) {
  Letters taken;
  QList<QString> result;
  for (const QString& caption : captions) {
    qsizetype place = FreeLetter(caption, taken, true);
    if (place < 0) place = FreeLetter(caption, taken, false);
    if (place < 0) {
      result.append(WithoutMnemonic(caption));
      continue;
    }
    taken.set(caption[place].toLower().unicode());
    result.append(WithoutMnemonic(caption.left(place)) + QLatin1Char('&') +
                  WithoutMnemonic(caption.mid(place)));
  }
  return result;
}

}  // namespace quillomat
