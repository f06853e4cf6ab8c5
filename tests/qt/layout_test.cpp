// However large the window and the letters, in either language: nothing lies over anything else,
// nothing is cut, and all can be reached.
#include <QLabel>
#include <gmock/gmock.h>

#include "layout_checks.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

class LayoutTest : public WindowFixture, public testing::WithParamInterface<int> {
 protected:
  LayoutTest() { EXPECT_TRUE(user->Start()); }

  void ExpectWellLaidOutAt(QWidget& window, QSize size) {
    window.resize(size);
    user->Settle();
    SCOPED_TRACE(FromQt(QString("%1x%2 in %3")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ToQt(frmMain.cmdQuit.Caption()))));
    EXPECT_EQ(window.width(), size.width()) << "it cannot be made so small";
    EXPECT_EQ(window.height(), size.height()) << "it cannot be made so small";
    ExpectWellLaidOut(window);
  }

  void ExpectWellLaidOutAtAllSizes(QWidget& window) {
    // Letters of 16 points need a little more: the window does not let itself be made smaller.
    const QSize smallest(GetParam() < 16 ? 760 : 840, 560);
    for (const QSize size :
         {smallest, QSize(860, 600), QSize(1024, 700), QSize(1366, 720), QSize(1900, 1000)}) {
      ExpectWellLaidOutAt(window, size);
    }
  }

  void Count() {
    std::string text;
    for (int i = 0; i < 20'000; ++i) text += "word" + std::to_string(i % 900) + " ";
    user->program.Sources().ChooseText(folder.Write("a text.txt", text));
    user->Click(frmMain.cmdCountWords);
  }

  /// More than the text box holds, so that there is something to tell.
  void CountMany() {
    std::string text;
    for (int i = 0; i < 60'000; ++i) {
      std::string word = "word";
      for (int rest = i % 6000; rest > 0; rest /= 26) {
        word.push_back(static_cast<char>('a' + rest % 26));
      }
      text += word + " ";
    }
    user->program.Sources().ChooseText(folder.Write("many words.txt", text));
    boxes.Answer(QMessageBox::Ok);
    user->Click(frmMain.cmdCountWords);
  }

  void StopACount() {
    std::string text;
    for (int i = 0; i < 4'000'000; ++i) text += "word ";
    user->program.Sources().ChooseText(folder.Write("long.txt", text));
    boxes.Answer(QMessageBox::Yes);  // the words found so far are listed
    ClickWhenItCounts(*user);
  }

  const Letters letters{GetParam()};
  MainForm& frmMain = user->program.frmMain;
};

TEST_P(LayoutTest, MainWindow) {
  for (int language = 0; language < 2; ++language) {
    user->Click(frmMain.cmdClearOutput);
    ExpectWellLaidOutAtAllSizes(user->windows.Main());
    Count();
    EXPECT_FALSE(frmMain.lblTotalNumOccurrences.Figure().empty());
    ExpectWellLaidOutAtAllSizes(user->windows.Main());
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_P(LayoutTest, MainWindowWithTheFindBar) {
  Count();
  user->windows.Main().Finder().Open();
  auto* word = user->windows.Main().Finder().findChild<QLineEdit*>();
  for (int language = 0; language < 2; ++language) {
    QTest::keyClicks(word, "nowhere");
    ExpectWellLaidOutAtAllSizes(user->windows.Main());
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_P(LayoutTest, MainWindowWithTheSettingsFolded) {
  CountMany();
  user->windows.Main().Fold().SetFolded(true);
  for (int language = 0; language < 2; ++language) {
    ExpectWellLaidOutAtAllSizes(user->windows.Main());
    frmMain.cmdLanguage.Click.Fire();
  }
}

TEST_P(LayoutTest, MainWindowWhileItCounts) {
  frmMain.cmdCountWords.SetCaption("Stop");
  frmMain.lblNumWordsExcluded.SetCaption("This is a Macintosh-type file.");
  frmMain.lblNumWordsExcluded.SetVisible(true);
  frmMain.lblNumOccurrences.SetVisible(true);
  frmMain.lblNumOccurrences.SetProgress(Progress{500, 1000, 123'456, 234'567});
  ExpectWellLaidOutAtAllSizes(user->windows.Main());
}

TEST_P(LayoutTest, MainWindowWithEachView) {
  StopACount();
  MainWindowView& window = user->windows.Main();
  window.Table().findChild<QComboBox*>()->setCurrentIndex(
      static_cast<int>(FilterKind::kExpression));
  for (const char* const view : {"table", "statistics", "files"}) {
    window.Views().Show(view);
    for (const char* const filter : {"", "("}) {
      SCOPED_TRACE(std::string(view) + ' ' + filter);
      window.Table().findChild<QLineEdit*>()->setText(filter);
      ExpectWellLaidOutAtAllSizes(window);
    }
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_P(LayoutTest, MainWindowWithANotice) {
  CountMany();
  for (int language = 0; language < 2; ++language) {
    ASSERT_TRUE(user->WidgetOf<QLabel>(frmMain.lblNotice).isVisible());
    ExpectWellLaidOutAtAllSizes(user->windows.Main());
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_P(LayoutTest, Export) {
  ExportForm& frmExport = user->program.frmExport;
  user->program.Exports().SetFilter([] { return FilteredWords{{}, {1}}; });
  Count();
  for (int language = 0; language < 2; ++language) {
    user->Click(frmMain.cmdExport);
    ASSERT_TRUE(user->windows.Export().isVisible());
    frmExport.lblState.SetCaption("/a/path/that/is/rather/long/list of words.csv is written.");
    ExpectWellLaidOutAtAllSizes(user->windows.Export());
    user->Click(frmExport.cmdClose);
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_P(LayoutTest, Panel) {
  user->program.frmParams.lblState.SetCaption("State restored.");
  for (int language = 0; language < 2; ++language) {
    user->Click(frmMain.cmdSetParameters);
    ExpectWellLaidOutAtAllSizes(user->windows.Panel());
    user->Click(user->program.frmParams.cmdClose);
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_P(LayoutTest, Help) {
  for (int language = 0; language < 2; ++language) {
    user->Click(frmMain.cmdHelp);
    ExpectWellLaidOutAtAllSizes(user->windows.Help());
    user->Click(user->program.frmHelp.cmdClose);
    user->Click(frmMain.cmdLanguage);
  }
}

INSTANTIATE_TEST_SUITE_P(Points, LayoutTest, testing::Values(8, 9, 12, 16));

}  // namespace
}  // namespace quillomat
