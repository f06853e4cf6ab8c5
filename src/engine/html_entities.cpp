#include "engine/html_entities.h"

#include <algorithm>
#include <array>

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

constexpr bool NameLess(const Entity& left, const Entity& right) {
  return left.name < right.name;
}
static_assert(std::is_sorted(kEntities.begin(), kEntities.end(), NameLess));

/// The letter of an entity ("&eacute;"), or an empty text when it is none that is decoded.
std::string_view LetterOf(std::string_view entity) {
  const auto* const found =
      std::lower_bound(kEntities.begin(), kEntities.end(), Entity{entity, {}}, NameLess);
  return found != kEntities.end() && found->name == entity ? found->letter : std::string_view();
}

}  // namespace

void DecodeHtmlEntities(std::string& text) {
  const std::string_view source = text;
  std::string decoded;
  std::size_t copied = 0;
  for (std::size_t position = 0;;) {
    const std::size_t ampersand = source.find('&', position);
    if (ampersand == std::string_view::npos) break;
    const std::size_t semicolon = source.find(';', ampersand);
    if (semicolon == std::string_view::npos) break;
    const std::string_view letter = LetterOf(source.substr(ampersand, semicolon + 1 - ampersand));
    if (!letter.empty()) {
      decoded.append(source.substr(copied, ampersand - copied)).append(letter);
      copied = semicolon + 1;
    }
    position = semicolon + 1;
  }
  if (copied == 0) return;
  decoded.append(source.substr(copied));
  text = std::move(decoded);
}

std::size_t HtmlEntityEnd(std::string_view text) {
  constexpr std::size_t kLongest = 20;
  constexpr std::size_t kShortest = 4;
  if (!text.starts_with('&')) return 0;
  const std::string_view head = text.substr(0, BytesOfFirst(text, kLongest));
  const std::size_t semicolon = head.find(';');
  if (semicolon == std::string_view::npos) return 0;
  const std::string_view inside = head.substr(1, semicolon - 1);
  if (inside.empty() || inside.find(' ') != std::string_view::npos) return 0;
  static const CharClass kLetters;
  if (inside[0] != '#' && kLetters.WordCharBytes(inside, 0) == 0) return 0;
  const std::size_t end = CharacterCount(head.substr(0, semicolon + 1));
  return end >= kShortest ? end : 0;
}

}  // namespace quillomat
