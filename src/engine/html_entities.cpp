#include "engine/html_entities.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/utf8.h"
#include "engine/char_class.h"

namespace quillomat {
namespace {

struct Entity {
  std::string_view name;
  std::string_view letter;
};

/// In the order of the names' bytes, for a binary search.
constexpr std::array<Entity, 62> kEntities = {{
    {"&AElig;", "Æ"},  {"&Aacute;", "Á"}, {"&Acirc;", "Â"},  {"&Agrave;", "À"}, {"&Aring;", "Å"},
    {"&Atilde;", "Ã"}, {"&Auml;", "Ä"},   {"&Ccedil;", "Ç"}, {"&ETH;", "Ð"},    {"&Eacute;", "É"},
    {"&Ecirc;", "Ê"},  {"&Egrave;", "È"}, {"&Euml;", "Ë"},   {"&Iacute;", "Í"}, {"&Icirc;", "Î"},
    {"&Igrave;", "Ì"}, {"&Iuml;", "Ï"},   {"&Ntilde;", "Ñ"}, {"&Oacute;", "Ó"}, {"&Ocirc;", "Ô"},
    {"&Ograve;", "Ò"}, {"&Oslash;", "Ø"}, {"&Otilde;", "Õ"}, {"&Ouml;", "Ö"},   {"&THORN;", "Þ"},
    {"&Uacute;", "Ú"}, {"&Ucirc;", "Û"},  {"&Ugrave;", "Ù"}, {"&Uuml;", "Ü"},   {"&Yacute;", "Ý"},
    {"&aacute;", "á"}, {"&acirc;", "â"},  {"&aelig;", "æ"},  {"&agrave;", "à"}, {"&aring;", "å"},
    {"&atilde;", "ã"}, {"&auml;", "ä"},   {"&ccedil;", "ç"}, {"&eacute;", "é"}, {"&ecirc;", "ê"},
    {"&egrave;", "è"}, {"&eth;", "ð"},    {"&euml;", "ë"},   {"&iacute;", "í"}, {"&icirc;", "î"},
    {"&igrave;", "ì"}, {"&iuml;", "ï"},   {"&ntilde;", "ñ"}, {"&oacute;", "ó"}, {"&ocirc;", "ô"},
    {"&ograve;", "ò"}, {"&oslash;", "ø"}, {"&otilde;", "õ"}, {"&ouml;", "ö"},   {"&szlig;", "ß"},
    {"&thorn;", "þ"},  {"&uacute;", "ú"}, {"&ucirc;", "û"},  {"&ugrave;", "ù"}, {"&uuml;", "ü"},
    {"&yacute;", "ý"}, {"&yuml;", "ÿ"},
}};

constexpr std::size_t kShortestHtmlEntity = 4;

constexpr std::size_t kLongestName = 8;
static_assert(std::ranges::all_of(kEntities, [](const Entity& entity) {
  return entity.name.size() <= kLongestName;
}));

/// A name as a number, so that names are in the same order as numbers; with `small` that of the
/// name in small letters.
constexpr std::uint64_t NumberOf(std::string_view name, bool small = false) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < kLongestName; ++i) {
    const unsigned byte = i < name.size() ? static_cast<unsigned char>(name[i]) : 0U;
    const bool isLowered = small && byte >= 'A' && byte <= 'Z';
    number = number << 8U | (isLowered ? byte + ('a' - 'A') : byte);
  }
  return number;
}

constexpr std::array<std::uint64_t, kEntities.size()> kNumbers = [] {
  std::array<std::uint64_t, kEntities.size()> numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = NumberOf(kEntities[i].name);
  return numbers;
}();
static_assert(std::ranges::is_sorted(kNumbers));

/// The letter of an entity ("&eacute;"), or an empty text when it is none that is decoded. With
/// `anyCase` its letter case makes no difference, and the letter is a small one.
std::string_view LetterOf(std::string_view entity, bool anyCase) {
  if (entity.size() > kLongestName) return {};
  const std::uint64_t number = NumberOf(entity, anyCase);
  const auto* const found = std::ranges::lower_bound(kNumbers, number);
  if (found == kNumbers.end() || *found != number) return {};
  return kEntities[static_cast<std::size_t>(found - kNumbers.begin())].letter;
}

struct Decoding {
  /// Entities do not go beyond the end of a line.
  bool lineByLine = false;
  bool anyCase = false;
  /// Whether an ampersand hides what follows: in front, and then behind.
  bool hidden = false;
};

/// Where what an ampersand hides ends: a semicolon or, if `inLines`, the end of the line.
std::size_t HiddenEnd(std::string_view source, std::size_t ampersand, bool inLines) {
  if (!inLines) return std::min(source.find(';', ampersand), source.size());
  const auto isEnd = [](char ch) { return ch == ';' || ch == '\n' || ch == '\r'; };
  const auto first = source.begin() + static_cast<std::ptrdiff_t>(ampersand);
  return static_cast<std::size_t>(std::find_if(first, source.end(), isEnd) - source.begin());
}

/// Appends `source` with its letters decoded to `decoded`, which is empty; does nothing and returns
/// false when there is none.
bool Decode(std::string_view source, Decoding& how, std::string& decoded) {
  std::size_t copied = 0;
  std::size_t position = 0;
  if (how.hidden) {
    position = source.find(';');
    if (position == std::string_view::npos) return false;
    how.hidden = false;
  }
  for (;;) {
    const std::size_t ampersand = source.find('&', position);
    if (ampersand == std::string_view::npos) break;
    const std::size_t end = HiddenEnd(source, ampersand, how.lineByLine);
    how.hidden = end == source.size();
    if (how.hidden) break;
    position = end + 1;
    if (source[end] != ';') continue;
    const std::string_view entity = source.substr(ampersand, position - ampersand);
    const std::string_view letter = LetterOf(entity, how.anyCase);
    if (letter.empty()) continue;
    decoded.append(source.substr(copied, ampersand - copied)).append(letter);
    copied = position;
  }
  if (copied == 0) return false;
  decoded.append(source.substr(copied));
  return true;
}

bool IsAsciiLetter(char ch) {
  return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z');
}

}  // namespace

void DecodeHtmlEntities(std::string& text) {
  std::string decoded;
  Decoding how;
  if (Decode(text, how, decoded)) text = std::move(decoded);
}

bool DecodeHtmlEntitiesOfLines(std::string_view lines, bool anyCase, std::string& decoded) {
  decoded.clear();
  Decoding how{true, anyCase};
  return Decode(lines, how, decoded);
}

bool DecodeHtmlEntitiesOfPart(std::string_view part, bool anyCase, bool& hidden,
                              std::string& decoded) {
  decoded.clear();
  Decoding how{false, anyCase, hidden};
  const bool any = Decode(part, how, decoded);
  hidden = how.hidden;
  return any;
}

std::size_t EndOfPlainHtmlEntity(std::string_view text, bool inLines) {
  const std::string_view head = text.substr(0, kLongestHtmlEntity);
  for (std::size_t i = 1; i < head.size(); ++i) {
    const char ch = head[i];
    if (static_cast<unsigned char>(ch) >= 0x80) return kNotPlain;
    if (ch == ' ' || (i == 1 && ch != '#' && !IsAsciiLetter(ch))) return 0;
    if (ch == ';') return i + 1 >= kShortestHtmlEntity ? i + 1 : 0;
    if (!inLines) continue;
    if (ch == '\n' || ch == '\r' || (ch == '-' && head[i - 1] == '-')) return 0;
  }
  return 0;
}

std::size_t HtmlEntityEnd(std::string_view text) {
  if (!text.starts_with('&')) return 0;
  if (const auto plain = EndOfPlainHtmlEntity(text, false); plain != kNotPlain) return plain;
  const std::string_view head = text.substr(0, BytesOfFirst(text, kLongestHtmlEntity));
  const std::size_t semicolon = head.find(';');
  if (semicolon == std::string_view::npos) return 0;
  const std::string_view inside = head.substr(1, semicolon - 1);
  if (inside.empty() || inside.find(' ') != std::string_view::npos) return 0;
  static const CharClass kLetters;
  if (inside[0] != '#' && kLetters.WordCharBytes(inside, 0) == 0) return 0;
  const std::size_t end = CharacterCount(head.substr(0, semicolon + 1));
  return end >= kShortestHtmlEntity ? end : 0;
}

}  // namespace quillomat
