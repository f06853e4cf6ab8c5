#include "base/character_set.h"

#include <gtest/gtest.h>
#include <string>

namespace quillomat {
namespace {

TEST(CharacterSets, GoByTheirNamesInAnyLetterCase) {
  for (std::size_t i = 0; i < kCharacterSetNames.size(); ++i) {
    std::string name(kCharacterSetNames[i]);
    EXPECT_EQ(FindCharacterSet(name), static_cast<CharacterSet>(i)) << name;
    for (char& ch : name) ch = static_cast<char>(ch >= 'a' && ch <= 'z' ? ch - 'a' + 'A' : ch);
    EXPECT_EQ(FindCharacterSet(name), static_cast<CharacterSet>(i)) << name;
  }
}

TEST(CharacterSets, HaveNamesThatFitTheirNumbers) {
  EXPECT_EQ(NameOf(CharacterSet::kGuess), "guess");
  EXPECT_EQ(NameOf(CharacterSet::kWindows1258), "Windows-1258");
  EXPECT_EQ(NameOf(CharacterSet::kIso8859Part15), "ISO-8859-15");
  EXPECT_EQ(NameOf(CharacterSet::kGb18030), "GB18030");
  EXPECT_EQ(NameOf(CharacterSet::kIbm850), "IBM850");
  EXPECT_EQ(NameOf(CharacterSet::kIso8859Part16), "ISO-8859-16");
  EXPECT_EQ(NameOf(CharacterSet::kUtf16HighByteFirst), "UTF-16BE");
  EXPECT_EQ(NameOf(CharacterSet::kUtf16LowByteFirst), "UTF-16LE");
  EXPECT_EQ(kCharacterSetNames.size(),
            static_cast<std::size_t>(CharacterSet::kUtf16LowByteFirst) + 1);
}

TEST(CharacterSets, GoByUsualOtherNames) {
  EXPECT_EQ(FindCharacterSet("as found"), CharacterSet::kAsFound);
  EXPECT_EQ(FindCharacterSet("utf8"), CharacterSet::kUtf8);
  EXPECT_EQ(FindCharacterSet("utf-16le"), CharacterSet::kUtf16LowByteFirst);
  EXPECT_EQ(FindCharacterSet("cp1252"), CharacterSet::kWindows1252);
  EXPECT_EQ(FindCharacterSet("CP-1251"), CharacterSet::kWindows1251);
  EXPECT_EQ(FindCharacterSet("win1250"), CharacterSet::kWindows1250);
  EXPECT_EQ(FindCharacterSet("latin1"), CharacterSet::kIso8859Part1);
  EXPECT_EQ(FindCharacterSet("Latin-2"), CharacterSet::kIso8859Part2);
  EXPECT_EQ(FindCharacterSet("iso 8859-15"), CharacterSet::kIso8859Part15);
  EXPECT_EQ(FindCharacterSet("8859-7"), CharacterSet::kIso8859Part7);
  EXPECT_EQ(FindCharacterSet("koi8r"), CharacterSet::kKoi8R);
  EXPECT_EQ(FindCharacterSet("sjis"), CharacterSet::kShiftJis);
  EXPECT_EQ(FindCharacterSet("gbk"), CharacterSet::kGb18030);
  EXPECT_EQ(FindCharacterSet("Mac Roman"), CharacterSet::kMacRoman);
  EXPECT_EQ(FindCharacterSet("cp437"), CharacterSet::kIbm437);
  EXPECT_EQ(FindCharacterSet("TIS-620"), CharacterSet::kIso8859Part11);
  EXPECT_EQ(FindCharacterSet("latin10"), CharacterSet::kIso8859Part16);
  EXPECT_EQ(FindCharacterSet("MAC-CYRILLIC"), CharacterSet::kMacCyrillic);
  EXPECT_EQ(FindCharacterSet("utf-16be"), CharacterSet::kUtf16HighByteFirst);
}

TEST(CharacterSets, AreNotGuessedByOtherNames) {
  for (const char* name :
       {"", "-", "utf", "utf-32", "cp1259", "8859", "8859-12", "latin", "klingon"}) {
    EXPECT_EQ(FindCharacterSet(name), std::nullopt) << name;
  }
}

}  // namespace
}  // namespace quillomat
