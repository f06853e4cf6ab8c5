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
#include <string_view>
#include <tuple>
#include <utf8proc.h>
#include <utility>
#include <vector>

#include "app/count/sources_fixture.h"
#include "base/utf8.h"
#include "engine/fold_accents.h"
#include "engine/uncounted.h"
#include "support/environment.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr int kWesternLetters = 0;
constexpr int kAllLetters = 1;

constexpr const char* kLanguages[] = {"cs", "de", "el", "en", "es", "fr", "it",
                                      "nl", "pl", "pt", "ru", "sv", "tr", "uk"};

/// Articles, pronouns, prepositions, conjunctions, forms of to be and to have, and negations of
/// every language; where accents alone tell two words apart, both.
const std::pair<const char*, const char*> kCommonest[] = {
    {"cs",
     "a i že ze se s v ve k ke u z za na do o po je jsem jsou být byl mít má ne není ten ta to "
     "té tě mě mé který já ji jí aby když ale nebo ano všem"},
    {"de",
     "der die das den dem des ein eine und oder aber dass daß nicht kein ist sind war wird "
     "werden haben hat ich du er sie es wir ihr in im an auf mit von zu für weil wenn"},
    {"el",
     "ο η το οι τα του της των τον την ένας μια μία και κι ή να θα δεν μη είναι ήταν έχει σε "
     "με για από που πού πως πώς αλλά ας οποίος κανείς ποτέ"},
    {"en",
     "the a an of and or but to in on at with by for from that this it he she they we you i is "
     "are was were be been have has had will would can not no"},
    {"es",
     "el él la los las un una y o pero de del a al en con por para que qué se sé si sí no es "
     "está esta son era ser haber ha hay su mi mí tu tú te lo como cómo"},
    {"fr",
     "le la là les un une des dès du dû de et ou où mais à a au aux en dans par pour sur sûr que "
     "qui ne pas je tu il elle nous vous ils êtes est sont était avoir ai ont"},
    {"it",
     "il lo la là i gli le un una e è o ma di da dà in con su per tra che si sì se sé non ne né "
     "li lì sono ha ho essere avere io tu lui noi voi loro"},
    {"nl",
     "de het een één en of maar van in op te voor vóór met niet geen is was zijn hebben heeft "
     "ik jij hij zij wij u dat die er zo'n"},
    {"pl",
     "i a w we z ze że na do o od nie się jest są był być mieć ma to ta tę tą ten ja ją on ona "
     "który jak ale lub nikt ciebie ich"},
    {"pt",
     "o a à os as às um uma e é ou mas de da dá do em no na nós nos por pôr para que quê não se "
     "são está esta era ser ter tem têm eu ele ela"},
    {"ru",
     "и в во на не с со к ко у о об из за по но а что как это он она они мы вы я ты весь все "
     "всё ещё еще кем чем нет был быть есть"},
    {"sv",
     "och att det är en ett den som på i av för med till var vår våra inte har här hon han jag "
     "du vi ni så sa ut ju från vara ska"},
    {"tr",
     "ve bir bu şu o da de için ile ki mi mı mu mü ne ama değil var yok ben sen biz siz gibi "
     "kadar daha çok en ise hâlâ"},
    {"uk",
     "і й та в у на не з із зі до що як це він вона вони ми ви я ти є був бути бо але чи ті "
     "який яку їх її без про при від"},
};

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

std::vector<std::string> Sorted(std::vector<std::string> words) {
  std::ranges::sort(words);
  return words;
}

bool HasForeignLetters(std::string_view word) {
  return CountForeignLetters(word, false) > 0;
}

/// By the western rule, while accents make no difference.
std::vector<std::string> FirstOfTheirKeys(const std::vector<std::string>& words) {
  std::set<std::string> keys;
  std::vector<std::string> first;
  std::ranges::copy_if(words, std::back_inserter(first), [&keys](const std::string& word) {
    return keys.insert(SortKeyOf(word)).second;
  });
  return first;
}

std::string WithCapitals(std::string_view word, std::size_t most) {
  std::string text;
  std::size_t letters = 0;
  for (std::size_t at = 0; at < word.size(); ++letters) {
    const Utf8Character letter = CharacterAt(word, at);
    const auto small = static_cast<std::int32_t>(letter.codePoint);
    const std::int32_t capital = utf8proc_toupper(small);
    AppendCharacter(text, static_cast<char32_t>(letters < most ? capital : small));
    at += letter.bytes;
  }
  return text;
}

/// As they are, with one capital, and with no other letters. The capital of the dotless i is that
/// of another letter, as documented, and the one of the sharp s is not among the western ones.
std::string InEveryCase(const std::vector<std::string>& words, int letters) {
  constexpr std::string_view kDotlessI = "\u0131";
  std::string text = Joined(words, "");
  for (const std::string& word : words) {
    const std::string capitals = WithCapitals(word, word.size());
    if (word.find(kDotlessI) != std::string::npos) continue;
    if (letters == kWesternLetters && HasForeignLetters(capitals)) continue;
    text.append(WithCapitals(word, 1) + "\n" + capitals + "\n");
  }
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
  for (const bool foldAccents : {true, false}) {
    Panel().chkFoldAccents.SetChecked(foldAccents);
    desktop.ForgetQuestions();
    ChooseList(GetParam());
    EXPECT_EQ(ToldOfList().text,
              std::to_string(words.size()) + " words-to-ignore loaded from " + Path(GetParam()));
    EXPECT_EQ(ToldOfList().icon, MessageIcon::kInformation);
    EXPECT_EQ(Sorted(InForce()), Sorted(words)) << "all are read, none of them changed";
  }
}

TEST_P(CommonWordsOf, LeaveOutNothingElse) {
  const std::vector<std::string> words = WordsIn(ContentsOf(Path(GetParam())));
  Panel().cboLetters.PerformChoice(kAllLetters);
  Panel().chkFoldAccents.SetChecked(false);
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

INSTANTIATE_TEST_SUITE_P(Languages, CommonWordsOf, testing::ValuesIn(kLanguages),
                         [](const auto& language) { return std::string(language.param); });

/// A language, the letters that count, and whether accents make no difference.
class CommonWordsUnder : public CommonWords,
                         public testing::WithParamInterface<std::tuple<const char*, int, bool>> {};

TEST_P(CommonWordsUnder, LeaveOutThemselvesInEveryLetterCase) {
  const auto& [language, letters, foldAccents] = GetParam();
  Panel().chkAllowWordsWithApostrophes.SetChecked(true);
  Panel().chkFoldAccents.SetChecked(foldAccents);
  Panel().cboLetters.PerformChoice(letters);
  ChooseList(language);
  std::vector<std::string> words = WordsIn(ContentsOf(Path(language)));
  if (letters == kWesternLetters) std::erase_if(words, HasForeignLetters);
  if (letters == kWesternLetters && foldAccents) words = FirstOfTheirKeys(words);
  CountClipboard(InEveryCase(words, letters));
  EXPECT_EQ(StoredWords(), "");
}

INSTANTIATE_TEST_SUITE_P(Languages, CommonWordsUnder,
                         testing::Combine(testing::ValuesIn(kLanguages),
                                          testing::Values(kWesternLetters, kAllLetters),
                                          testing::Bool()));

class WesternCommonWordsOf : public CommonWordsOf {};

TEST_P(WesternCommonWordsOf, AreReadOncePerKeyWhileAccentsMakeNoDifference) {
  const std::vector<std::string> words = WordsIn(ContentsOf(Path(GetParam())));
  ChooseList(GetParam());
  EXPECT_EQ(Sorted(InForce()), Sorted(FirstOfTheirKeys(words)));
  EXPECT_EQ(ToldOfList().icon, MessageIcon::kInformation);
  Panel().chkFoldAccents.SetChecked(false);
  desktop.ForgetQuestions();
  ChooseList(GetParam());
  EXPECT_EQ(Sorted(InForce()), Sorted(words));
  EXPECT_EQ(ToldOfList().icon, MessageIcon::kInformation);
}

INSTANTIATE_TEST_SUITE_P(Languages, WesternCommonWordsOf,
                         testing::Values("de", "en", "es", "fr", "it", "nl", "pt", "sv"),
                         [](const auto& language) { return std::string(language.param); });

TEST_F(CommonWords, HoldWhatIsMetMostInTheirLanguage) {
  for (const auto& [language, commonest] : kCommonest) {
    const std::vector<std::string> words = WordsIn(ContentsOf(Path(language)));
    std::istringstream expected(commonest);
    for (std::string word; expected >> word;) EXPECT_THAT(words, Contains(word)) << language;
  }
}

TEST_F(CommonWords, EveryListOfTheDataFolderIsTested) {
  std::set<std::string> names;
  for (const fs::directory_entry& file : fs::directory_iterator(DataFolder())) {
    const std::string name = file.path().filename().string();
    if (name.starts_with("cwds_")) names.insert(name);
  }
  EXPECT_EQ(names.size(), std::size(kLanguages)) << "a new one belongs into kLanguages";
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
