#include "reference/literal_entities.h"

#include "reference/literal_rules.h"

namespace quillomat::reference {
namespace {

constexpr const char32_t* kEntityTable =
    U"&AElig;Æ &Aacute;Á &Acirc;Â &Agrave;À &Aring;Å &Atilde;Ã &Auml;Ä &Ccedil;Ç &ETH;Ð &Eacute;É "
    U"&Ecirc;Ê &Egrave;È &Euml;Ë &Iacute;Í &Icirc;Î &Igrave;Ì &Iuml;Ï &Ntilde;Ñ &Oacute;Ó "
    U"&Ocirc;Ô &Ograve;Ò &Oslash;Ø &Otilde;Õ &Ouml;Ö &THORN;Þ &Uacute;Ú &Ucirc;Û &Ugrave;Ù "
    U"&Uuml;Ü &Yacute;Ý &aacute;á &acirc;â &aelig;æ &agrave;à &aring;å &atilde;ã &auml;ä "
    U"&ccedil;ç &eacute;é &ecirc;ê &egrave;è &eth;ð &euml;ë &iacute;í &icirc;î &igrave;ì &iuml;ï "
    U"&ntilde;ñ &oacute;ó &ocirc;ô &ograve;ò &oslash;ø &otilde;õ &ouml;ö &szlig;ß &thorn;þ "
    U"&uacute;ú &ucirc;û &ugrave;ù &uuml;ü &yacute;ý &yuml;ÿ";

}  // namespace

std::size_t HtmlEntityEnd(const Characters& text) {
  constexpr std::size_t kShortest = 4;
  constexpr std::size_t kLongest = 20;
  if (text.size() < kShortest) return 0;
  if (CharacterAt(text, 1) != U"&") return 0;
  const std::size_t end = InStr(1, text, U";");
  if (end == 0 || end > kLongest) return 0;
  if (end < kShortest) return 0;
  const std::size_t blank = InStr(1, text, U" ");
  if (blank > 0 && blank < end) return 0;
  const Characters second = CharacterAt(text, 2);
  if (!IsWordChar(second, false, U"") && second != U"#") return 0;
  return end;
}

void DecodeHtmlEntities(Characters& text) {
  const Characters table = kEntityTable;
  std::size_t position = 1;
  while (true) {
    const std::size_t a = InStr(position, text, U"&");
    if (a == 0) return;
    const std::size_t b = InStr(a, text, U";");
    if (b == 0) return;
    const Characters entity = Mid(text, a, b - a + 1);
    const std::size_t place = InStr(1, table, entity);
    if (place > 0) {
      text.replace(a - 1, entity.size(), CharacterAt(table, place + entity.size()));
      position = a + 1;
    } else {
      position = b + 1;
    }
  }
}

}  // namespace quillomat::reference
