// The lists of common words that come with the program: what they hold, and that each leaves out
// exactly its words.
#include "app/count/common_words.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "app/count/sources_fixture.h"
#include "support/environment.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr int kAllLetters = 1;

/// The words behind the one note that every list opens with.
std::vector<std::string> WordsIn(const std::string& list) {
  std::istringstream words(list.substr(list.find("*/") + 2));
  return {std::istream_iterator<std::string>(words), {}};
}

std::string Joined(const std::vector<std::string>& words, const std::string& ending) {
  std::string text;
  for (const std::string& word : words) text.append(word).append(ending).append("\n");
  return text;
}

class CommonWords : public SourcesFixture {
 protected:
  [[nodiscard]] static std::string Path(const std::string& language) {
    return JoinPath(DataFolder(), "cwds_" + language + ".txt");
  }
  [[nodiscard]] const std::vector<std::string>& InForce() {
    return program.Settings().lists.IgnoreList.Words();
  }
  void ChooseList(const std::string& language) {
    desktop.AnswerFile(Path(language));
    Panel().cmdSelectWordsFile[0].PerformClick();
  }
  /// What is told of a list that was read, and nothing else is.
  [[nodiscard]] MessageBox ToldOfList() {
    if (desktop.Messages().size() != 1) {
      ADD_FAILURE() << desktop.Messages().size() << " messages were shown";
      return {};
    }
    return desktop.Messages().back();
  }
};

class CommonWordsOf : public CommonWords, public testing::WithParamInterface<const char*> {};

TEST_P(CommonWordsOf, AreManyInLowerCaseAndNoneTwice) {
  const std::vector<std::string> words = WordsIn(ContentsOf(Path(GetParam())));
  EXPECT_GE(words.size(), 150U);
  EXPECT_EQ(std::set<std::string>(words.begin(), words.end()).size(), words.size());
  Panel().cboLetters.PerformChoice(kAllLetters);
  ChooseList(GetParam());
  EXPECT_EQ(ToldOfList().text,
            std::to_string(words.size()) + " words-to-ignore loaded from " + Path(GetParam()));
  EXPECT_EQ(ToldOfList().icon, MessageIcon::kInformation);
  std::vector<std::string> sorted = words;
  std::ranges::sort(sorted);
  std::vector<std::string> inForce = InForce();
  std::ranges::sort(inForce);
  EXPECT_EQ(inForce, sorted) << "all are read, none of them changed";
}

TEST_P(CommonWordsOf, LeaveOutExactlyThemselves) {
  const std::vector<std::string> words = WordsIn(ContentsOf(Path(GetParam())));
  Panel().cboLetters.PerformChoice(kAllLetters);
  Panel().chkAllowWordsWithApostrophes.SetChecked(true);
  ChooseList(GetParam());
  CountClipboard(Joined(words, "") + Joined(words, "zz"));
  EXPECT_EQ(Words().WordsRead, static_cast<std::int32_t>(2 * words.size()));
  const WordStore& store = Words().store;
  EXPECT_EQ(store.NumDifferentWords(), static_cast<std::int32_t>(words.size()));
  for (std::int32_t i = 1; i <= store.NumDifferentWords(); ++i) {
    EXPECT_TRUE(store.At(i).Word.ends_with("zz")) << store.At(i).Word;
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, CommonWordsOf,
                         testing::Values("cs", "de", "el", "en", "es", "fr", "it", "nl", "pl", "pt",
                                         "ru", "sv", "tr", "uk"),
                         [](const auto& language) { return std::string(language.param); });

TEST_F(CommonWords, EveryListOfTheDataFolderIsTested) {
  std::set<std::string> names;
  for (const fs::directory_entry& file : fs::directory_iterator(DataFolder())) {
    const std::string name = file.path().filename().string();
    if (name.starts_with("cwds_")) names.insert(name);
  }
  EXPECT_EQ(names.size(), 14U) << "a new one belongs into the instantiation above";
}

TEST_F(CommonWords, OfALanguageAreReadWhenTheyAreChosen) {
  const std::vector<CommonWordsList> lists = FindCommonWords();
  ASSERT_EQ(lists.size(), 14U);
  EXPECT_EQ(lists[4].path, Path("de"));
  EXPECT_EQ(program.Text().GetText(lists[4].languageText), "German");
  program.WordLists().ChooseCommonWords(lists[4].path);
  EXPECT_EQ(Panel().txbWordsFile[0].Text(), Path("de"));
  EXPECT_EQ(ToldOfList().title, "Words loaded");
  CountClipboard("und Haus");
  EXPECT_EQ(StoredWords(), "haus");
}

TEST_F(CommonWords, AreReadWithoutAWordAboutTheirLineEnds) {
  const std::string path = folder.Write("cwds_en.txt", "cat\rdog\r");
  const ScopedVariable data("QUILLOMAT_DATA", folder.Path());
  ChooseList("en");
  EXPECT_EQ(ToldOfList().text, "2 words-to-ignore loaded from " + path);
}

TEST_F(CommonWords, AreAskedAboutWhereTheyWouldHaveNoEffect) {
  TypeWords(WordListKind::kCountOnly, "cat");
  desktop.Answer(MessageAnswer::kNo);
  program.WordLists().ChooseCommonWords(Path("de"));
  EXPECT_EQ(OnlyMessage().title, "Proceed?");
  EXPECT_THAT(InForce(), testing::IsEmpty());
}

TEST_F(CommonWords, OfOtherAlphabetsAreToldOfWhileOnlyWesternLettersCount) {
  ChooseList("ru");
  EXPECT_THAT(ToldOfList().text, HasSubstr("0 words-to-ignore loaded from " + Path("ru") + "\r\n"));
  EXPECT_THAT(ToldOfList().text,
              HasSubstr("letters of " + Path("ru") + " belong to other alphabets"));
  EXPECT_THAT(ToldOfList().text, HasSubstr("choose letters \"of all languages\""));
  EXPECT_EQ(ToldOfList().icon, MessageIcon::kExclamation);
  EXPECT_EQ(Panel().txbWordsFile[0].Text(), Path("ru")) << "it stays named, for all letters";
  Panel().cboLetters.PerformChoice(kAllLetters);
  CountClipboard("и дом");
  EXPECT_EQ(StoredWords(), "дом");
}

TEST_F(CommonWords, ALetterOfAnotherAlphabetIsToldOf) {
  const std::string path = folder.Write("words.txt", "cat ω");
  desktop.AnswerFile(path);
  Panel().cmdSelectWordsFile[0].PerformClick();
  EXPECT_THAT(OnlyMessage().text, HasSubstr("\r\nOne letter of " + path + " belongs to another"));
  EXPECT_THAT(InForce(), ElementsAre("cat"));
}

}  // namespace
}  // namespace quillomat
