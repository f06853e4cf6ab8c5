#include "sources/utf16_order.h"

#include <bitset>
#include <cstddef>

namespace quillomat {
namespace {

char16_t UnitAt(std::string_view head, std::size_t at, Utf16Order order) {
  const auto first = static_cast<unsigned char>(head[at]);
  const auto second = static_cast<unsigned char>(head[at + 1]);
  const bool highFirst = order == Utf16Order::kHighByteFirst;
  return static_cast<char16_t>(highFirst ? (first << 8U) | second : (second << 8U) | first);
}

/// What texts of all languages have: blanks, line breaks, ASCII letters, digits and signs; and the
/// signs that all Chinese and Japanese texts have. Not those of ASCII that are common characters of
/// such texts when they are turned round: U+3000, with which their paragraphs begin, U+4E00 and
/// U+5F00.
bool IsCommon(char16_t unit) {
  constexpr std::u16string_view kCommonWhenTurned = u"0N_";
  constexpr std::u16string_view kSignsOfChinese = u"\u3001\u3002\uFF01\uFF0C\uFF1A\uFF1B\uFF1F";
  const bool isAscii = unit >= u' ' && unit <= u'~';
  if (isAscii) return kCommonWhenTurned.find(unit) == kCommonWhenTurned.npos;
  const bool isBreak = unit >= u'\t' && unit <= u'\r';
  return isBreak || kSignsOfChinese.find(unit) != kSignsOfChinese.npos;
}

/// What nearly every text has, and what turned round is a character that hardly any has.
bool IsTelling(char16_t unit) {
  constexpr std::u16string_view kTelling = u"\t\n\r \u3002\uFF0C";
  return kTelling.find(unit) != kTelling.npos;
}

std::size_t CountUnits(std::string_view head, Utf16Order order, bool (*isCounted)(char16_t)) {
  std::size_t counted = 0;
  for (std::size_t at = 0; at + 1 < head.size(); at += 2) {
    if (isCounted(UnitAt(head, at, order))) ++counted;
  }
  return counted;
}

/// How many different high bytes its units have.
std::size_t HighBytes(std::string_view head, Utf16Order order) {
  constexpr unsigned kBitsOfByte = 8;
  std::bitset<1U << kBitsOfByte> met;
  for (std::size_t at = 0; at + 1 < head.size(); at += 2) {
    met.set(static_cast<unsigned>(UnitAt(head, at, order)) >> kBitsOfByte);
  }
  return met.count();
}

/// Whether there is no control character and no lone surrogate in it.
bool IsWholeUtf16(std::string_view head, Utf16Order order) {
  bool high = false;
  for (std::size_t at = 0; at + 1 < head.size(); at += 2) {
    const char16_t unit = UnitAt(head, at, order);
    const bool isLow = unit >= 0xDC00 && unit <= 0xDFFF;
    if (high != isLow) return false;
    high = unit >= 0xD800 && unit <= 0xDBFF;
    const bool isBreak = unit >= u'\t' && unit <= u'\r';
    if ((unit < u' ' && !isBreak) || (unit >= 0x7F && unit < 0xA0) || unit >= 0xFFFE) return false;
  }
  return true;
}

}  // namespace

// Where nothing tells, the letters of a script stand close together, so high bytes are fewer; a
// short text may have as many of both.
Utf16Order LikelierOrder(std::string_view head) {
  using enum Utf16Order;
  const auto orderWithMore = [head](bool (*isCounted)(char16_t)) {
    const std::size_t ifHighFirst = CountUnits(head, kHighByteFirst, isCounted);
    const std::size_t ifLowFirst = CountUnits(head, kLowByteFirst, isCounted);
    if (ifHighFirst == ifLowFirst) return kNone;
    return ifHighFirst > ifLowFirst ? kHighByteFirst : kLowByteFirst;
  };
  if (const Utf16Order order = orderWithMore(IsTelling); order != kNone) return order;
  const std::size_t ifHighFirst = HighBytes(head, kHighByteFirst);
  const std::size_t ifLowFirst = HighBytes(head, kLowByteFirst);
  if (ifHighFirst != ifLowFirst) return ifHighFirst < ifLowFirst ? kHighByteFirst : kLowByteFirst;
  return orderWithMore(IsCommon) == kHighByteFirst ? kHighByteFirst : kLowByteFirst;
}

// Texts have blanks or line breaks, and those read the wrong way round are characters that hardly
// any text has.
Utf16Order Utf16OrderOf(std::string_view head) {
  using enum Utf16Order;
  constexpr std::size_t kUnitsForOneCommon = 100;
  constexpr std::size_t kTimesAsMany = 4;
  const Utf16Order order = LikelierOrder(head);
  const Utf16Order other = order == kHighByteFirst ? kLowByteFirst : kHighByteFirst;
  const std::size_t common = CountUnits(head, order, IsCommon);
  const std::size_t turned = CountUnits(head, other, IsCommon);
  const std::size_t units = head.size() / 2;
  const bool looksLikeIt = common * kUnitsForOneCommon >= units && common > turned * kTimesAsMany;
  return looksLikeIt && IsWholeUtf16(head, order) ? order : kNone;
}

}  // namespace quillomat
