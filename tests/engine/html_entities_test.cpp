// The entities of letters, and where an entity ends.
#include "engine/html_entities.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace quillomat {
namespace {

/// Every entity with its letter.
constexpr const char* kTable =
    "&AElig;Æ &Aacute;Á &Acirc;Â &Agrave;À &Aring;Å &Atilde;Ã &Auml;Ä &Ccedil;Ç &ETH;Ð &Eacute;É "
    "&Ecirc;Ê &Egrave;È &Euml;Ë &Iacute;Í &Icirc;Î &Igrave;Ì &Iuml;Ï &Ntilde;Ñ &Oacute;Ó &Ocirc;Ô "
    "&Ograve;Ò &Oslash;Ø &Otilde;Õ &Ouml;Ö &THORN;Þ &Uacute;Ú &Ucirc;Û &Ugrave;Ù &Uuml;Ü "
    "&Yacute;Ý &aacute;á &acirc;â &aelig;æ &agrave;à &aring;å &atilde;ã &auml;ä &ccedil;ç "
    "&eacute;é &ecirc;ê &egrave;è &eth;ð &euml;ë &iacute;í &icirc;î &igrave;ì &iuml;ï &ntilde;ñ "
    "&oacute;ó &ocirc;ô &ograve;ò &oslash;ø &otilde;õ &ouml;ö &szlig;ß &thorn;þ &uacute;ú "
    "&ucirc;û &ugrave;ù &uuml;ü &yacute;ý &yuml;ÿ";

std::string Decoded(std::string text) {
  DecodeHtmlEntities(text);
  return text;
}

TEST(DecodeHtmlEntities, DecodesAllSixtyTwoLetters) {
  std::istringstream table(kTable);
  int entities = 0;
  for (std::string entry; table >> entry; ++entities) {
    const std::size_t nameBytes = entry.find(';') + 1;
    const std::string name = entry.substr(0, nameBytes);
    const std::string letter = entry.substr(nameBytes);
    EXPECT_EQ(Decoded(name), letter);
    EXPECT_EQ(Decoded("x" + name + "y"), "x" + letter + "y");
  }
  EXPECT_EQ(entities, 62);
}

TEST(DecodeHtmlEntities, DecodesInsideAWord) {
  EXPECT_EQ(Decoded("caf&eacute;"), "café");
  EXPECT_EQ(Decoded("&eacute;t&eacute;"), "été");
}

TEST(DecodeHtmlEntities, LeavesOtherEntities) {
  for (const char* text : {"&amp;", "&nbsp;", "&#233;", "&lt;", "&oelig;", "&Yuml;", "&;"}) {
    EXPECT_EQ(Decoded(text), text);
  }
}

TEST(DecodeHtmlEntities, MatchesNamesExactly) {
  EXPECT_EQ(Decoded("&AMP;"), "&AMP;");
  EXPECT_EQ(Decoded("&EACUTE;"), "&EACUTE;");
  EXPECT_EQ(Decoded("&eth;&ETH;&Eth;"), "ðÐ&Eth;");
  EXPECT_EQ(Decoded("& eacute;"), "& eacute;");
}

TEST(DecodeHtmlEntities, LeavesAnEntityWithoutSemicolon) {
  EXPECT_EQ(Decoded("&Eacute"), "&Eacute");
  EXPECT_EQ(Decoded("caf&eacute and"), "caf&eacute and");
}

TEST(DecodeHtmlEntities, BareAmpersandHidesTheEntitiesUpToTheNextSemicolon) {
  EXPECT_EQ(Decoded("a & caf&eacute; th&eacute;"), "a & caf&eacute; thé");
  EXPECT_EQ(Decoded("R&D, caf&eacute;"), "R&D, caf&eacute;");
}

TEST(DecodeHtmlEntities, DoesNotDecodeWhatItHasDecoded) {
  EXPECT_EQ(Decoded("&amp;eacute;"), "&amp;eacute;");
  EXPECT_EQ(Decoded("&eacute;acute;"), "éacute;");
}

TEST(DecodeHtmlEntities, LeavesATextWithoutEntities) {
  EXPECT_EQ(Decoded(""), "");
  EXPECT_EQ(Decoded("no; entity"), "no; entity");
}

TEST(HtmlEntityEnd, TellsThePlaceOfTheSemicolon) {
  EXPECT_EQ(HtmlEntityEnd("&nbsp; more"), 6U);
  EXPECT_EQ(HtmlEntityEnd("&#8212; more"), 7U);
  EXPECT_EQ(HtmlEntityEnd("&eacute;"), 8U);
}

TEST(HtmlEntityEnd, ShortestEntityHasFourCharacters) {
  EXPECT_EQ(HtmlEntityEnd("&lt;"), 4U);
  EXPECT_EQ(HtmlEntityEnd("&T; and more"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&T;"), 0U);
}

TEST(HtmlEntityEnd, SemicolonIsAmongTheFirstTwentyCharacters) {
  EXPECT_EQ(HtmlEntityEnd("&" + std::string(18, 'a') + ";"), 20U);
  EXPECT_EQ(HtmlEntityEnd("&" + std::string(19, 'a') + ";"), 0U);
}

TEST(HtmlEntityEnd, CountsCharactersNotBytes) {
  std::string letters;
  for (int i = 0; i < 18; ++i) letters += "é";
  EXPECT_EQ(HtmlEntityEnd("&" + letters + ";"), 20U);
  EXPECT_EQ(HtmlEntityEnd("&é" + letters + ";"), 0U);
}

TEST(HtmlEntityEnd, NoBlankBeforeTheSemicolon) {
  EXPECT_EQ(HtmlEntityEnd("& more;"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&more and;"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&more; and"), 6U);
}

TEST(HtmlEntityEnd, SecondCharacterIsALetterOrNumberSign) {
  EXPECT_EQ(HtmlEntityEnd("&123;"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&-ab;"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&_ab;"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&×ab;"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&éab;"), 5U);
  EXPECT_EQ(HtmlEntityEnd("&#12;"), 5U);
}

TEST(HtmlEntityEnd, MustStartWithTheAmpersandAndEndAtAll) {
  EXPECT_EQ(HtmlEntityEnd("x&nbsp;"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&nbsp"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&"), 0U);
  EXPECT_EQ(HtmlEntityEnd("&;;;"), 0U);
  EXPECT_EQ(HtmlEntityEnd(""), 0U);
}

}  // namespace
}  // namespace quillomat
