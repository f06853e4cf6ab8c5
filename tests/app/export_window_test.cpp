// The window that exports the list, as a person uses it.
#include <gmock/gmock.h>
#include <stdexcept>

#include "base/utf8.h"
#include "support/program_fixture.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

using testing::HasSubstr;

class ExportWindowTest : public ProgramFixture {
 protected:
  ExportWindowTest() { desktop.SetDocumentsFolder(folder.Path()); }

  ExportForm& Window() { return program.frmExport; }
  void OpenFor(const std::string& text) {
    CountFile(folder.Write("text.txt", text));
    Main().cmdExport.PerformClick();
  }
  std::string Target(const std::string& name) { return folder / ("out/" + name); }
  void ExportTo(const std::string& path) {
    static_cast<void>(folder.Make("out"));
    Window().txbFile.SetText(path);
    Window().cmdExport.PerformClick();
  }
  /// Rank, word and frequency alone.
  void ChooseThreeColumns() {
    for (std::size_t i = 0; i < Window().chkColumn.size(); ++i) {
      Window().chkColumn[i].SetChecked(i < 3);
    }
  }
};

TEST_F(ExportWindowTest, ThereMustBeAList) {
  Main().cmdExport.PerformClick();
  EXPECT_FALSE(Window().Visible());
  EXPECT_THAT(OnlyMessage().text, HasSubstr("Count a text first"));
}

TEST_F(ExportWindowTest, SuggestsAFileNamedAfterTheTextAndTheUsualColumns) {
  OpenFor("the cat the");
  ASSERT_TRUE(Window().Visible());
  EXPECT_EQ(Window().txbFile.Text(), folder / "text.csv");
  EXPECT_TRUE(Window().chkColumn[0].IsChecked());
  EXPECT_FALSE(Window().chkColumn[8].IsChecked());
  EXPECT_FALSE(Window().chkColumn[8].Enabled()) << "files were not told apart";
  EXPECT_FALSE(Window().chkFiltered.Visible());
  Window().cboFormat.PerformChoice(2);
  EXPECT_EQ(Window().txbFile.Text(), folder / "text.xlsx");
  CountFile(folder.Write("other.txt", "emu"));
  EXPECT_EQ(Window().txbFile.Text(), folder / "other.xlsx") << "of the new list";
}

TEST_F(ExportWindowTest, WritesTheWholeListAsChosen) {
  OpenFor("the cat the dog the cat");
  ChooseThreeColumns();
  ExportTo(Target("list.csv"));
  EXPECT_EQ(ContentsOf(Target("list.csv")),
            "rank,word,frequency\r\n1,the,3\r\n2,cat,2\r\n3,dog,1\r\n");
  EXPECT_THAT(Window().lblState.Caption(), HasSubstr(Target("list.csv") + " is written. Words: 3"));
  EXPECT_FALSE(State().Busy());
  EXPECT_EQ(Window().cmdExport.Caption(), "Export");
  EXPECT_TRUE(Window().cmdClose.Enabled());
}

TEST_F(ExportWindowTest, WhatCameOfTheLastExportGoesWithTheLanguage) {
  OpenFor("the cat the dog the cat");
  ExportTo(Target("list.csv"));
  ASSERT_NE(Window().lblState.Caption(), "");
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Window().lblState.Caption(), "");
}

TEST_F(ExportWindowTest, OrderFirstWordsAndFilterHold) {
  program.Exports().SetFilter([] {
    return FilteredWords{{FilterKind::kContains, "t"}, {3, 1}};  // the, cat
  });
  OpenFor("the cat the dog the cat");
  ChooseThreeColumns();
  EXPECT_TRUE(Window().chkFiltered.Visible());
  Window().chkFiltered.SetChecked(true);
  Window().cboOrder.SetListIndex(1);
  ExportTo(Target("list.csv"));
  EXPECT_EQ(ContentsOf(Target("list.csv")), "rank,word,frequency\r\n2,cat,2\r\n1,the,3\r\n");
  Window().txbFirst.SetText("1");
  ExportTo(Target("first.csv"));
  EXPECT_EQ(ContentsOf(Target("first.csv")), "rank,word,frequency\r\n2,cat,2\r\n");
}

TEST_F(ExportWindowTest, APartOfTheListSaysWhichItIs) {
  program.Exports().SetFilter([] { return FilteredWords{{FilterKind::kStartsWith, "c"}, {1}}; });
  OpenFor("the cat the dog the cat");
  ExportTo(Target("whole.json"));
  EXPECT_THAT(ContentsOf(Target("whole.json")),
              HasSubstr(R"("totals": {"complete":true,"words":3,"words-excluded":0,)"
                        R"("instances-listed":6,"instances-of-all-words":6)"));
  Window().chkFiltered.SetChecked(true);
  ExportTo(Target("filtered.json"));
  EXPECT_THAT(ContentsOf(Target("filtered.json")),
              HasSubstr(R"("filter-begins-with":"c","words-exported":1,"words":3,)"));
  Window().chkFiltered.SetChecked(false);
  Window().txbFirst.SetText("2");
  ExportTo(Target("first.json"));
  EXPECT_THAT(ContentsOf(Target("first.json")),
              HasSubstr(R"("top":2,"words-exported":2,"words":3,)"));
}

TEST_F(ExportWindowTest, EndingChoosesTheFormatAndANameWithoutOneGetsIt) {
  OpenFor("cat");
  ChooseThreeColumns();
  ExportTo(Target("list.tsv"));
  EXPECT_EQ(ContentsOf(Target("list.tsv")), "rank\tword\tfrequency\n1\tcat\t1\n");
  ExportTo(Target("plain"));
  EXPECT_EQ(Window().txbFile.Text(), Target("plain.tsv"));
  EXPECT_EQ(ContentsOf(Target("plain.tsv")), ContentsOf(Target("list.tsv")));
}

TEST_F(ExportWindowTest, FormatFollowsTheEndingWhileItIsTyped) {
  OpenFor("cat");
  Window().txbFile.EnterText(Target("list.json"));
  EXPECT_EQ(Window().cboFormat.Text(), "JSON (.json)");
  Window().txbFile.EnterText(Target("list.jsonl"));
  EXPECT_EQ(Window().cboFormat.Text(), "JSON Lines (.jsonl)");
  Window().txbFile.EnterText(Target("list.jsonly"));
  EXPECT_EQ(Window().cboFormat.Text(), "JSON Lines (.jsonl)") << "none of ours";
  EXPECT_EQ(Window().txbFile.Text(), Target("list.jsonly")) << "nobody writes into what is typed";
}

TEST_F(ExportWindowTest, SelectsTheNameWithoutItsEndingSoThatTypingReplacesIt) {
  OpenFor("cat");
  const TextBox& box = Window().txbFile;
  EXPECT_EQ(box.SelStart(), box.Length() - CharacterCount("text.csv"));
  EXPECT_EQ(box.SelLength(), CharacterCount("text"));
}

TEST_F(ExportWindowTest, FolderIsToldToBeOne) {
  OpenFor("cat");
  ExportTo(folder / "out");
  EXPECT_EQ(OnlyMessage().text, (folder / "out") +
                                    " is a folder. Type the name of a file behind it, or click on "
                                    "\"Choose...\".");
}

TEST_F(ExportWindowTest, SaysWhyColumnsOfFilesCannotBeChosen) {
  OpenFor("cat");
  EXPECT_TRUE(Window().lblFilesUnknown.Visible());
  TypeWords(WordListKind::kCountOnly, "cat");
  static_cast<void>(folder.Write("many/a.txt", "cat"));
  CountFolder(folder / "many");
  EXPECT_FALSE(Window().lblFilesUnknown.Visible());
  EXPECT_TRUE(Window().chkColumn[7].Enabled());
}

TEST_F(ExportWindowTest, NameWithAnotherEndingGetsThatOfTheChosenFormat) {
  OpenFor("cat");
  ChooseThreeColumns();
  Window().cboFormat.PerformChoice(3);
  ExportTo(Target("vol.2"));
  EXPECT_EQ(Window().txbFile.Text(), Target("vol.2.html"));
  EXPECT_THAT(ContentsOf(Target("vol.2.html")), HasSubstr("<!DOCTYPE html>"));
  EXPECT_FALSE(FileExists(Target("vol.2")));
  EXPECT_THAT(Window().lblState.Caption(), HasSubstr("vol.2.html is written"));
}

TEST_F(ExportWindowTest, OrdersAreInTheLanguageOfTheProgram) {
  OpenFor("cat");
  EXPECT_EQ(Window().cboOrder.Items()[1], "alphabetical");
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Window().cboOrder.Items()[0], "nach H\u00E4ufigkeit");
  EXPECT_EQ(Window().cboOrder.Items()[1], "alphabetisch");
}

TEST_F(ExportWindowTest, SettingsAreThoseOfTheCountUnderTheTerminalsNames) {
  Panel().chkIgnoreShortWords.SetChecked(true);
  Panel().cboShortWordSize.SetListIndex(2);
  Panel().chkAllowCommentMarkers.SetChecked(true);
  TypeWords(WordListKind::kIgnore, "the");
  OpenFor("the feline the");
  Panel().chkIgnoreShortWords.SetChecked(false);  // not of this list any more
  ExportTo(Target("list.json"));
  const std::string json = ContentsOf(Target("list.json"));
  EXPECT_THAT(json, HasSubstr(R"("settings": {"file":)"));
  EXPECT_THAT(json, HasSubstr(R"("case-sensitive":false)"));
  EXPECT_THAT(json, HasSubstr(R"("hyphens":true)"));
  EXPECT_THAT(json, HasSubstr(R"("min-length":4)"));
  EXPECT_THAT(json, HasSubstr(R"("min-count":1)"));
  EXPECT_THAT(json, HasSubstr(R"("letters":"western")"));
  EXPECT_THAT(json, HasSubstr(R"("encoding":"as-found")"));
  EXPECT_THAT(json, HasSubstr(R"("comments":"/*,*/ //")"));
  EXPECT_THAT(json, HasSubstr(R"("ignore-words":"the")"));
  EXPECT_THAT(json, testing::Not(HasSubstr("chk")));
  EXPECT_THAT(json, HasSubstr(R"("complete":true)"));
}

TEST_F(ExportWindowTest, ExistingFileIsAskedAbout) {
  OpenFor("cat");
  ChooseThreeColumns();
  ExportTo(Target("new.csv"));
  EXPECT_THAT(desktop.InputBoxes(), testing::IsEmpty());
  static_cast<void>(folder.Write("out/list.csv", "precious"));
  desktop.AnswerText("");
  ExportTo(Target("list.csv"));
  EXPECT_EQ(ContentsOf(Target("list.csv")), "precious");
  ASSERT_EQ(desktop.InputBoxes().size(), 1U);
  EXPECT_EQ(desktop.InputBoxes()[0].title, "The file exists.");
  EXPECT_TRUE(desktop.InputBoxes()[0].okLoses);
  EXPECT_EQ(desktop.InputBoxes()[0].defaultAnswer, Target("list.csv"));
  // Another one that exists is asked about, too.
  static_cast<void>(folder.Write("out/other.csv", "dear"));
  desktop.AnswerText(Target("other.csv"));
  desktop.AnswerText("");
  ExportTo(Target("list.csv"));
  EXPECT_EQ(ContentsOf(Target("other.csv")), "dear");
  desktop.AnswerText(Target("list.csv"));
  ExportTo(Target("list.csv"));
  EXPECT_THAT(ContentsOf(Target("list.csv")), HasSubstr("1,cat,1"));
  Panel().chkWarnOnOverwrite.SetChecked(false);
  desktop.ForgetQuestions();
  ExportTo(Target("other.csv"));
  EXPECT_THAT(desktop.InputBoxes(), testing::IsEmpty());
  EXPECT_THAT(ContentsOf(Target("other.csv")), HasSubstr("1,cat,1"));
}

TEST_F(ExportWindowTest, WhatIsThrownMeanwhileLeavesItUsable) {
  OpenFor("the cat");
  desktop.AtPump(desktop.Pumps() + 1, [] { throw std::logic_error("a handler's"); });
  EXPECT_THROW(ExportTo(Target("list.csv")), std::logic_error);
  EXPECT_FALSE(State().Busy());
  EXPECT_EQ(Window().cmdExport.Caption(), "Export");
  Window().cmdClose.PerformClick();
  EXPECT_FALSE(Window().Visible());
}

TEST_F(ExportWindowTest, CountedTextIsNeverWritten) {
  CountFile(folder.Write("text.csv", "cat"));
  Main().cmdExport.PerformClick();
  ExportTo(folder / "text.csv");
  EXPECT_THAT(OnlyMessage().text, HasSubstr((folder / "text.csv") + " is the text"));
  EXPECT_EQ(ContentsOf(folder / "text.csv"), "cat");
}

TEST_F(ExportWindowTest, FaultsNameWhatIsWrong) {
  OpenFor("cat");
  const auto complaint = [&] {
    const std::string text = OnlyMessage().text;
    desktop.ForgetQuestions();
    return text;
  };
  ExportTo("");
  EXPECT_THAT(complaint(), HasSubstr("No file is named"));
  ExportTo(folder.Path());
  EXPECT_THAT(complaint(), HasSubstr("is a folder"));
  ExportTo(folder / "nowhere/list.csv");
  EXPECT_THAT(complaint(), HasSubstr("There is no folder " + (folder / "nowhere")));
  for (const char* number : {"0", "-1", "ten", "1.5"}) {
    Window().txbFirst.SetText(number);
    ExportTo(Target("list.csv"));
    EXPECT_THAT(complaint(), HasSubstr("whole number")) << number;
  }
  Window().txbFirst.SetText("");
  for (CheckBox& box : Window().chkColumn) box.SetChecked(false);
  ExportTo(Target("list.csv"));
  EXPECT_THAT(complaint(), HasSubstr("No column"));
  EXPECT_FALSE(FileExists(Target("list.csv")));
}

TEST_F(ExportWindowTest, StopLeavesTheFileAsItWas) {
  OpenFor("cat dog");
  static_cast<void>(folder.Write("out/list.xlsx", "old"));
  Panel().chkWarnOnOverwrite.SetChecked(false);
  bool couldBeUsed = true;
  desktop.AtPump(desktop.Pumps() + 1, [&] {
    couldBeUsed = Main().cmdSetParameters.Enabled() || Window().cmdClose.Enabled();
    EXPECT_EQ(Window().cmdExport.Caption(), "Stop");
    Main().cmdLanguage.PerformClick();
    EXPECT_EQ(Window().cmdExport.Caption(), "Stop") << "in every language";
    Main().cmdLanguage.PerformClick();
    Window().cmdExport.PerformClick();
  });
  ExportTo(Target("list.xlsx"));
  EXPECT_FALSE(couldBeUsed);
  EXPECT_THAT(Window().lblState.Caption(), HasSubstr("was stopped"));
  EXPECT_EQ(ContentsOf(Target("list.xlsx")), "old");
  EXPECT_TRUE(Main().cmdSetParameters.Enabled());
  EXPECT_FALSE(State().StopRequested());
  EXPECT_EQ(Window().cmdExport.Caption(), "Export");
  Main().cmdLanguage.PerformClick();
  EXPECT_EQ(Window().cmdExport.Caption(), "Exportieren");
}

TEST_F(ExportWindowTest, FilesAreKnownOfAFolderWithCountOnlyWords) {
  TypeWords(WordListKind::kCountOnly, "cat");
  static_cast<void>(folder.Write("texts/a.txt", "cat dog cat"));
  CountFolder(folder / "texts");
  Main().cmdExport.PerformClick();
  EXPECT_TRUE(Window().chkColumn[7].IsChecked());
  ASSERT_TRUE(Window().chkColumn[8].Enabled());
  for (std::size_t i = 0; i < Window().chkColumn.size(); ++i) {
    Window().chkColumn[i].SetChecked(i == 1 || i == 2 || i == 8);
  }
  ExportTo(Target("files.csv"));
  EXPECT_EQ(ContentsOf(Target("files.csv")),
            "word,frequency,file\r\ncat,2," + (folder / "texts/a.txt") + "\r\n");
}

TEST_F(ExportWindowTest, DialogOffersTheChosenFormatFirst) {
  OpenFor("cat");
  Window().cboFormat.PerformChoice(5);
  desktop.AnswerFile(Target("chosen.html"));
  Window().cmdChooseFile.PerformClick();
  ASSERT_EQ(desktop.FileDialogs().size(), 1U);
  EXPECT_TRUE(desktop.FileDialogs()[0].filter.starts_with("JSON (*.json) | *.json | CSV"));
  EXPECT_EQ(Window().txbFile.Text(), Target("chosen.html"));
  EXPECT_EQ(Window().cboFormat.Text(), "HTML (.html)");
}

TEST_F(ExportWindowTest, CloseHidesTheWindow) {
  OpenFor("cat");
  Window().cmdClose.PerformClick();
  EXPECT_FALSE(Window().Visible());
}

}  // namespace
}  // namespace quillomat
