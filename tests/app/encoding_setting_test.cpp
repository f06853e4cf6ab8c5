// The panel's choice of what the bytes of texts are in.
#include <gmock/gmock.h>

#include "base/character_set.h"
#include "support/program_fixture.h"

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::Not;

/// "слово дело" in KOI8-R.
constexpr const char* kWordsInKoi8 = "\xD3\xCC\xCF\xD7\xCF \xC4\xC5\xCC\xCF\n";

class EncodingSetting : public ProgramFixture {
 protected:
  void ChooseEncoding(CharacterSet set) {
    Panel().cboEncoding.PerformChoice(static_cast<int>(set));
  }
  void ChooseAllLetters() { Panel().cboLetters.PerformChoice(1); }
};

TEST_F(EncodingSetting, FilesAreReadAsTheyAreFoundUnlessOneIsChosen) {
  const std::string path = folder.Write("a.txt", kWordsInKoi8);
  ChooseAllLetters();
  CountFile(path);
  EXPECT_EQ(StoredWords(), "äåìï ï óìï") << "as Windows-1252, where D7 is a sign";
}

TEST_F(EncodingSetting, FilesAreReadInTheEncodingThatIsChosen) {
  ChooseAllLetters();
  ChooseEncoding(CharacterSet::kKoi8R);
  CountFile(folder.Write("a.txt", kWordsInKoi8));
  EXPECT_EQ(StoredWords(), "дело слово");
}

TEST_F(EncodingSetting, FilesOfAFolderAreReadInIt) {
  ChooseAllLetters();
  ChooseEncoding(CharacterSet::kKoi8R);
  static_cast<void>(folder.Write("texts/a.txt", kWordsInKoi8));
  CountFolder(folder / "texts");
  EXPECT_EQ(StoredWords(), "дело слово");
}

TEST_F(EncodingSetting, ChangeMakesTheCountsOutdatedAndAsksNothing) {
  CountFile(folder.Write("a.txt", "cat"));
  ChooseEncoding(CharacterSet::kUtf8);  // a key goes through the list item by item
  ChooseEncoding(CharacterSet::kUtf16);
  EXPECT_THAT(desktop.Messages(), testing::IsEmpty());
  EXPECT_EQ(Panel().cboEncoding.ListIndex(), static_cast<int>(CharacterSet::kUtf16));
  EXPECT_FALSE(Words().blnWordsGot);
  EXPECT_NE(Main().lblNotice.Caption(), "");
}

TEST_F(EncodingSetting, ChangeMeansNothingForTextOfTheClipboard) {
  CountClipboard("cat");
  ChooseEncoding(CharacterSet::kUtf16);
  EXPECT_TRUE(Words().blnWordsGot);
  EXPECT_EQ(Panel().cboEncoding.ListIndex(), static_cast<int>(CharacterSet::kUtf16));
  EXPECT_EQ(Main().lblNotice.Caption(), "");
  Count();
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(EncodingSetting, WordsFilesFollowUnlessTheyLookLikeUtf8) {
  ChooseAllLetters();
  ChooseEncoding(CharacterSet::kKoi8R);
  Panel().txbWordsFile[0].SetText(folder.Write("koi8.txt", "\xD3\xCC\xCF\xD7\xCF\n"));
  CountClipboard("слово дело");
  EXPECT_EQ(StoredWords(), "дело");
  Panel().txbWordsFile[0].SetText(folder.Write("utf8.txt", "дело\n"));
  CountClipboard("слово дело");
  EXPECT_EQ(StoredWords(), "слово");
}

TEST_F(EncodingSetting, GuessOfAWordsFileIsPutOffBehindAHeadOfAscii) {
  ChooseAllLetters();
  ChooseEncoding(CharacterSet::kGuess);
  std::string words;
  while (words.size() <= std::size_t{64} * 1024) words += "plain words\r\n";
  for (int i = 0; i < 50; ++i) {
    words +=
        "\xEB\xC1\xD6\xC4\xCF\xC5 \xD5\xD4\xD2\xCF \xD2\xC5\xCB\xC1 \xD4\xC9\xC8\xCF "
        "\xCE\xC5\xD3\xA3\xD4 \xD7\xCF\xC4\xD5 \xCD\xC9\xCD\xCF \xC4\xCF\xCD\xC1.\r\n";
  }
  Panel().txbWordsFile[0].SetText(folder.Write("koi8.txt", words));
  CountClipboard("утро дома plain гора");
  EXPECT_EQ(StoredWords(), "гора");
}

TEST_F(EncodingSetting, WordsFileIsReadAnewInAnotherEncoding) {
  ChooseAllLetters();
  Panel().txbWordsFile[0].SetText(folder.Write("koi8.txt", "\xD3\xCC\xCF\xD7\xCF\n"));
  CountClipboard("слово дело");
  EXPECT_EQ(StoredWords(), "дело слово");
  ChooseEncoding(CharacterSet::kKoi8R);
  CountClipboard("слово дело");
  EXPECT_EQ(StoredWords(), "дело");
}

TEST_F(EncodingSetting, WordsFileInUtf16WithoutAMarkIsATextIfChosen) {
  using namespace std::string_literals;
  ChooseEncoding(CharacterSet::kUtf16);
  Panel().txbWordsFile[0].SetText(folder.Write("words.txt", "c\0a\0t\0"s));
  CountClipboard("cat dog");
  EXPECT_EQ(StoredWords(), "dog");
}

TEST_F(EncodingSetting, StateFileTellsOfItWhereItIsNotTheDefault) {
  const auto savedState = [this] {
    EXPECT_EQ(program.States().SaveState(folder / "state.qlm"), "");
    return ContentsOf(folder / "state.qlm");
  };
  EXPECT_THAT(savedState(), Not(HasSubstr("cboEncoding")));
  ChooseEncoding(CharacterSet::kShiftJis);
  EXPECT_THAT(savedState(), HasSubstr("\r\ncboEncoding=26\r\n"));
  Panel().cmdRestoreDefaults.PerformClick();
  EXPECT_EQ(Panel().cboEncoding.ListIndex(), 0);
  EXPECT_EQ(program.States().RestoreSavedState(folder / "state.qlm"), RestoreResult::kRestored);
  EXPECT_EQ(Panel().cboEncoding.ListIndex(), static_cast<int>(CharacterSet::kShiftJis));
}

TEST_F(EncodingSetting, ItemsAreTheNamesAndSpeakTheLanguageOfTheWindows) {
  const std::span<const std::string> items = Panel().cboEncoding.Items();
  ASSERT_EQ(items.size(), kCharacterSetNames.size());
  EXPECT_EQ(items[0], "as found");
  EXPECT_EQ(items[1], "guess");
  for (std::size_t i = 2; i < items.size(); ++i) EXPECT_EQ(items[i], kCharacterSetNames[i]);
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Panel().lblEncoding.Caption(), "Kodierung:");
  EXPECT_EQ(Panel().cboEncoding.Items()[0], "wie vorgefunden");
  EXPECT_EQ(Panel().cboEncoding.Items()[1], "erraten");
  EXPECT_EQ(Panel().cboEncoding.Items()[2], "UTF-8");
}

TEST_F(EncodingSetting, ItemsTellWhichLanguagesTheyAreFor) {
  const ComboBox& encoding = Panel().cboEncoding;
  const auto noteOf = [&encoding](CharacterSet set) {
    return encoding.ItemNote(static_cast<int>(set));
  };
  EXPECT_EQ(noteOf(CharacterSet::kAsFound), "");
  EXPECT_EQ(noteOf(CharacterSet::kUtf8), "all languages");
  EXPECT_EQ(noteOf(CharacterSet::kWindows1250), "Central European");
  EXPECT_EQ(noteOf(CharacterSet::kUtf16LowByteFirst), "all languages");
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(noteOf(CharacterSet::kWindows1250), "mitteleuropäisch");
  for (int i = 2; i < static_cast<int>(encoding.Items().size()); ++i) {
    EXPECT_NE(encoding.ItemNote(i), "") << encoding.Items()[static_cast<std::size_t>(i)];
  }
}

}  // namespace
}  // namespace quillomat
