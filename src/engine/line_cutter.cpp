#include "engine/line_cutter.h"

#include <algorithm>
#include <string>

#include "engine/char_class.h"
#include "engine/html_entities.h"

namespace quillomat {
namespace {

/// Of UTF-8.
constexpr std::size_t kLongestCharacter = 4;
constexpr std::string_view kWideAmpersand = "\uFF06";

bool IsLetter(char ch) {
  return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z');
}

bool IsAsciiByte(char ch) {
  return static_cast<unsigned char>(ch) < 0x80;
}

/// Between characters of which the second is never part of a word, in small letters either: C3
/// leads letters, C5 the capital of U+00FF. In Windows-1252 the first byte is none: bytes from 80
/// to BF are no letters but 9F, that capital again.
bool IsBetweenForeignCharacters(char before, char behind) {
  const auto last = static_cast<unsigned char>(before);
  const auto lead = static_cast<unsigned char>(behind);
  return last >= 0x80 && last <= 0xBF && last != 0x9F && lead >= 0xC2 && lead <= 0xF4 &&
         lead != 0xC3 && lead != 0xC5;
}

}  // namespace

LineCutter::LineCutter(const TokenClasses& classes, const ScanSettings& settings)
    : classes_(classes), letters_(settings.Letters) {
  std::string parts = "-&;#\r\n";
  for (std::size_t pair = 0; pair < 2; ++pair) {
    parts += settings.CommentStart[pair] + settings.CommentEnd[pair];
  }
  for (std::size_t code = 0; code < separators_.size(); ++code) {
    const char ch = static_cast<char>(code);
    separators_[code] = !classes.Holds(ch) && parts.find(ch) == std::string::npos;
  }
}

std::size_t LineCutter::LastCut(std::string_view text, std::size_t from) const {
  for (std::size_t position = text.size(); position > from; --position) {
    if (MayCutAt(text, position)) return position;
  }
  return CutOfLongWord(text);
}

bool LineCutter::MayCutAt(std::string_view text, std::size_t position) const {
  const char before = text[position - 1];
  if (before == ' ') return true;  // in no entity, no marker and no word
  const bool between = IsAsciiByte(before)
                           ? separators_[static_cast<unsigned char>(before)]
                           : letters_ == LetterRule::kWestern && position < text.size() &&
                                 IsBetweenForeignCharacters(before, text[position]);
  return between && !MayBeInEntity(text, position);
}

/// Whether an ampersand stands so near before the position that its entity may end behind it.
///
/// In normal form any number of the characters outside ASCII may be gone, or be one with the
/// character before them. So those within ASCII are counted, which are never more than there are
/// characters. No line is walked over again and again for that: with all letters it is asked behind
/// signs of ASCII only.
bool LineCutter::MayBeInEntity(std::string_view text, std::size_t position) const {
  constexpr std::size_t kEntityBytes = kLongestHtmlEntity * kLongestCharacter;
  const bool all = letters_ == LetterRule::kAll;
  const std::size_t first = all ? 0 : position - std::min(position, kEntityBytes);
  std::size_t characters = 0;
  while (position > first && characters < kLongestHtmlEntity) {
    const char ch = text[--position];
    if (ch == ' ') return false;
    if (ch == '&') return true;
    if (IsAsciiByte(ch)) {
      ++characters;
    } else if (all && text.substr(position).starts_with(kWideAmpersand)) {
      return true;
    }
  }
  return false;
}

/// A run of word characters is cut where it is too long for a word. Only where all of it is plain:
/// then its characters are as many as its bytes.
std::size_t LineCutter::CutOfLongWord(std::string_view text) const {
  if (text.size() <= kMaxWordRun) return 0;
  const auto inRun = [this](char ch) { return IsAsciiByte(ch) && ch != '-' && classes_.Holds(ch); };
  const auto start = std::find_if_not(text.rbegin(), text.rend(), inRun);
  const auto first = static_cast<std::size_t>(text.rend() - start);
  const std::size_t cut = first + kMaxWordRun;
  if (cut >= text.size()) return 0;
  const bool isStart =
      first == 0 || (IsAsciiByte(text[first - 1]) && !classes_.Holds(text[first - 1]));
  const bool atLetters = IsLetter(text[first]) && IsLetter(text[cut - 1]) && IsLetter(text[cut]);
  return isStart && atLetters ? cut : 0;
}

}  // namespace quillomat
