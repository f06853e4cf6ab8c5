#include "sources/wildcard.h"

#include <gtest/gtest.h>
#include <string>

#include "base/run_time_error.h"
#include "sources/folder_walk.h"
#include "support/temporary_folder.h"

namespace quillomat {
namespace {

TEST(Wildcard, WithoutWildcardsTheWholeNameMustBeThere) {
  EXPECT_TRUE(MatchesWildcard("a.txt", "a.txt"));
  EXPECT_FALSE(MatchesWildcard("a.txt", "a.tx"));
  EXPECT_FALSE(MatchesWildcard("a.tx", "a.txt"));
  EXPECT_FALSE(MatchesWildcard("b.txt", "a.txt"));
  EXPECT_TRUE(MatchesWildcard("", ""));
  EXPECT_FALSE(MatchesWildcard("a", ""));
}

TEST(Wildcard, AQuestionMarkIsExactlyOneCharacter) {
  EXPECT_TRUE(MatchesWildcard("a.txt", "?.txt"));
  EXPECT_FALSE(MatchesWildcard(".txt", "?.txt"));
  EXPECT_FALSE(MatchesWildcard("ab.txt", "?.txt"));
  EXPECT_TRUE(MatchesWildcard("ab", "??"));
  EXPECT_FALSE(MatchesWildcard("a", "??"));
}

TEST(Wildcard, AQuestionMarkTakesACharacterOfSeveralBytesWhole) {
  EXPECT_TRUE(MatchesWildcard("é.txt", "?.txt"));
  EXPECT_FALSE(MatchesWildcard("é.txt", "??.txt"));
  EXPECT_TRUE(MatchesWildcard("日本", "??"));
  EXPECT_TRUE(MatchesWildcard("\xFF.txt", "?.txt"));
}

TEST(Wildcard, AStarIsAnyRunOfCharactersEvenNone) {
  EXPECT_TRUE(MatchesWildcard("", "*"));
  EXPECT_TRUE(MatchesWildcard("anything at all", "*"));
  EXPECT_TRUE(MatchesWildcard("a.txt", "a*.txt"));
  EXPECT_TRUE(MatchesWildcard("abc.txt", "a*.txt"));
  EXPECT_FALSE(MatchesWildcard("abc.txt.old", "a*.txt"));
  EXPECT_TRUE(MatchesWildcard("a.txt.txt", "a*.txt"));
  EXPECT_TRUE(MatchesWildcard("abc", "**b**c*"));
}

TEST(Wildcard, StarsAndQuestionMarksMix) {
  EXPECT_TRUE(MatchesWildcard("chapter1.txt", "*?.t?t"));
  EXPECT_FALSE(MatchesWildcard(".txt", "*?.t?t"));
  EXPECT_TRUE(MatchesWildcard("aab", "*ab"));
  EXPECT_TRUE(MatchesWildcard("abab", "*ab"));
  EXPECT_FALSE(MatchesWildcard("abac", "*ab"));
}

TEST(Wildcard, AllFilesMeansAllWithADot) {
  EXPECT_TRUE(MatchesWildcard("a.txt", "*.*"));
  EXPECT_TRUE(MatchesWildcard(".hidden", "*.*"));
  EXPECT_TRUE(MatchesWildcard("ends with.", "*.*"));
  EXPECT_FALSE(MatchesWildcard("README", "*.*"));
}

TEST(Wildcard, WildcardsInTheNameAreCharactersLikeOthers) {
  EXPECT_TRUE(MatchesWildcard("what?*", "what??"));
  EXPECT_TRUE(MatchesWildcard("*", "*"));
  EXPECT_FALSE(MatchesWildcard("*", "a"));
  EXPECT_FALSE(MatchesWildcard("?", "a"));
}

TEST(Wildcard, ManyStarsCostNoMoreThanAMoment) {
  const std::string name(5'000, 'a');
  std::string pattern;
  for (int i = 0; i < 200; ++i) pattern += "a*";
  EXPECT_TRUE(MatchesWildcard(name, pattern));
  EXPECT_FALSE(MatchesWildcard(name, pattern + "b"));
}

TEST(FolderHasFiles, LooksForAPatternAndBelowOnlyIfAskedFor) {
  const auto goesOn = [] { return false; };
  const TemporaryFolder folder;
  static_cast<void>(folder.Write("texts/a.txt", "cat"));
  EXPECT_FALSE(FolderHasFiles(folder.Path(), "*.*", false, goesOn));
  EXPECT_TRUE(FolderHasFiles(folder.Path(), "*.*", true, goesOn));
  EXPECT_TRUE(FolderHasFiles(folder / "texts", "?.t*", false, goesOn));
  EXPECT_FALSE(FolderHasFiles(folder.Path(), "b*", true, goesOn));
  EXPECT_THROW(static_cast<void>(FolderHasFiles(folder / "nowhere", "*.*", true, goesOn)),
               RunTimeError);
}

TEST(FolderHasFiles, StopsWhenAsked) {
  const TemporaryFolder folder;
  for (const char* name : {"a", "b", "c"}) static_cast<void>(folder.Make(name));
  int asked = 0;
  static_cast<void>(FolderHasFiles(folder.Path(), "*.*", true, [&asked] { return ++asked == 2; }));
  EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace quillomat
