#include "sources/encoding_guess.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/byte_order_mark.h"
#include "base/text_decoder.h"
#include "sources/legacy_guess.h"
#include "sources/utf16_order.h"

namespace quillomat {
namespace {

/// Enough to see which byte of UTF-16 comes first; all who ask have as many.
constexpr std::size_t kOrderBytes = 4096;

bool IsBeyondAscii(char ch) {
  return static_cast<unsigned char>(ch) > 0x7F;
}

CharacterSet SetOf(Utf16Order order) {
  return order == Utf16Order::kHighByteFirst ? CharacterSet::kUtf16HighByteFirst
                                             : CharacterSet::kUtf16;
}

bool IsUtf16(CharacterSet set) {
  return set == CharacterSet::kUtf16 || set == CharacterSet::kUtf16HighByteFirst ||
         set == CharacterSet::kUtf16LowByteFirst;
}

CharacterSet Guess(std::string_view head) {
  if (LooksLikeUtf8(head)) return CharacterSet::kAsFound;
  if (const Utf16Order order = Utf16OrderOf(head); order != Utf16Order::kNone) return SetOf(order);
  const CharacterSet set = GuessLegacySet(head);
  // Lines of another set have been added to what was UTF-8.
  const bool hasMark = MarkOf(head).kind == ByteOrderMark::Kind::kUtf8;
  return hasMark && set != CharacterSet::kUtf8 ? CharacterSet::kAsFound : set;
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
  const CharacterSet set = GuessLegacySet(bytes);
  // What the library takes for a mark stands in mid text: the text begins with ASCII.
  return IsUtf16(set) ? CharacterSet::kAsFound : set;
}

CharacterSet LateGuessOfWhole(std::string_view text) {
  if (text.size() <= kGuessBytes) return CharacterSet::kAsFound;
  const std::size_t place = FirstBeyondAscii(text);
  return IsGuessedLate(place) ? LateGuess(text.substr(place)) : CharacterSet::kAsFound;
}

}  // namespace quillomat
