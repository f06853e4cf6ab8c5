// A day with the program, done with mouse and keyboard on the real widgets.
#include <QCheckBox>
#include <gmock/gmock.h>

#include "base/text_helpers.h"
#include "listing/display_format.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DayOnTheDesktop : public WindowFixture {
 protected:
  MainForm& Main() { return user->program.frmMain; }
  ParamsForm& Panel() { return user->program.frmParams; }

  void StartAgain() {
    user->Click(Main().cmdQuit);
    EXPECT_TRUE(user->program.HasEnded());
    user = std::make_unique<ProgramOnDesktop>();
    ASSERT_TRUE(user->Start());
  }

  TemporaryFolder lists;

  std::string SampleFile() { return std::string(QUILLOMAT_TEST_DATA) + "/samples/harbour_en.txt"; }
};

TEST_F(DayOnTheDesktop, IsAsThePersonWantsIt) {
  ASSERT_TRUE(user->Start());
  ASSERT_TRUE(QTest::qWaitForWindowActive(&user->windows.Main()));

  // Set the parameters.
  user->Click(Main().cmdSetParameters);
  EXPECT_TRUE(user->windows.Panel().isVisible());
  user->Click(Panel().chkAllowWordsWithApostrophes);
  user->Type(Panel().txbWordsToIgnoreOrCount[0], "the, and");
  user->Choose(Panel().cboShortWordSize, 3);
  user->Click(Panel().chkIgnoreShortWords);
  user->Click(Panel().cmdClose);
  EXPECT_FALSE(user->windows.Panel().isVisible());
  EXPECT_EQ(Panel().txbWordsToIgnoreOrCount[0].Text(), "the and");

  // Count the sample.
  user->Click(Main().optInFile);
  user->Type(Main().txbFile[0], SampleFile());
  user->Click(Main().cmdCountWords);
  EXPECT_THAT(user->Shown(), HasSubstr("Rank    Freq  Word"));
  EXPECT_THAT(user->Shown(), HasSubstr("  harbour\n"));
  EXPECT_THAT(user->Shown(), Not(HasSubstr("  the\n")));
  EXPECT_TRUE(user->WidgetOf<QWidget>(Main().lblNumberOfWords).isVisible());

  // List it in every format that a file can be listed in.
  for (int format = 0; format < static_cast<int>(kDisplayFormatNames.size()); ++format) {
    if (NeedsFileTallies(static_cast<DisplayFormat>(format))) continue;
    user->Choose(Main().cboDisplayFormat, format);
    EXPECT_EQ(Main().cboDisplayFormat.ListIndex(), format);
    EXPECT_EQ(user->Shown(), ReplaceAll(Main().txbOutput.Text(), "\r\n", "\n"));
    EXPECT_NE(user->Shown(), "");
  }
  user->Choose(Main().cboWordOrder, 1);
  user->Choose(Main().cboDisplayFormat, 8);
  EXPECT_THAT(user->Shown(), HasSubstr("\nabolished\nabout\n"));

  // Keep it, quit, and come back.
  boxes.Answer(QMessageBox::Ok);
  user->Click(Main().cmdSaveState);
  EXPECT_THAT(boxes.Texts(), ElementsAre("State saved."));
  StartAgain();
  EXPECT_TRUE(user->WidgetOf<QCheckBox>(Panel().chkAllowWordsWithApostrophes).isChecked());
  EXPECT_EQ(user->WidgetOf<QLineEdit>(Main().txbFile[0]).text(), ToQt(SampleFile()));
  EXPECT_EQ(user->WidgetOf<QComboBox>(Main().cboWordOrder).currentIndex(), 1);
  EXPECT_EQ(user->WidgetOf<QComboBox>(Main().cboDisplayFormat).currentIndex(), 8);
  EXPECT_EQ(user->WidgetOf<QComboBox>(Panel().cboShortWordSize).currentText(), "5");
}

TEST_F(DayOnTheDesktop, StopsALongFolderCountWithTheStopButton) {
  ASSERT_TRUE(user->Start());
  const std::string words = [] {
    std::string text;
    for (int i = 0; i < 20'000; ++i) text += "word" + std::to_string(i) + (i % 9 ? " " : "\n");
    return text;
  }();
  for (int i = 0; i < 200; ++i) {
    static_cast<void>(folder.Write("f" + std::to_string(i) + ".txt", words));
  }
  user->Type(Main().txbFolder, folder.Path());
  user->Type(Main().txbFile[1], lists / "list.txt");
  boxes.Answer(QMessageBox::Yes);
  std::string captionWhileRunning;
  QTimer untilItReads;
  untilItReads.callOnTimeout([&] {
    const auto& progress = Main().lblNumOccurrences.ShownProgress();
    if (!progress || progress->done == 0) return;  // it still counts the files
    untilItReads.stop();
    auto& button = user->WidgetOf<QPushButton>(Main().cmdCountWords);
    captionWhileRunning = FromQt(button.text().remove(QLatin1Char('&')));
    QTest::mouseClick(&button, Qt::LeftButton);
  });
  untilItReads.start(5);
  user->Click(Main().cmdCountWords);
  EXPECT_EQ(captionWhileRunning, "Stop");
  EXPECT_THAT(boxes.TitlesSeen(), ElementsAre("Counting interrupted"));
  EXPECT_THAT(user->Shown(), HasSubstr("  word\n"));
  EXPECT_FALSE(user->program.Words().completeRun);
}

TEST_F(DayOnTheDesktop, ClosingTheWindowDuringACountEndsTheProgram) {
  ASSERT_TRUE(user->Start());
  std::string text;
  for (int i = 0; i < 3'000'000; ++i) text += "word ";
  user->program.Sources().ChooseText(folder.Write("long.txt", text));
  CountAndMeanwhile(*user, [&] { user->windows.Main().close(); });
  EXPECT_TRUE(user->program.HasEnded());
}

}  // namespace
}  // namespace quillomat
