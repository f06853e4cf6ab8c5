#include "qt/text_conversion.h"

#include <cstddef>

#include "base/terminal_text.h"
#include "base/utf8.h"

namespace quillomat {
namespace {

constexpr char16_t kByteOfNoText = 0xDC00;  // and the byte
constexpr char16_t kFirstByte = kByteOfNoText + 0x80;
constexpr char16_t kLastByte = kByteOfNoText + 0xFF;

bool IsByte(const QString& text, qsizetype at) {
  const char16_t unit = text.at(at).unicode();
  const bool isHalf = unit >= kFirstByte && unit <= kLastByte;
  return isHalf && (at == 0 || !text.at(at - 1).isHighSurrogate());
}

qsizetype NextByte(const QString& text, qsizetype from) {
  while (from < text.size() && !IsByte(text, from)) ++from;
  return from;
}

/// A mark of byte order at the start, which the toolkit drops, is part of the text.
QString Decoded(std::string_view utf8) {
  QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  if (utf8.starts_with("\xEF\xBB\xBF")) text.prepend(QChar(QChar::ByteOrderMark));
  return text;
}

}  // namespace

QString ToQt(std::string_view text) {
  std::size_t wellFormed = WellFormedUtf8Bytes(text);
  QString shown = Decoded(text.substr(0, wellFormed));
  while (wellFormed < text.size()) {
    shown += QChar(kByteOfNoText + static_cast<unsigned char>(text[wellFormed]));
    text.remove_prefix(wellFormed + 1);
    wellFormed = WellFormedUtf8Bytes(text);
    shown += Decoded(text.substr(0, wellFormed));
  }
  return shown;
}

std::string FromQt(const QString& text) {
  qsizetype begin = 0;
  std::string bytes;
  for (qsizetype at = NextByte(text, 0); at < text.size(); at = NextByte(text, begin)) {
    bytes += text.mid(begin, at - begin).toStdString();
    bytes += static_cast<char>(text.at(at).unicode() - kByteOfNoText);
    begin = at + 1;
  }
  return begin == 0 ? text.toStdString() : bytes + text.mid(begin).toStdString();
}

QString ToQtLines(std::string_view text) {
  return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string FromQtLines(const QString& text) {
  return FromQt(QString(text).replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
}

QString ToShown(std::string_view text) {
  return ToQt(EscapedForTerminal(text));
}

QString ToShownLines(std::string_view text) {
  return ToQtLines(EscapedForTerminal(text));
}

QString WithReadableBytes(const QString& text) {
  QString readable;
  qsizetype begin = 0;
  for (qsizetype at = NextByte(text, 0); at < text.size(); at = NextByte(text, begin)) {
    readable += text.mid(begin, at - begin);
    readable += ToShown(FromQt(text.at(at)));
    begin = at + 1;
  }
  return begin == 0 ? text : readable + text.mid(begin);
}

}  // namespace quillomat
