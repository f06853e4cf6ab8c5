// A text in each encoding. The bytes were made by Python's codecs.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "base/character_set.h"
#include "system/system_decoder.h"

namespace quillomat {

inline std::string InUtf16(std::u16string_view text, bool highByteFirst) {
  std::string bytes;
  for (const char16_t unit : text) {
    const char high = static_cast<char>(unit >> 8U);
    const char low = static_cast<char>(unit & 0xFFU);
    bytes.append({highByteFirst ? high : low, highByteFirst ? low : high});
  }
  return bytes;
}

struct EncodedText {
  CharacterSet set;
  std::string_view bytes;
  std::string_view text;
};

/// Windows has no code pages for these; every Linux has them.
inline constexpr auto kRareSets = std::to_array<CharacterSet>(
    {CharacterSet::kIso8859Part10, CharacterSet::kIso8859Part14, CharacterSet::kIso8859Part16});

/// Whether a test can do nothing with that set here.
[[nodiscard]] inline bool IsMissingHere(CharacterSet set) {
#ifdef _WIN32
  return std::ranges::find(kRareSets, set) != kRareSets.end() && !CanDecode(set);
#else
  static_cast<void>(set);
  return false;
#endif
}

inline constexpr auto kEncodedTexts = std::to_array<EncodedText>({
    {CharacterSet::kUtf8, "Flu\xC3\x9F, \xD1\x80\xD0\xB5\xD0\xBA\xD0\xB0, \xE5\xB7\x9D",
     "Fluß, река, 川"},
    {CharacterSet::kWindows1250, "Za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1",
     "Zażółć gęślą jaźń"},
    {CharacterSet::kWindows1251,
     "\xD2\xE8\xF5\xE0\xFF \xF0\xE5\xEA\xE0, \xE5\xB8 \xEF\xE5\xF1\xED\xFF",
     "Тихая река, её песня"},
    {CharacterSet::kWindows1252,
     "\x8Cuvre \x96 tr\xE8s \x93"
     "ch\xE8re\x94 \xE0 5 \x80",
     "Œuvre – très “chère” à 5 €"},
    {CharacterSet::kWindows1253,
     "\xD4\xEF \xF0\xEF\xF4\xDC\xEC\xE9 \xEA\xF5\xEB\xDC \xDE\xF3\xF5\xF7\xE1",
     "Το ποτάμι κυλά ήσυχα"},
    {CharacterSet::kWindows1254,
     "\xDE\xFDr\xFDl \xFE\xFDr\xFDl akan \xFD\xF0"
     "d\xFDr \xE7"
     "ay\xFD",
     "Şırıl şırıl akan ığdır çayı"},
    {CharacterSet::kWindows1255, "\xE4\xF0\xE4\xF8 \xE6\xE5\xF8\xED \xEC\xE0\xE8", "הנהר זורם לאט"},
    {CharacterSet::kWindows1256, "\xED\xCC\xD1\xED \xC7\xE1\xE4\xE5\xD1 \xC8\xC8\xD8\xC1",
     "يجري النهر ببطء"},
    {CharacterSet::kWindows1257,
     "\xDE\xE0sys, \xFB"
     "dens, \xF5htu",
     "Žąsys, ūdens, õhtu"},
    {CharacterSet::kWindows1258,
     "\xF0\xEAm c\xF4 \xF5i \xFD"
     "a",
     "đêm cô ơi ưa"},
    {CharacterSet::kIso8859Part1,
     "\xC6r\xF8 p\xE5 \xF8"
     "en, na\xEFve fa\xE7"
     "ade",
     "Ærø på øen, naïve façade"},
    {CharacterSet::kIso8859Part2, "P\xF8\xEDli\xB9 \xBElu\xBBou\xE8k\xFD k\xF9\xF2, \xB3\xB1ka",
     "Příliš žluťoučký kůň, łąka"},
    {CharacterSet::kIso8859Part3,
     "\xE6iu\xBC"
     "a\xFD"
     "de \xF8oja \xFE"
     "afo, \xB1ob\xBF",
     "ĉiuĵaŭde ĝoja ŝafo, ħobż"},
    {CharacterSet::kIso8859Part4, "\xF3\xBAni\xF1\xB9, \xB9\xF3\xFEnis, \xACuo\xA2",
     "ķēniņš, šķūnis, Ŧuoĸ"},
    {CharacterSet::kIso8859Part5,
     "\xA7\xD6\xD0\xDA \xF6 \xFE\xE1\xF1, \xE2\xD8\xE5\xD8\xD9 \xD2\xD5\xE7\xD5\xE0",
     "Їжак і ўсё, тихий вечер"},
    {CharacterSet::kIso8859Part6, "\xC7\xE4\xD3\xE5\xC7\xC1 \xD2\xD1\xE2\xC7\xC1", "السماء زرقاء"},
    {CharacterSet::kIso8859Part7, "\xB9\xEB\xE9\xEF\xF2 \xEA\xE1\xE9 \xE8\xDC\xEB\xE1\xF3\xF3\xE1",
     "Ήλιος και θάλασσα"},
    {CharacterSet::kIso8859Part8, "\xF9\xEE\xF9 \xE5\xE9\xED", "שמש וים"},
    {CharacterSet::kIso8859Part9, "g\xFCne\xFE, \xDD\xF0ne, \xFDl\xFDk", "güneş, İğne, ılık"},
    {CharacterSet::kIso8859Part13, "\xD0i\xE0nakt \xEBjo l\xEBtai", "Šiąnakt ėjo lėtai"},
    {CharacterSet::kIso8859Part15, "c\xBDur, \xB4i\xB8ka, 7 \xA4", "cœur, Žižka, 7 €"},
    {CharacterSet::kKoi8R, "\xF4\xC9\xC8\xC1\xD1 \xD2\xC5\xCB\xC1, \xC5\xA3 \xD0\xC5\xD3\xCE\xD1",
     "Тихая река, её песня"},
    {CharacterSet::kKoi8U, "\xB7\xD6\xC1\xCB, \xAD\xD5\xC4\xDA\xC9\xCB \xA6 \xA4",
     "Їжак, ґудзик і є"},
    {CharacterSet::kShiftJis,
     "\x90\xC3\x82\xA9\x82\xC8\x90\xEC\x82\xC6\x83J\x83\x82\x83\x81\x81"
     "A\xB6\xD3\xD2",
     "静かな川とカモメ、ｶﾓﾒ"},
    {CharacterSet::kEucJp, "\xC0\xC5\xA4\xAB\xA4\xCA\xC0\xEE\xA4\xC8\xA5\xAB\xA5\xE2\xA5\xE1",
     "静かな川とカモメ"},
    {CharacterSet::kGb18030, "\xB0\xB2\xBE\xB2\xB5\xC4\xBA\xD3\xCB\xAE\xC2\xFD\xC2\xFD\xC1\xF7",
     "安静的河水慢慢流"},
    {CharacterSet::kBig5,
     "\xA6w\xC0R\xAA\xBA\xAA"
     "e\xA4\xF4\xBA"
     "C\xBA"
     "C\xACy",
     "安靜的河水慢慢流"},
    {CharacterSet::kEucKr,
     "\xC1\xB6\xBF\xEB\xC7\xD1 \xB0\xAD\xB9\xB0\xC0\xCC \xC8\xE5\xB8\xA5\xB4\xD9",
     "조용한 강물이 흐른다"},
    {CharacterSet::kMacRoman,
     "\x83t\x8E na\x95"
     "f, \xCFuf \xD0 \xD2\x8D"
     "a\xD3 \xC3"
     "2 \xC5 1",
     "Été naïf, œuf – “ça” √2 ≈ 1"},
    {CharacterSet::kIbm437,
     "Stra\xE1"
     "e, se\xA4or, \xAB \xB0\xB1 caf\x82",
     "Straße, señor, ½ ░▒ café"},
    {CharacterSet::kIbm850,
     "\x8Frhus, \x9Dre, \xA8qu\x82\x3F \xA4"
     "and\xA3",
     "Århus, Øre, ¿qué? ñandú"},
    {CharacterSet::kIso8859Part10,
     "\xDE\xF3r\xF0ur r\xE6\xF0ir vi\xF0 \xF6mmu s\xEDna \xED \xA9"
     "akovo, \xAAibenik",
     "Þórður ræðir við ömmu sína í Đakovo, Šibenik"},
    {CharacterSet::kIso8859Part11, "\xE1\xC1\xE8\xB9\xE9\xD3\xE4\xCB\xC5\xAA\xE9\xD2\xE6",
     "แม่น้ำไหลช้าๆ"},
    {CharacterSet::kIso8859Part14,
     "\xD0ylaf, \xFE"
     "d, \xB8, \xA4"
     "eol, \xBF"
     "eo",
     "Ŵylaf, ŷd, ẁ, Ċeol, ṡeo"},
    {CharacterSet::kIso8859Part16,
     "\xCEntr-o diminea\xFE\xE3, r\xE2ul \xBAi \xFE"
     "ara",
     "Într-o dimineață, râul și țara"},
    {CharacterSet::kIbm852,
     "Ka\xA7"
     "d\x82 r\xA0no te\x9F"
     "e \xFD"
     "eka ti\xE7"
     "e, \xABr\xA2"
     "d\x88o",
     "Každé ráno teče řeka tiše, źródło"},
    {CharacterSet::kIbm855,
     "\xE6\xB7\xB5\xA0\xDE \xE1\xA8\xC6\xA0, \x92\xA8\xD4\xA0 \xD8\xA8\xE3\xD2\xA0",
     "Тихая река, њена песма"},
    {CharacterSet::kIbm866, "\x92\xA8\xE5\xA0\xEF \xE0\xA5\xAA\xA0, \xA5\xF1 \xAF\xA5\xE1\xAD\xEF",
     "Тихая река, её песня"},
    {CharacterSet::kMacCyrillic,
     "\x92\xE8\xF5\xE0\xDF \xF0\xE5\xEA\xE0, \xBB\xF5\xED\xDF \xEF\xB4\xF1\xED\xDF",
     "Тихая река, їхня пісня"},
    {CharacterSet::kUtf16HighByteFirst,
     std::string_view("\x04 \x04"
                      "5\x04:\x04"
                      "0\x00,\x00 \x00r\x00i\x00v\x00"
                      "a\xD8"
                      "4\xDD\x1E\x00.",
                      26),
     "Река, riva𝄞."},
    {CharacterSet::kUtf16LowByteFirst,
     std::string_view(" \x04"
                      "5\x04:\x04"
                      "0\x04,\x00 \x00r\x00i\x00v\x00"
                      "a\x00\x34\xD8\x1E\xDD.\x00",
                      26),
     "Река, riva𝄞."},
});

}  // namespace quillomat
