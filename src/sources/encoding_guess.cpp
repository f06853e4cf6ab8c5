#include "sources/encoding_guess.h"

#include <algorithm>
#include <bitset>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <uchardet.h>

#include "base/byte_order_mark.h"
#include "base/text_decoder.h"
#include "system/system_decoder.h"

namespace quillomat {
namespace {

/// Enough to see which byte of UTF-16 comes first; all who ask have as many.
constexpr std::size_t kOrderBytes = 4096;

struct DetectorCloser {
  void operator()(uchardet_t detector) const { uchardet_delete(detector); }
};
using Detector = std::unique_ptr<uchardet, DetectorCloser>;

bool IsBeyondAscii(char ch) {
  return static_cast<unsigned char>(ch) > 0x7F;
}

enum class Utf16Order : std::uint8_t { kNone, kLowByteFirst, kHighByteFirst };

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

/// Of a text without a mark that is known to be in UTF-16. Where nothing tells, the letters of a
/// script stand close together, so high bytes are fewer; a short text may have as many of both.
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

/// Of any bytes without a mark: texts have blanks or line breaks, and those read the wrong way
/// round are characters that hardly any text has.
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

CharacterSet SetOf(Utf16Order order) {
  return order == Utf16Order::kHighByteFirst ? CharacterSet::kUtf16HighByteFirst
                                             : CharacterSet::kUtf16;
}

bool IsUtf16(CharacterSet set) {
  return set == CharacterSet::kUtf16 || set == CharacterSet::kUtf16HighByteFirst ||
         set == CharacterSet::kUtf16LowByteFirst;
}

/// The larger set where the library names one that holds fewer of the same letters.
CharacterSet Widened(CharacterSet set) {
  return set == CharacterSet::kKoi8R ? CharacterSet::kKoi8U : set;
}

/// Whether hardly any of the bytes beyond ASCII is none of UTF-8.
bool IsNearlyUtf8(std::string_view head) {
  constexpr std::int64_t kBytesForOneBroken = 20;
  const auto beyondAscii = std::ranges::count_if(head, IsBeyondAscii);
  Utf8Decoder decoder;
  std::string text;
  decoder.Decode(head, text);
  return decoder.BytesNotDecoded() * kBytesForOneBroken <= beyondAscii;
}

/// By what the library knows of languages.
CharacterSet Detected(std::string_view head) {
  const Detector detector(uchardet_new());
  if (uchardet_handle_data(detector.get(), head.data(), head.size()) != 0) {
    return CharacterSet::kAsFound;
  }
  uchardet_data_end(detector.get());
  const std::optional<CharacterSet> set = FindCharacterSet(uchardet_get_charset(detector.get()));
  // It says so of short texts in sets that it does not know.
  if (set == CharacterSet::kUtf8 && !IsNearlyUtf8(head)) return CharacterSet::kAsFound;
  return set && CanDecode(*set) ? Widened(*set) : CharacterSet::kAsFound;
}

CharacterSet Guess(std::string_view head) {
  if (LooksLikeUtf8(head)) return CharacterSet::kAsFound;
  const Utf16Order order = Utf16OrderOf(head);
  return order == Utf16Order::kNone ? Detected(head) : SetOf(order);
}

}  // namespace

bool LooksLikeUtf8(std::string_view head) {
  Utf8Decoder decoder;
  std::string text;
  decoder.Decode(head, text);
  if (head.size() < kGuessBytes) decoder.End(text);
  return decoder.BytesNotDecoded() == 0 && text.find('\0') == std::string::npos;
}

CharacterSet CharacterSetOf(std::string_view head, CharacterSet choice) {
  const ByteOrderMark mark = MarkOf(head);
  if (mark.IsUtf16()) return CharacterSet::kUtf16;
  if (choice == CharacterSet::kAsFound) return choice;
  if (choice == CharacterSet::kGuess) return Guess(head.substr(0, kGuessBytes));
  if (mark.kind == ByteOrderMark::Kind::kUtf8) return CharacterSet::kUtf8;
  return choice == CharacterSet::kUtf16 ? SetOf(LikelierOrder(head.substr(0, kOrderBytes)))
                                        : choice;
}

CharacterSet CharacterSetOfWords(std::string_view head, CharacterSet choice) {
  const bool isChosen = choice != CharacterSet::kAsFound && choice != CharacterSet::kGuess;
  // A head of ASCII is alike in all sets but UTF-16: what stands behind it may be in the chosen
  // one.
  const bool saysNothing = head.size() >= kGuessBytes && !IsUtf16(choice) &&
                           FirstBeyondAscii(head) == std::string_view::npos;
  const bool isUtf8 = isChosen && !saysNothing && LooksLikeUtf8(head);
  return CharacterSetOf(head, isUtf8 ? CharacterSet::kAsFound : choice);
}

std::size_t FirstBeyondAscii(std::string_view bytes) {
  const auto beyond = std::ranges::find_if(bytes, IsBeyondAscii);
  return beyond == bytes.end() ? std::string_view::npos
                               : static_cast<std::size_t>(beyond - bytes.begin());
}

bool IsGuessedLate(std::size_t place) {
  return place != std::string_view::npos && place >= kGuessBytes;
}

CharacterSet LateGuess(std::string_view bytes) {
  bytes = bytes.substr(0, kGuessBytes);
  if (LooksLikeUtf8(bytes)) return CharacterSet::kAsFound;
  const CharacterSet set = Detected(bytes);
  // What the library takes for a mark stands in mid text: the text begins with ASCII.
  return IsUtf16(set) ? CharacterSet::kAsFound : set;
}

CharacterSet LateGuessOfWhole(std::string_view text) {
  if (text.size() <= kGuessBytes) return CharacterSet::kAsFound;
  const std::size_t place = FirstBeyondAscii(text);
  return IsGuessedLate(place) ? LateGuess(text.substr(place)) : CharacterSet::kAsFound;
}

}  // namespace quillomat
