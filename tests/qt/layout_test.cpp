// However large the window and the letters, in either language: nothing lies over anything else,
// nothing is cut, and all can be reached.
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <algorithm>
#include <gmock/gmock.h>

#include "qt/elided_label.h"
#include "qt/figure_label.h"
#include "qt/fixed_font.h"
#include "qt/window_memory.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

/// What a person sees and uses, without the parts that it is made of.
bool IsPart(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLabel*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QTableView*>(&widget) != nullptr ||
         qobject_cast<const QProgressBar*>(&widget) != nullptr;
}

/// A notice stands on the list, and is none of its parts.
bool IsInsideAPart(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  const bool notice = qobject_cast<const QLabel*>(&widget) != nullptr &&
                      qobject_cast<const QPlainTextEdit*>(parent) != nullptr;
  return IsPart(*parent) && !notice;
}

std::vector<QWidget*> PartsOf(const QWidget& window) {
  std::vector<QWidget*> parts;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && IsPart(*widget) && !IsInsideAPart(*widget)) parts.push_back(widget);
  }
  return parts;
}

std::string NameOf(const QWidget& widget) {
  const std::string name = FromQt(widget.objectName());
  return name.empty() ? widget.metaObject()->className() : name;
}

bool IsViewport(const QWidget& widget) {
  const auto* area = qobject_cast<const QAbstractScrollArea*>(widget.parentWidget());
  return area != nullptr && area->viewport() == &widget;
}

/// The place in its window that can be seen.
QRect SeenPlace(const QWidget& widget) {
  QRect place(widget.mapTo(widget.window(), QPoint(0, 0)), widget.size());
  for (const QWidget* above = widget.parentWidget(); above != nullptr;
       above = above->isWindow() ? nullptr : above->parentWidget()) {
    place &= QRect(above->mapTo(above->window(), QPoint(0, 0)), above->size());
  }
  return place;
}

void ExpectNothingOverlaps(const QWidget& window) {
  const std::vector<QWidget*> parts = PartsOf(window);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    for (std::size_t j = i + 1; j < parts.size(); ++j) {
      if (parts[i]->isAncestorOf(parts[j]) || parts[j]->isAncestorOf(parts[i])) continue;
      EXPECT_FALSE(SeenPlace(*parts[i]).intersects(SeenPlace(*parts[j])))
          << NameOf(*parts[i]) << " and " << NameOf(*parts[j]);
    }
  }
}

void ExpectTextFits(const QWidget& part) {
  const auto* label = qobject_cast<const QLabel*>(&part);
  if (dynamic_cast<const ElidedLabel*>(&part) != nullptr) {
    EXPECT_GE(part.width(), part.minimumSizeHint().width()) << NameOf(part);
    EXPECT_GE(part.height(), part.minimumSizeHint().height()) << NameOf(part);
  } else if (part.hasHeightForWidth()) {
    EXPECT_GE(part.width(), part.minimumSizeHint().width()) << NameOf(part);
    EXPECT_GE(part.height(), part.heightForWidth(part.width())) << NameOf(part);
  } else if (label != nullptr || qobject_cast<const QAbstractButton*>(&part) != nullptr ||
             qobject_cast<const QComboBox*>(&part) != nullptr) {
    EXPECT_GE(part.width(), part.sizeHint().width()) << NameOf(part);
    EXPECT_GE(part.height(), part.sizeHint().height()) << NameOf(part);
  } else {
    EXPECT_GE(part.height(), part.minimumSizeHint().height()) << NameOf(part);
    constexpr int kLetters = 3;  // to be typed in, and seen
    EXPECT_GE(part.width(), kLetters * part.fontMetrics().averageCharWidth()) << NameOf(part);
  }
}

/// Nothing reaches out of what holds it; what scrolls is reached by scrolling.
void ExpectReachable(const QWidget& part) {
  for (const QWidget* widget = &part; !widget->isWindow(); widget = widget->parentWidget()) {
    const QWidget& above = *widget->parentWidget();
    if (!IsViewport(above)) {
      EXPECT_TRUE(above.rect().contains(widget->geometry()))
          << NameOf(part) << ": " << NameOf(*widget) << " in " << NameOf(above);
    } else {
      EXPECT_LE(widget->width(), above.width()) << NameOf(*widget) << " scrolls sideways";
    }
  }
}

void ExpectWellLaidOut(const QWidget& window) {
  ExpectNothingOverlaps(window);
  for (const QWidget* part : PartsOf(window)) {
    ExpectTextFits(*part);
    ExpectReachable(*part);
  }
}

/// While it lives, the letters of all windows have another size.
class Letters {
 public:
  explicit Letters(int points) : usual_(QApplication::font()) {
    QFont font = usual_;
    font.setPointSize(points);
    QApplication::setFont(font);
  }
  Letters(const Letters&) = delete;
  Letters& operator=(const Letters&) = delete;
  Letters(Letters&&) = delete;
  Letters& operator=(Letters&&) = delete;
  ~Letters() { QApplication::setFont(usual_); }

 private:
  QFont usual_;
};

/// Starts a count, and stops it as soon as it has begun.
void ClickWhenItCounts(ProgramOnDesktop& user) {
  CommandButton& count = user.program.frmMain.cmdCountWords;
  QTimer stop;
  QObject::connect(&stop, &QTimer::timeout, [&] {
    if (user.program.State().Phase() != RunPhase::kCounting) return;
    stop.stop();
    count.PerformClick();
  });
  stop.start(1);
  user.Click(count);
}

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

using WindowLayout = WindowFixture;

TEST_F(WindowLayout, ListShowsThirtyLinesInAWindowOfUsualSize) {
  ASSERT_TRUE(user->Start());
  for (const bool finding : {false, true}) {
    if (finding) user->windows.Main().Finder().Open();
    user->windows.Main().resize(1024, 700);
    user->Settle();
    const ListView& list = user->windows.Main().List();
    EXPECT_GE(list.viewport()->height() / list.fontMetrics().lineSpacing(), 30);
  }
}

TEST_F(WindowLayout, ListShowsThirtyLinesBelowANoticeToo) {
  ASSERT_TRUE(user->Start());
  MainForm& frmMain = user->program.frmMain;
  frmMain.lblNotice.SetCaption("The text shows 1,770 of 12,586 words.");
  frmMain.lblNotice.SetVisible(true);
  for (CommandButton& command : frmMain.cmdNotice) {
    command.SetCaption("Export...");
    command.SetVisible(true);
  }
  for (const bool finding : {false, true}) {
    if (finding) user->windows.Main().Finder().Open();
    user->windows.Main().resize(1024, 700);
    user->Settle();
    const ListView& list = user->windows.Main().List();
    EXPECT_GE(list.viewport()->height() / list.fontMetrics().lineSpacing(), 30) << finding;
  }
}

TEST_F(WindowLayout, SettingsScrollOnlyWhereTheyMust) {
  const Letters letters(9);
  ASSERT_TRUE(user->Start());
  QWidget& window = user->windows.Main();
  const auto* area = window.findChild<QScrollArea*>("areaSettings");
  for (int language = 0; language < 2; ++language) {
    for (const int width : {800, 1024, 1600}) {
      window.resize(width, 760);
      user->Settle();
      EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << width;
    }
    user->Click(user->program.frmMain.cmdLanguage);
  }
}

TEST_F(WindowLayout, CountIsRunAndSeenWhileTheSettingsAreFolded) {
  ASSERT_TRUE(user->Start());
  QWidget& main = user->windows.Main();
  MainForm& frmMain = user->program.frmMain;
  auto& count = user->WidgetOf<QPushButton>(frmMain.cmdCountWords);
  auto& bar = *main.findChild<QProgressBar*>("barProgress");
  const QPoint place = count.mapTo(&main, QPoint(0, 0));
  for (const QSize size : {QSize(760, 560), QSize(1600, 1000)}) {
    main.resize(size);
    user->windows.Main().Fold().SetFolded(true);
    user->Settle();
    EXPECT_TRUE(count.isVisible());
    EXPECT_FALSE(bar.isVisible());
    frmMain.lblTotalNumOccurrences.SetProgress(Progress{1, 2});
    user->Settle();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_GE(bar.width(), 120);
    ExpectWellLaidOut(main);
    frmMain.lblTotalNumOccurrences.SetProgress(std::nullopt);
    count.setFocus();
    user->windows.Main().Fold().SetFolded(false);
    user->Settle();
    EXPECT_TRUE(count.isVisible());
    EXPECT_TRUE(count.hasFocus());
    EXPECT_FALSE(bar.isVisible());
    ExpectWellLaidOut(main);
  }
  main.resize(1024, 700);
  user->Settle();
  EXPECT_EQ(count.mapTo(&main, QPoint(0, 0)).x(), place.x());
}

TEST_F(WindowLayout, NothingJumpsWhenANoticeComesOrGoes) {
  ASSERT_TRUE(user->Start());
  MainForm& frmMain = user->program.frmMain;
  for (const QSize size : {QSize(760, 560), QSize(1600, 1000)}) {
    user->windows.Main().resize(size);
    frmMain.lblNotice.SetVisible(false);
    user->Settle();
    const QRect without = user->windows.Main().Views().geometry();
    frmMain.lblNotice.SetCaption("The text shows 1,770 of 12,586 words.");
    frmMain.lblNotice.SetVisible(true);
    frmMain.cmdNotice[0].SetCaption("Export...");
    frmMain.cmdNotice[0].SetVisible(true);
    user->Settle();
    EXPECT_EQ(user->windows.Main().Views().geometry(), without);
  }
}

TEST_F(WindowLayout, NothingMovesWhileAFilterIsTyped) {
  ASSERT_TRUE(user->Start());
  MainWindowView& window = user->windows.Main();
  std::string text;
  for (int i = 0; i < 4'000'000; ++i) text += "word ";
  user->program.Sources().ChooseText(folder.Write("long.txt", text));
  boxes.Answer(QMessageBox::Yes);
  ClickWhenItCounts(*user);
  window.Views().Show("table");
  window.Table().findChild<QComboBox*>()->setCurrentIndex(
      static_cast<int>(FilterKind::kExpression));
  auto& filter = *window.Table().findChild<QLineEdit*>();
  const int least = window.minimumSizeHint().width();
  for (const int width : {least, 760, 900, 1024, 1366}) {
    filter.clear();
    window.resize(width, 700);
    user->Settle();
    const QRect table = window.Table().View().geometry();
    const QRect box = filter.geometry();
    for (const char* const typed : {"w", "(", "nothing that there is"}) {
      filter.setText(typed);
      user->Settle();
      EXPECT_EQ(window.Table().View().geometry(), table) << width << typed;
      EXPECT_EQ(filter.geometry(), box) << width << typed;
      EXPECT_EQ(window.minimumSizeHint().width(), least) << width << typed;
    }
  }
}

TEST_F(WindowLayout, NoWindowOpensLargerThanItsScreen) {
  ASSERT_TRUE(user->Start());
  user->windows.Main().resize(5000, 5000);
  user->Click(user->program.frmMain.cmdQuit);
  user = std::make_unique<ProgramOnDesktop>();
  ASSERT_TRUE(user->Start());
  const QSize room = user->windows.Main().screen()->availableSize();
  for (const QWidget* window :
       {static_cast<QWidget*>(&user->windows.Main()), static_cast<QWidget*>(&user->windows.Panel()),
        static_cast<QWidget*>(&user->windows.Help())}) {
    EXPECT_LE(window->width(), room.width());
    EXPECT_LE(window->height(), room.height());
  }
  EXPECT_EQ(SizeOnScreen(QSize(1024, 700), QSize(1600, 1000)), QSize(1024, 700));
  EXPECT_EQ(SizeOnScreen(QSize(1024, 700), QSize(683, 384)), QSize(667, 336));
}

TEST_F(WindowLayout, WindowFitsOnASmallScreenOfDoubleSize) {
  ASSERT_TRUE(user->Start());
  const QSize screen = SizeOnScreen(QSize(1024, 700), QSize(683, 384));
  user->windows.Main().resize(screen);
  user->Settle();
  EXPECT_EQ(user->windows.Main().size(), screen);
  ExpectWellLaidOut(user->windows.Main());
}

TEST_F(WindowLayout, PanelAndHelpOpenOverTheMainWindowAndWholeOnTheScreen) {
  const QRect screen(0, 0, 1280, 900);
  EXPECT_EQ(PlaceOver(QRect(100, 100, 1024, 700), QSize(800, 552), screen), QPoint(204, 150));
  EXPECT_EQ(PlaceOver(QRect(900, 700, 400, 300), QSize(584, 352), screen), QPoint(680, 500));
  EXPECT_EQ(PlaceOver(QRect(0, 0, 100, 100), QSize(584, 352), screen), QPoint(0, 0));
  EXPECT_EQ(PlaceOver(QRect(0, 0, 1280, 900), QSize(2000, 1000), screen), QPoint(0, 0));
  ASSERT_TRUE(user->Start());
  QWidget& main = user->windows.Main();
  main.move(30, 40);
  user->Settle();
  user->Click(user->program.frmMain.cmdHelp);
  const QWidget& help = user->windows.Help();
  EXPECT_EQ(help.pos(),
            PlaceOver(main.frameGeometry(), help.size(), help.screen()->availableGeometry()));
}

TEST_F(WindowLayout, BoxesOfTheListStandOneBelowTheOther) {
  const Letters letters(9);
  ASSERT_TRUE(user->Start());
  const MainForm& frmMain = user->program.frmMain;
  user->windows.Main().resize(1024, 700);
  for (int language = 0; language < 2; ++language) {
    user->Settle();
    EXPECT_EQ(user->WidgetOf<QComboBox>(frmMain.cboWordOrder).x(),
              user->WidgetOf<QComboBox>(frmMain.cboDisplayFormat).x());
    user->Click(frmMain.cmdLanguage);
  }
}

TEST_F(WindowLayout, WhatFindSaysIsALineAndNotAColumn) {
  const Letters letters(9);
  ASSERT_TRUE(user->Start());
  std::string text;
  for (char a = 'a'; a <= 'z'; ++a) {
    for (char b = 'a'; b <= 'z'; ++b) {
      for (char c = 'a'; c <= 'z'; ++c) text += std::string("word") + a + b + c + " ";
    }
  }
  user->program.Sources().ChooseText(folder.Write("many.txt", text));
  boxes.Answer(QMessageBox::Ok);
  user->windows.Main().resize(1024, 700);
  user->Click(user->program.frmMain.cmdCountWords);
  FindBar& bar = user->windows.Main().Finder();
  bar.Open();
  QTest::keyClicks(bar.findChild<QLineEdit*>(), "wordzzz");
  user->Settle();
  const auto labels = bar.findChildren<QLabel*>();
  const auto outcome = std::ranges::find_if(labels, [](const QLabel* label) {
    return label->text().contains("below the end of this text");
  });
  ASSERT_NE(outcome, labels.end());
  EXPECT_LE((*outcome)->height(), 2 * (*outcome)->fontMetrics().lineSpacing());
}

TEST_F(WindowLayout, NoticesBearTheWindowsFontWhateverTheListsSize) {
  ASSERT_TRUE(user->Start());
  user->windows.Main().List().SetZoom(20);
  user->Settle();
  const MainForm& frmMain = user->program.frmMain;
  for (const Label* notice : {&frmMain.lblCopyrightNotice, &frmMain.lblOnlineDocumentation,
                              &frmMain.lblOrvandelSystems}) {
    const QFont font = user->WidgetOf<QLabel>(*notice).font();
    EXPECT_EQ(font.families(), user->windows.Main().font().families()) << notice->Name();
    EXPECT_EQ(font.pointSizeF(), user->windows.Main().font().pointSizeF()) << notice->Name();
  }
}

TEST(FixedFont, LettersOfAProportionalWishAreReplaced) {
  QFont wish("DejaVu Sans", 13);
  ASSERT_FALSE(QFontInfo(wish).fixedPitch());
  const QFont font = FixedPitchFont(wish);
  EXPECT_TRUE(QFontInfo(font).fixedPitch());
  EXPECT_EQ(font.pointSize(), 13);
  EXPECT_TRUE(QFontInfo(ListFont()).fixedPitch());
}

}  // namespace
}  // namespace quillomat
