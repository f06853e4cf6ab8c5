// The keys under which spellings of one word meet.
#include "engine/fold_accents.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "base/utf8.h"

namespace quillomat {
namespace {

std::vector<std::string> CharactersOf(std::string_view text) {
  std::vector<std::string> characters;
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t bytes = CharacterAt(text, position).bytes;
    characters.emplace_back(text.substr(position, bytes));
    position += bytes;
  }
  return characters;
}

/// The two tables, the German one in force where both know a character.
std::map<std::string, std::string> FoldingTable() {
  std::map<std::string, std::string> table;
  const std::vector<std::string> german = CharactersOf("ŒÄÆÖÜäæöüß");
  const std::string germanResults = "OeAeAeOeUeaeaeoeuess";
  for (std::size_t i = 0; i < german.size(); ++i) table[german[i]] = germanResults.substr(2 * i, 2);
  const std::vector<std::string> accented =
      CharactersOf("ŠŸÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝšÿàáâãäåçèéêëìíîïñòóôõöøùúûüý");
  const std::string results = "SYAAAAAACEEEEIIIIDNOOOOOOUUUUYsyaaaaaaceeeeiiiinoooooouuuuy";
  EXPECT_EQ(accented.size(), 59U);
  EXPECT_EQ(results.size(), 59U);
  for (std::size_t i = 0; i < accented.size(); ++i)
    table.emplace(accented[i], results.substr(i, 1));
  return table;
}

TEST(FoldAccents, FoldsExactlyTheCharactersOfTheTwoTables) {
  const std::map<std::string, std::string> table = FoldingTable();
  for (char32_t codePoint = 1; codePoint < 0x500; ++codePoint) {
    std::string character;
    AppendCharacter(character, codePoint);
    const auto found = table.find(character);
    ASSERT_EQ(FoldAccents(character), found == table.end() ? character : found->second);
  }
}

TEST(FoldAccents, GermanLettersBecomeTwo) {
  EXPECT_EQ(FoldAccents("Müller"), "Mueller");
  EXPECT_EQ(FoldAccents("Äpfel größer Öl Übung"), "Aepfel groesser Oel Uebung");
}

TEST(FoldAccents, LigatureByTheGermanTableAndStrokeByTheOther) {
  EXPECT_EQ(FoldAccents("Ærø"), "Aero");
}

TEST(FoldAccents, EthThornAndSmallOeStay) {
  EXPECT_EQ(FoldAccents("ðþÞœ"), "ðþÞœ");
  EXPECT_EQ(FoldAccents("Ðœ"), "Dœ");
}

TEST(FoldAccents, KeepsLetterCaseAndAllElse) {
  EXPECT_EQ(FoldAccents("École n'est-ce 42"), "Ecole n'est-ce 42");
  EXPECT_EQ(FoldAccents(""), "");
}

TEST(SortKeyOf, FoldsThenLowers) {
  EXPECT_EQ(SortKeyOf("Müller"), "mueller");
  EXPECT_EQ(SortKeyOf("Mueller"), "mueller");
  EXPECT_EQ(SortKeyOf("Ærø"), "aero");
  EXPECT_EQ(SortKeyOf("THE"), "the");
  EXPECT_EQ(SortKeyOf("Þór"), "þor");
}

TEST(SortKeyOf, WithoutACopyGivesTheSame) {
  for (const std::string_view word : {"the", "THE", "Café", "e-mail", "3rd", "größe", "œuf"}) {
    std::string scratch;
    EXPECT_EQ(SortKeyOf(word, scratch), SortKeyOf(word));
  }
}

TEST(SortKeyOf, WordThatIsItsOwnKeyIsNotCopied) {
  const std::string_view word = "e-mail";
  std::string scratch;
  EXPECT_EQ(SortKeyOf(word, scratch).data(), word.data());
}

}  // namespace
}  // namespace quillomat
