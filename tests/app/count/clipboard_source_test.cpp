// The clipboard as the source of a count.
#include "app/count/clipboard_source.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <utility>

#include "app/count/count_fixture.h"
#include "base/run_time_error.h"

namespace quillomat {
namespace {

using ::testing::IsEmpty;

/// `unit`, so often.
std::string Repeated(const std::string& unit, std::size_t times) {
  std::string text;
  for (std::size_t i = 0; i < times; ++i) text += unit;
  return text;
}

// Fetching the text.

class ClipboardSourceTest : public CountFixture {
 protected:
  void ExpectRefusedAsTooLong(const std::string& number, const std::string& limit) {
    ExpectMessage(OnlyMessage(),
                  "There are " + number +
                      " characters in the text on the clipboard.\r\n"
                      "The maximum permitted is " +
                      limit +
                      ".  If possible,\r\n"
                      "count word frequencies for this text using an input file.",
                  "Too much clipboard text", MessageIcon::kExclamation);
    EXPECT_TRUE(Main().optInFile.Value());
    EXPECT_EQ(Output(), "");
    ExpectIdle();
  }
};

TEST_F(ClipboardSourceTest, AnEmptyClipboardIsToldAndTheSingleFileChosen) {
  CountClipboard("");
  ExpectMessage(OnlyMessage(), "Clipboard is empty.", "Clipboard empty", MessageIcon::kExclamation);
  EXPECT_TRUE(Main().optInFile.Value());
  EXPECT_FALSE(Main().optOnClipboard.Value());
  EXPECT_EQ(Output(), "");
  ExpectIdle();
}

TEST_F(ClipboardSourceTest, AClipboardWithoutTextIsEmpty) {
  Main().optOnClipboard.SetValue(true);
  Count();
  EXPECT_EQ(OnlyMessage().title, "Clipboard empty");
  EXPECT_TRUE(Main().optInFile.Value());
}

TEST_F(ClipboardSourceTest, Exactly100000CharactersAreAccepted) {
  CountClipboard(Repeated("word ", 20'000));
  EXPECT_EQ(StoredWords(), "word*20000");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(ClipboardSourceTest, Exactly100000CharactersOfSeveralBytesAreAccepted) {
  CountClipboard(Repeated("w\u00F6r\u20AC ", 20'000));
  EXPECT_EQ(StoredWords(), "w\u00F6r*20000");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(ClipboardSourceTest, OneCharacterMoreIsRefused) {
  CountClipboard(Repeated("word ", 20'000) + "x");
  ExpectRefusedAsTooLong("100,001", "100,000");
}

TEST_F(ClipboardSourceTest, OneCharacterOfSeveralBytesMoreIsRefused) {
  CountClipboard(Repeated("w\u00F6r\u20AC ", 20'000) + "\u20AC");
  ExpectRefusedAsTooLong("100,001", "100,000");
}

TEST_F(ClipboardSourceTest, NumbersInTheRefusalAreGroupedAsTheUserWritesThem) {
  desktop.SetDigitGroupSeparator(".");
  CountClipboard(std::string(1'234'567, 'x'));
  ExpectRefusedAsTooLong("1.234.567", "100.000");
}

TEST_F(ClipboardSourceTest, TextThatMemoryDoesNotHoldIsToldAndTheSingleFileChosen) {
  desktop.FailClipboardRead(true);
  CountClipboard("cat");
  ExpectMessage(OnlyMessage(),
                "There is too much text on the clipboard to paste into the textbox.\r\n"
                "It may, however, still be possible to count word frequencies.",
                "Quillomat", MessageIcon::kExclamation);
  EXPECT_TRUE(Main().optInFile.Value());
  ExpectIdle();
}

TEST_F(ClipboardSourceTest, ARefusalLeavesTheWordsOfTheLastCount) {
  CountClipboard("cat dog");
  for (const std::string& refused :
       {std::string(), std::string(100'001, 'x'), std::string("a\x01z")}) {
    CountClipboard(refused);
    EXPECT_EQ(StoredWords(), "cat dog");
    EXPECT_TRUE(Words().completeRun);
  }
}

TEST_F(ClipboardSourceTest, PastingPutsTheTextIntoTheOutputBoxAndNoListStandsThen) {
  ProgramParts parts({Main(), Panel(), program.frmHelp, program.frmExport}, desktop,
                     std::chrono::steady_clock::now);
  parts.words.blnWordsGot = true;
  desktop.SetClipboard("two\r\nlines");
  EXPECT_TRUE(ClipboardSource(WindowCountOf(parts.user, parts.facts), parts.lister, desktop)
                  .ReadClipboard(true));
  EXPECT_EQ(Output(), "two\r\nlines");
  EXPECT_FALSE(parts.words.blnWordsGot);
}

TEST_F(ClipboardSourceTest, WithoutPastingTheOutputBoxIsOnlyEmptied) {
  ProgramParts parts({Main(), Panel(), program.frmHelp, program.frmExport}, desktop,
                     std::chrono::steady_clock::now);
  parts.words.blnWordsGot = true;
  parts.output.OutputToTxb("cat");
  desktop.SetClipboard("two\r\nlines");
  EXPECT_TRUE(ClipboardSource(WindowCountOf(parts.user, parts.facts), parts.lister, desktop)
                  .ReadClipboard(false));
  EXPECT_EQ(Output(), "");
  EXPECT_TRUE(parts.words.blnWordsGot);
}

// Whether it is text.

TEST_F(ClipboardSourceTest, AControlCharacterRefusesTheText) {
  CountClipboard("cat\x02 dog");
  ExpectMessage(OnlyMessage(),
                "The text on the clipboard does not consist\r\nsolely of natural language words.",
                "Invalid input", MessageIcon::kExclamation);
  EXPECT_TRUE(Main().optOnClipboard.Value());
  EXPECT_EQ(StoredWords(), "");
  ExpectIdle();
}

TEST_F(ClipboardSourceTest, TabsAndLineBreaksSeparateWords) {
  CountClipboard("cat\tdog\ncow\rhen\r\ngoat");
  EXPECT_EQ(StoredWords(), "cat cow dog goat hen");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(ClipboardSourceTest, TheLastOfTheFirst3000CharactersIsLookedAt) {
  CountClipboard(Repeated("\u00E9 ", 1499) + "\u00E9\x01 cat");
  EXPECT_EQ(OnlyMessage().title, "Invalid input");
}

TEST_F(ClipboardSourceTest, ACharacterBehindTheFirst3000IsNotLookedAt) {
  CountClipboard(Repeated("\u00E9 ", 1500) + "\x01 cat");
  EXPECT_EQ(StoredWords(), "cat \u00E9*1500");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

// Scanning.

TEST_F(ClipboardSourceTest, UpperAndLowerCaseAreOneWord) {
  CountClipboard("The THE the");
  EXPECT_EQ(StoredWords(), "the*3");
}

TEST_F(ClipboardSourceTest, AWordIsShownAsFirstMetWhereCaseIsSignificant) {
  Panel().chkCaseSignificant.SetChecked(true);
  CountClipboard("The THE the");
  EXPECT_EQ(StoredWords(), "The*3");
}

TEST_F(ClipboardSourceTest, AGreyBoxDoesNotMakeCaseSignificant) {
  Panel().chkCaseSignificant.SetValue(CheckState::kGrayed);
  CountClipboard("The");
  EXPECT_EQ(StoredWords(), "the");
}

TEST_F(ClipboardSourceTest, TheLastWordNeedsNothingBehindIt) {
  CountClipboard("cat dog");
  EXPECT_EQ(StoredWords(), "cat dog");
}

TEST_F(ClipboardSourceTest, TheTextIsScannedInOnePieceNotLineByLine) {
  AllowComments("//", "");
  CountClipboard("cat // dog\r\nhen");
  EXPECT_EQ(StoredWords(), "cat");
}

TEST_F(ClipboardSourceTest, CommentsAreSkippedWhereThePanelAllowsThem) {
  AllowComments("/*", "*/");
  CountClipboard("cat /* dog\r\nhen */ cow");
  EXPECT_EQ(StoredWords(), "cat cow");
}

TEST_F(ClipboardSourceTest, CommentsAreCountedWhereThePanelDoesNotAllowThem) {
  desktop.Answer("Quillomat", MessageAnswer::kYes);  // the text may be read anew
  for (const CheckState state : {CheckState::kUnchecked, CheckState::kGrayed}) {
    Panel().chkAllowCommentMarkers.SetValue(state);
    CountClipboard("cat /* dog */ cow");
    EXPECT_EQ(StoredWords(), "cat cow dog");
  }
}

TEST_F(ClipboardSourceTest, TheMarkersOfAnEarlierFileAreGone) {
  CountFile(folder.Write("page.html", "<b>cat</b>"));
  EXPECT_EQ(StoredWords(), "cat");
  CountClipboard("<b>cat</b>");
  EXPECT_EQ(StoredWords(), "b*2 cat");
}

TEST_F(ClipboardSourceTest, ATextWithoutWordsIsScannedAllTheSame) {
  CountClipboard(" 12 -- !\r\n");
  EXPECT_EQ(Output(), "No words satisfying the conditions were found.");
  EXPECT_TRUE(Words().completeRun);
  ExpectIdle();
}

TEST_F(ClipboardSourceTest, TheClipboardKeepsItsText) {
  CountClipboard("Cat DOG");
  EXPECT_EQ(desktop.Clipboard(), "Cat DOG");
}

TEST_F(ClipboardSourceTest, WhileItIsScannedOnlyStopCanBeUsedAndTheNoticesAreHidden) {
  AtYield(2, [this] {
    ExpectRunning();
    EXPECT_EQ(Output(), "cat dog ");
    EXPECT_FALSE(Main().lblCopyrightNotice.Visible());
    EXPECT_FALSE(Main().lblOrvandelSystems.Visible());
    EXPECT_FALSE(Main().lblOnlineDocumentation.Visible());
  });
  CountClipboard("cat dog cow");
  ExpectIdle();
}

TEST_F(ClipboardSourceTest, TheWordsOfTheLastCountAreGone) {
  CountClipboard("cat dog");
  CountClipboard("hen");
  EXPECT_EQ(StoredWords(), "hen");
}

TEST_F(ClipboardSourceTest, AnErrorWhileScanningIsReportedWithNumberAndDescription) {
  AtYield(2, [] { throw RunTimeError(RunTimeErrorNumber::kOverflow); });
  CountClipboard("cat dog cow");
  ExpectMessage(OnlyMessage(), "Error 6: Overflow", "Problem", MessageIcon::kExclamation);
  EXPECT_FALSE(Words().completeRun);
  ExpectIdle();
}

TEST_F(ClipboardSourceTest, TheSuppressBoxIsAsItWasAfterAScan) {
  bool wasChecked = false;
  Main().chkSuppressWords.Click.Connect(
      [&] { wasChecked = wasChecked || Main().chkSuppressWords.IsChecked(); });
  CountClipboard(ManyWords(4'500));
  EXPECT_TRUE(wasChecked);
  EXPECT_EQ(Main().chkSuppressWords.Value(), CheckState::kUnchecked);
}

TEST_F(ClipboardSourceTest, TheSuppressBoxIsAsItWasAfterAnErrorToo) {
  AtYield(2, [this] {
    Main().chkSuppressWords.SetChecked(true);
    throw RunTimeError(RunTimeErrorNumber::kOverflow);
  });
  CountClipboard("cat dog cow");
  EXPECT_EQ(Main().chkSuppressWords.Value(), CheckState::kUnchecked);
}

TEST_F(ClipboardSourceTest, TheFocusIsOnTheCountCommandAfterwards) {
  Main().Show();
  Main().SetFocus(Main().cmdQuit);
  CountClipboard("cat");
  EXPECT_EQ(Main().Focused(), &Main().cmdCountWords);
}

// A clipboard that cannot be read.

/// The scripted desktop, but its clipboard fails in a way of its own.
class DesktopWithBadClipboard final : public Desktop {
 public:
  /// `fail` throws.
  DesktopWithBadClipboard(ScriptedDesktop& desktop, std::function<void()> fail)
      : desktop_(desktop), fail_(std::move(fail)) {}

  std::string ClipboardText() override {
    fail_();
    return {};
  }

  MessageAnswer ShowMessage(const MessageBox& box) override { return desktop_.ShowMessage(box); }
  std::string AskForText(const InputBox& box) override { return desktop_.AskForText(box); }
  std::optional<std::string> ChooseFile(const FileDialog& dialog) override {
    return desktop_.ChooseFile(dialog);
  }
  std::optional<std::string> BrowseForFolder(const std::string& title,
                                             const std::string& folder) override {
    return desktop_.BrowseForFolder(title, folder);
  }
  std::string DocumentsFolder() override { return desktop_.DocumentsFolder(); }
  void ClearClipboard() override { desktop_.ClearClipboard(); }
  void PutClipboardText(const std::string& text) override { desktop_.PutClipboardText(text); }
  void Repaint() override { desktop_.Repaint(); }
  void PumpEvents() override { desktop_.PumpEvents(); }
  bool OpenWithShell(const std::string& name, std::function<void()> onFailure) override {
    return desktop_.OpenWithShell(name, std::move(onFailure));
  }
  Registry& UserKeys() override { return desktop_.UserKeys(); }
  std::string DigitGroupSeparator() override { return desktop_.DigitGroupSeparator(); }

 private:
  ScriptedDesktop& desktop_;
  std::function<void()> fail_;
};

class BadClipboard : public ClipboardSourceTest {
 protected:
  void ReadOneThat(std::function<void()> fails) {
    DesktopWithBadClipboard badDesktop(desktop, std::move(fails));
    Program other(badDesktop);
    ASSERT_TRUE(other.Start({.userSettings = false, .window = false}));
    other.frmMain.optOnClipboard.SetValue(true);
    other.frmMain.cmdCountWords.PerformClick();
    EXPECT_FALSE(other.Count().ListWasMade());
  }
};

TEST_F(BadClipboard, AnyErrorIsToldInItsOwnWords) {
  ReadOneThat([] { throw RunTimeError(RunTimeErrorNumber::kDeviceIo); });
  ExpectMessage(OnlyMessage(), "Device I/O error", "Quillomat", MessageIcon::kExclamation);
}

TEST_F(BadClipboard, MemoryThatDoesNotSufficeIsTooMuchText) {
  ReadOneThat([] { throw std::bad_alloc(); });
  ExpectMessage(OnlyMessage(),
                "There is too much text on the clipboard to paste into the textbox.\r\n"
                "It may, however, still be possible to count word frequencies.",
                "Quillomat", MessageIcon::kExclamation);
}

}  // namespace
}  // namespace quillomat
