// A signal asks the program to end, whatever it is doing.
#include "qt/end_from_outside.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "system/interruption.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

class EndFromOutsideTest : public WindowFixture {
 protected:
  EndFromOutsideTest() {
    EXPECT_TRUE(user->Start());
    user->program.Ended.Connect([this] { ++ends; });
  }

  [[nodiscard]] bool EndsSoon() const {
    return QTest::qWaitFor([this] { return ends > 0; }, 20'000);
  }
  /// When that holds, as the user sees it.
  void AskToEndWhen(const std::function<bool()>& holds) {
    QObject::connect(&timer, &QTimer::timeout, [this, holds] {
      if (!holds()) return;
      timer.stop();
      std::raise(SIGTERM);
    });
    timer.start(1);
  }
  [[nodiscard]] std::string Contents(const std::string& path) const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  const Interruption interruption{Interruption::First::kIsNoted};
  EndFromOutside endFromOutside{user->program, user->windows, user->desktop};
  QTimer timer;
  int ends = 0;
  MainForm& frmMain = user->program.frmMain;
};

TEST_F(EndFromOutsideTest, AskedToEndItQuitsAndKeepsItsSettings) {
  frmMain.chkIncludeSubfolders.SetChecked(true);
  std::raise(SIGTERM);
  EXPECT_TRUE(EndsSoon());
  EXPECT_TRUE(std::filesystem::exists(home.SettingsFile()));
  EXPECT_EQ(InterruptionStatus(), kAskedToEndStatus);
}

TEST_F(EndFromOutsideTest, CountIsStoppedAndNoListIsWritten) {
  std::string text;
  for (int i = 0; i < 4'000'000; ++i) text += "word ";
  const std::string list = folder.Write("list.txt", "old");
  frmMain.txbFile[1].SetText(list);
  user->program.Sources().ChooseText(folder.Write("a.txt", text));
  AskToEndWhen([this] { return user->program.State().Phase() == RunPhase::kCounting; });
  user->Click(frmMain.cmdCountWords);
  EXPECT_TRUE(EndsSoon());
  EXPECT_EQ(Contents(list), "old");
  EXPECT_THAT(boxes.Texts(), testing::IsEmpty()) << "nobody is asked whether to list the words";
}

TEST_F(EndFromOutsideTest, OpenQuestionIsAnsweredSoThatNothingIsLost) {
  boxes.Pause(60'000);
  const std::string list = folder.Write("list.txt", "old");
  frmMain.txbFile[1].SetText(list);
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat"));
  bool isKept = false;
  AskToEndWhen([this, &isKept] {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (box == nullptr) return false;
    QObject::connect(box, &QDialog::finished,
                     [this, &isKept] { isKept = std::filesystem::exists(home.SettingsFile()); });
    return true;
  });
  user->Click(frmMain.cmdCountWords);
  EXPECT_TRUE(EndsSoon());
  EXPECT_TRUE(isKept) << "first, as what is at work may take its time to end";
  EXPECT_EQ(Contents(list), "old");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(EndFromOutsideTest, AtTheQuestionAboutAStoppedCountNothingIsListed) {
  boxes.Pause(60'000);
  std::string text;
  for (int i = 0; i < 4'000'000; ++i) text += "word ";
  const std::string list = folder.Write("list.txt", "old");
  user->program.frmParams.chkWarnOnOverwrite.SetChecked(false);
  frmMain.txbFile[1].SetText(list);
  user->program.Sources().ChooseText(folder.Write("a.txt", text));
  QTimer stop;
  QObject::connect(&stop, &QTimer::timeout, [&] {
    if (user->program.State().Phase() == RunPhase::kCounting) frmMain.cmdCountWords.PerformClick();
  });
  stop.start(1);
  AskToEndWhen([] { return QApplication::activeModalWidget() != nullptr; });
  user->Click(frmMain.cmdCountWords);
  EXPECT_TRUE(EndsSoon());
  EXPECT_EQ(Contents(list), "old");
  EXPECT_EQ(user->Shown().find("Rank"), std::string::npos);
}

TEST_F(EndFromOutsideTest, OpenDialogIsClosedWithoutAChoice) {
  boxes.Pause(60'000);
  frmMain.optInFile.SetValue(true);
  AskToEndWhen([] { return QApplication::activeModalWidget() != nullptr; });
  user->Click(frmMain.cmdFile[0]);
  EXPECT_TRUE(EndsSoon());
  EXPECT_EQ(frmMain.txbFile[0].Text(), "");
}

TEST_F(EndFromOutsideTest, OpenQuestionOfWhichNoLosesIsAnsweredWithYes) {
  boxes.Pause(60'000);
  QTimer end;
  QObject::connect(&end, &QTimer::timeout, [this, &end] {
    if (QApplication::activeModalWidget() == nullptr) return;
    end.stop();
    user->desktop.StopAsking();
  });
  end.start(1);
  EXPECT_EQ(user->desktop.ShowMessage({"?", "", MessageIcon::kQuestion, MessageButtons::kYesNo,
                                       MessageSeverity::kQuestion, true}),
            MessageAnswer::kYes);
}

TEST_F(EndFromOutsideTest, NobodyIsAskedAnythingAfterwards) {
  user->desktop.StopAsking();
  const auto answer = [this](MessageButtons buttons, bool noLoses) {
    return user->desktop.ShowMessage(
        {"?", "", MessageIcon::kQuestion, buttons, MessageSeverity::kQuestion, noLoses});
  };
  EXPECT_EQ(answer(MessageButtons::kOk, false), MessageAnswer::kOk);
  EXPECT_EQ(answer(MessageButtons::kOkCancel, false), MessageAnswer::kCancel);
  EXPECT_EQ(answer(MessageButtons::kYesNo, false), MessageAnswer::kNo);
  EXPECT_EQ(answer(MessageButtons::kYesNo, true), MessageAnswer::kYes);
  EXPECT_EQ(answer(MessageButtons::kYesNoCancel, false), MessageAnswer::kCancel);
  user->desktop.ShowText("lines", "");
  EXPECT_EQ(user->desktop.AskForText({"", "", "default"}), "");
  EXPECT_EQ(user->desktop.ChooseFile({}), std::nullopt);
  EXPECT_EQ(user->desktop.BrowseForFolder("", ""), std::nullopt);
}

}  // namespace
}  // namespace quillomat
