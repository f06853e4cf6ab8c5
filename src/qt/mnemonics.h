// The underlined letters that reach a control with the Alt key. They are not written into the
// captions, which exist in two languages and change while the program runs, but worked out: within
// a window every letter is given once.
#pragma once

#include <QList>
#include <QString>

namespace quillomat {

/// The captions as the toolkit takes them, with "&" before the letter chosen. Earlier captions
/// choose first; a letter at the start of a word is taken before one inside. A caption of which no
/// letter is free gets none.
[[nodiscard]] QList<QString> WithMnemonics(const QList<QString>& captions);

/// A caption as the toolkit takes it, without a mnemonic.
[[nodiscard]] QString WithoutMnemonic(QString caption);

}  // namespace quillomat
