// Controls and widgets: what one does, the other shows.
#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWheelEvent>
#include <QWindow>
#include <gmock/gmock.h>
#include <map>

#include "window_fixture.h"

namespace quillomat {
namespace {

class FormWindowTest : public WindowFixture {
 protected:
  FormWindowTest() { EXPECT_TRUE(user->Start()); }

  MainForm& frmMain = user->program.frmMain;
  ParamsForm& frmParams = user->program.frmParams;
};

class SmallForm final : public Form {
 public:
  SmallForm() : Form("frmSmall", "Small") {}
  CommandButton cmdGo{*this, "cmdGo", "Go"};
};

TEST(FormWindowBinding, ControlWithoutAWidgetIsAnError) {
  SmallForm form;
  FormWindow window(form);
  EXPECT_THROW(window.BindControls(), std::logic_error);
}

TEST(FormWindowBinding, WidgetWithoutAControlIsAnError) {
  SmallForm form;
  FormWindow window(form);
  auto* go = new QPushButton(&window);
  go->setObjectName("cmdGo");
  auto* stray = new QLineEdit(&window);
  stray->setObjectName("txbStray");
  EXPECT_THROW(window.BindControls(), std::logic_error);
}

TEST(FormWindowBinding, WidgetOfAnotherKindIsAnError) {
  SmallForm form;
  FormWindow window(form);
  auto* go = new QLineEdit(&window);
  go->setObjectName("cmdGo");
  EXPECT_THROW(window.BindControls(), std::logic_error);
}

TEST_F(FormWindowTest, EveryControlIsShownAsItIs) {
  for (const Form* form : {static_cast<const Form*>(&frmMain), static_cast<const Form*>(&frmParams),
                           static_cast<const Form*>(&user->program.frmHelp),
                           static_cast<const Form*>(&user->program.frmExport)}) {
    for (const Control* control : form->Controls()) {
      SCOPED_TRACE(control->Name());
      auto& widget = user->WidgetOf<QWidget>(*control);
      EXPECT_EQ(widget.isEnabledTo(widget.window()), control->Enabled());
      EXPECT_EQ(widget.isVisibleTo(widget.window()), control->Visible());
      EXPECT_EQ(FromQt(widget.toolTip()), control->ToolTip());
      if (control->CanTakeFocus()) {
        QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&widget);
        EXPECT_NE(read->text(QAccessible::Name), "");
        EXPECT_NE(read->text(QAccessible::Name), widget.toolTip());
        EXPECT_EQ(read->text(QAccessible::Description), widget.toolTip());
      }
      if (const auto* button = dynamic_cast<QAbstractButton*>(&widget)) {
        QString text = button->text();
        EXPECT_EQ(FromQt(text.remove(QLatin1Char('&'))),
                  dynamic_cast<const CaptionedControl&>(*control).Caption());
      }
    }
  }
}

TEST_F(FormWindowTest, ScreenReaderTellsControlsApart) {
  for (int language = 0; language < 2; ++language) {
    for (const Form* form :
         {static_cast<const Form*>(&frmMain), static_cast<const Form*>(&frmParams)}) {
      std::map<std::pair<int, QString>, std::string> names;
      for (const Control* control : form->Controls()) {
        if (!control->CanTakeFocus()) continue;
        QAccessibleInterface* read =
            QAccessible::queryAccessibleInterface(&user->WidgetOf<QWidget>(*control));
        const auto [other, isNew] =
            names.try_emplace({read->role(), read->text(QAccessible::Name)}, control->Name());
        EXPECT_TRUE(isNew) << control->Name() << " is called as " << other->second << ", "
                           << FromQt(other->first.second);
      }
    }
    user->Click(frmMain.cmdLanguage);
  }
  EXPECT_EQ(user->WidgetOf<QWidget>(frmMain.cmdClearFolder).accessibleName(), "Clear Folder");
  EXPECT_EQ(user->WidgetOf<QWidget>(frmParams.chkIgnoreShortWords).accessibleName(),
            "Ignore words with fewer than characters");
}

TEST_F(FormWindowTest, TabVisitsEveryControlThatCanBeUsed) {
  QWindow* window = user->windows.Main().windowHandle();
  QSet<const QWidget*> visited;
  for (int keys = 0; keys < 100; ++keys) {
    QTest::keyClick(window, Qt::Key_Tab);
    user->Settle();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    visited.insert(QApplication::focusWidget());
  }
  for (const Control* control : frmMain.Controls()) {
    const auto& widget = user->WidgetOf<QWidget>(*control);
    // Of a group of options the arrows reach the others.
    const auto* option = control->As<OptionButton>();
    if (!control->CanTakeFocus() || (option != nullptr && !option->Value())) continue;
    EXPECT_TRUE(visited.contains(&widget)) << control->Name();
  }
}

TEST_F(FormWindowTest, TypedTextIsTheControlsAtOnce) {
  user->Type(frmMain.txbFolder, "/tm");
  EXPECT_EQ(frmMain.txbFolder.Text(), "/tm");
  frmMain.txbFolder.SetText("/other");
  user->Settle();
  EXPECT_EQ(user->WidgetOf<QLineEdit>(frmMain.txbFolder).text(), "/other");
}

TEST_F(FormWindowTest, LeavingABoxIsLeavingItsControl) {
  boxes.Answer(QMessageBox::Ok);
  user->Type(frmMain.txbFolder, folder / "none");
  EXPECT_EQ(frmMain.Focused(), &frmMain.txbFolder);
  QTest::keyClick(&user->WidgetOf<QWidget>(frmMain.txbFolder), Qt::Key_Tab);
  user->Settle();
  EXPECT_THAT(boxes.Texts(), testing::ElementsAre("Folder does not exist."));
}

TEST_F(FormWindowTest, LeavingABoxForAnotherWindowIsLeavingIt) {
  user->Click(frmMain.cmdSetParameters);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&user->windows.Panel()));
  user->Type(frmParams.txbWordsToIgnoreOrCount[0], "Cat, dog.");
  user->Settle();
  user->windows.Main().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&user->windows.Main()));
  user->Settle();
  EXPECT_EQ(frmParams.txbWordsToIgnoreOrCount[0].Text(), "cat dog");
  EXPECT_EQ(user->WidgetOf<QLineEdit>(frmParams.txbWordsToIgnoreOrCount[0]).text(), "cat dog");
}

TEST_F(FormWindowTest, BoxThatTheProgramSetsBackIsShownSo) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat\n"));
  user->Click(frmMain.cmdCountWords);
  user->Click(frmMain.cmdSetParameters);
  boxes.Answer(QMessageBox::No);
  user->Click(frmParams.chkAllowWordsWithPeriods);
  EXPECT_THAT(boxes.Texts(),
              testing::ElementsAre("Changing this entails reading the file anew.  Is this OK?"));
  EXPECT_FALSE(user->WidgetOf<QCheckBox>(frmParams.chkAllowWordsWithPeriods).isChecked());
  EXPECT_FALSE(frmParams.chkAllowWordsWithPeriods.IsChecked());
}

TEST_F(FormWindowTest, TextComposedInTheListIsTheControls) {
  auto& list = user->windows.Main().List();
  list.setFocus();
  QTest::keyClicks(&list, "one");
  QTest::keyClick(&list, Qt::Key_Return);
  QTest::keyClicks(&list, "two");
  user->Settle();
  EXPECT_EQ(frmMain.txbOutput.Text(), "one\r\ntwo");
  EXPECT_EQ(user->Shown(), "one\ntwo");
}

TEST_F(FormWindowTest, LanguageChangesEveryCaptionAtOnce) {
  user->Click(frmMain.cmdLanguage);
  QString quit = user->WidgetOf<QPushButton>(frmMain.cmdQuit).text();
  EXPECT_EQ(quit.remove(QLatin1Char('&')), "Beenden");
  EXPECT_EQ(user->WidgetOf<QGroupBox>(frmMain.fraOutput).title(), "Liste");
  user->Click(frmMain.cmdLanguage);
  EXPECT_EQ(user->WidgetOf<QGroupBox>(frmMain.fraOutput).title(), "List");
}

TEST_F(FormWindowTest, ColumnThatIsPastedIsOneLine) {
  auto& line = user->WidgetOf<QLineEdit>(frmParams.txbWordsToIgnoreOrCount[0]);
  line.insert("the\r\nand\nof");
  user->Settle();
  EXPECT_EQ(frmParams.txbWordsToIgnoreOrCount[0].Text(), "the and of");
  EXPECT_EQ(line.text(), "the and of");
}

TEST_F(FormWindowTest, TypingGoesOnBehindAColumnThatWasPasted) {
  TextBox& box = frmParams.txbWordsToIgnoreOrCount[0];
  box.SetText("zebra");
  user->Settle();
  auto& line = user->WidgetOf<QLineEdit>(box);
  line.setFocus();
  line.setCursorPosition(0);
  line.insert("alpha\nbeta\r\ngamma\n");
  user->Settle();
  QTest::keyClicks(&line, "delta ");
  user->Settle();
  EXPECT_EQ(box.Text(), "alpha beta gamma delta zebra");
}

TEST_F(FormWindowTest, TextThatTheProgramShowsIsSeenFromItsStart) {
  TextBox& box = frmParams.txbWordsToIgnoreOrCount[0];
  box.SetText(std::string(2000, 'a'));
  user->Settle();
  EXPECT_EQ(user->WidgetOf<QLineEdit>(box).cursorPosition(), 0);
}

TEST_F(FormWindowTest, NoTextIsTooLongForItsBox) {
  TextBox& box = frmParams.txbWordsToIgnoreOrCount[0];
  const std::string words(50'000, 'a');
  box.SetText(words);
  user->Settle();
  auto& line = user->WidgetOf<QLineEdit>(box);
  line.setFocus();
  line.setCursorPosition(0);
  QTest::keyClick(&line, Qt::Key_Delete);
  user->Settle();
  EXPECT_EQ(box.Text().size(), words.size() - 1);
}

TEST_F(FormWindowTest, LabelIsClickedWithTheLeftButtonOverIt) {
  auto& label = user->WidgetOf<QLabel>(frmMain.lblCopyrightNotice);
  int clicks = 0;
  frmMain.lblCopyrightNotice.Click.Connect([&clicks] { ++clicks; });
  QTest::mouseClick(&label, Qt::RightButton);
  EXPECT_EQ(clicks, 0);
  QTest::mousePress(&label, Qt::LeftButton);
  QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(-20, -20));
  EXPECT_EQ(clicks, 0);
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  boxes.Answer(QMessageBox::Ok);
  QTest::mouseClick(&label, Qt::LeftButton);
  QTest::mouseDClick(&label, Qt::LeftButton);
  QTest::mouseRelease(&label, Qt::LeftButton);
  user->Settle();
  EXPECT_EQ(clicks, 2);
}

TEST_F(FormWindowTest, HelpKeyLeavesTheFocusWhereItIs) {
  user->WidgetOf<QWidget>(frmMain.cmdCountWords).setFocus();
  user->Settle();
  QTest::keyClick(&user->WidgetOf<QWidget>(frmMain.cmdCountWords), Qt::Key_F1);
  user->Settle();
  EXPECT_TRUE(user->windows.Help().isVisible());
  EXPECT_EQ(user->windows.Main().focusWidget(), &user->WidgetOf<QWidget>(frmMain.cmdCountWords));
}

TEST_F(FormWindowTest, HelpKeyShowsHelpOnceWhereverItIsPressed) {
  int shown = 0;
  user->program.frmHelp.Raised.Connect([&shown] { ++shown; });
  int expected = 0;
  for (const Control* place : {static_cast<const Control*>(&frmMain.cmdCountWords),
                               static_cast<const Control*>(&frmMain.cmdQuit),
                               static_cast<const Control*>(&frmMain.txbFile[0])}) {
    SCOPED_TRACE(place->Name());
    QTest::keyClick(&user->WidgetOf<QWidget>(*place), Qt::Key_F1);
    user->Settle();
    EXPECT_EQ(shown, ++expected);
  }
}

TEST_F(FormWindowTest, ClosingThePanelByItsFrameIsClosingItOnce) {
  user->Click(frmMain.cmdSetParameters);
  int closed = 0;
  user->program.frmParams.cmdClose.Click.Connect([&closed] { ++closed; });
  int focused = 0;
  frmMain.FocusMoved.Connect([&focused] { ++focused; });
  user->windows.Panel().close();
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(focused, 1);
  user->Settle();
  EXPECT_FALSE(user->windows.Panel().isVisible());
}

TEST_F(FormWindowTest, MinimizedPanelComesBackWithItsCommand) {
  user->Click(frmMain.cmdSetParameters);
  user->windows.Panel().showMinimized();
  user->Settle();
  user->Click(frmMain.cmdSetParameters);
  EXPECT_FALSE(user->windows.Panel().isMinimized());
}

TEST_F(FormWindowTest, MinimizedHelpComesBackWithF1) {
  FormWindow& help = user->windows.Help();
  QTest::keyClick(&user->WidgetOf<QWidget>(frmMain.cmdCountWords), Qt::Key_F1);
  user->Settle();
  EXPECT_TRUE(help.isVisible());
  help.showMinimized();
  user->Settle();
  QTest::keyClick(&user->WidgetOf<QWidget>(frmMain.cmdCountWords), Qt::Key_F1);
  user->Settle();
  EXPECT_FALSE(help.isMinimized());
}

TEST_F(FormWindowTest, HelpWindowLeavesItsMarginsWhateverItsSize) {
  user->Click(frmMain.cmdHelp);
  FormWindow& help = user->windows.Help();
  const auto& screen = user->WidgetOf<QWidget>(user->program.frmHelp.txbHelpScreen);
  const auto& close = user->WidgetOf<QWidget>(user->program.frmHelp.cmdClose);
  for (const QSize size : {QSize(700, 500), QSize(1000, 800)}) {
    help.resize(size);
    user->Settle();
    EXPECT_NEAR(screen.width(), size.width() - 350 / 15.0, 1.0);
    EXPECT_NEAR(screen.height(), size.height() - 1080 / 15.0, 1.0);
    const QPoint middle = close.mapTo(&help, close.rect().center());
    EXPECT_NEAR(close.mapTo(&help, QPoint(0, 0)).y(), size.height() - 800 / 15.0, 1.0);
    EXPECT_NEAR(middle.x(), size.width() / 2.0, 2.0);
  }
}

TEST_F(FormWindowTest, FocusIsWhereTheFormSaysAfterAChangeOfFormat) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog\n"));
  frmMain.txbFile[1].SetText(folder / "list.txt");
  user->Click(frmMain.cmdCountWords);
  auto& combo = user->WidgetOf<QComboBox>(frmMain.cboDisplayFormat);
  for (const int format : {7, 8}) {
    frmParams.chkWarnOnOverwrite.SetChecked(false);
    combo.setFocus(Qt::MouseFocusReason);
    combo.setCurrentIndex(format);
    emit combo.activated(format);
    user->Settle();
    EXPECT_EQ(frmMain.Focused(), &frmMain.cmdCountWords);
    EXPECT_TRUE(user->WidgetOf<QWidget>(frmMain.cmdCountWords).hasFocus());
  }
}

TEST_F(FormWindowTest, NoNeighbourGetsTheFocusOfAWidgetThatIsDisabled) {
  auto& combo = user->WidgetOf<QComboBox>(frmMain.cboDisplayFormat);
  combo.setFocus();
  user->Settle();
  frmMain.cboDisplayFormat.SetEnabled(false);
  user->windows.ShowChanges();
  EXPECT_EQ(user->windows.Main().focusWidget(), nullptr);
  frmMain.cboDisplayFormat.SetEnabled(true);
  user->windows.ShowChanges();
  EXPECT_TRUE(combo.hasFocus()) << "the form has never said otherwise";
}

TEST_F(FormWindowTest, FastClickOnClearLeavesTheFocusToTheProgram) {
  frmMain.txbFile[0].EnterText(folder / "a.txt");
  frmMain.txbOutput.SetText("x");
  user->Settle();
  auto& clear = user->WidgetOf<QWidget>(frmMain.cmdClearOutput);
  clear.setFocus(Qt::MouseFocusReason);
  QTest::mouseClick(&clear, Qt::LeftButton);  // before anything that is pending happens
  user->Settle();
  EXPECT_EQ(frmMain.Focused(), &frmMain.cmdCountWords);
  EXPECT_TRUE(user->WidgetOf<QWidget>(frmMain.cmdCountWords).hasFocus());
}

TEST_F(FormWindowTest, ClickThatLeavesABadBoxIsCarriedOut) {
  user->Type(frmMain.txbFolder, folder / "none");
  auto& clear = user->WidgetOf<QWidget>(frmMain.cmdClearFolder);
  clear.setFocus(Qt::MouseFocusReason);
  QTest::mousePress(&clear, Qt::LeftButton);
  user->Settle();
  EXPECT_THAT(boxes.Texts(), testing::IsEmpty()) << "not in the middle of the click";
  QTest::mouseRelease(&clear, Qt::LeftButton);
  user->Settle();
  EXPECT_EQ(frmMain.txbFolder.Text(), "");
  EXPECT_THAT(boxes.Texts(), testing::IsEmpty());
}

TEST_F(FormWindowTest, WheelChangesNoComboBoxThatTheKeyboardIsNotIn) {
  auto& combo = user->WidgetOf<QComboBox>(frmMain.cboDisplayFormat);
  const auto turn = [&combo] {
    QWheelEvent wheel(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &wheel);
  };
  user->WidgetOf<QWidget>(frmMain.cmdCountWords).setFocus();
  turn();
  EXPECT_EQ(combo.currentIndex(), 0);
  combo.setFocus();
  turn();
  EXPECT_EQ(combo.currentIndex(), 1);
}

TEST_F(FormWindowTest, FormatThatIsOfNoUseIsGreyInTheDropDownAndSaysWhy) {
  auto& combo = user->WidgetOf<QComboBox>(frmMain.cboDisplayFormat);
  combo.showPopup();
  user->Settle();
  const auto flags = [&combo](int row) { return combo.model()->index(row, 0).flags(); };
  EXPECT_FALSE(flags(11) & Qt::ItemIsEnabled);
  EXPECT_TRUE(flags(10) & Qt::ItemIsEnabled);
  EXPECT_NE(combo.itemData(11, Qt::ToolTipRole).toString(), "");
  EXPECT_EQ(combo.itemData(10, Qt::ToolTipRole).toString(), "");
  combo.hidePopup();
  boxes.Answer(QMessageBox::Ok);
  user->Choose(frmMain.cboDisplayFormat, 11);
  ASSERT_EQ(boxes.TitlesSeen().size(), 1U);
  EXPECT_EQ(boxes.TitlesSeen()[0], "Invalid display format");
}

TEST_F(FormWindowTest, OpenListOfEncodingsTellsWhomTheyAreFor) {
  user->Click(frmMain.cmdSetParameters);
  auto& encoding = user->WidgetOf<QComboBox>(frmParams.cboEncoding);
  const int place = encoding.findText("Windows-1250");
  ASSERT_GE(place, 0) << "the name alone stands in the closed box";
  const auto shown = [&encoding](int index) {
    return FromQt(encoding.itemData(index, Qt::AccessibleTextRole).toString());
  };
  EXPECT_EQ(shown(place), "Windows-1250 (Central European)");
  encoding.showPopup();
  user->Settle();
  EXPECT_GE(encoding.view()->width(), encoding.view()->sizeHintForColumn(0));
  encoding.hidePopup();
  user->Click(frmMain.cmdLanguage);
  EXPECT_EQ(shown(place), "Windows-1250 (mitteleurop\u00E4isch)");
}

TEST_F(FormWindowTest, KeysInTheListAreUndoneAndTheProgramsTextIsNot) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog\n"));
  user->Click(frmMain.cmdCountWords);
  auto& list = user->windows.Main().List();
  const QString shown = list.toPlainText();
  list.setFocus();
  list.selectAll();
  QTest::keyClicks(&list, "x");
  user->Settle();
  EXPECT_EQ(frmMain.txbOutput.Text(), "x");
  QTest::keySequence(&list, QKeySequence::Undo);
  QTest::keySequence(&list, QKeySequence::Undo);
  user->Settle();
  EXPECT_EQ(list.toPlainText(), shown);
  EXPECT_EQ(ToQtLines(frmMain.txbOutput.Text()), shown);
}

TEST_F(FormWindowTest, EnterInTheListCountsUnlessATextIsBeingWrittenThere) {
  user->program.Sources().ChooseText(folder.Write("a.txt", "cat dog\n"));
  auto& list = user->windows.Main().List();
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Return);
  user->Settle();
  EXPECT_THAT(user->Shown(), testing::HasSubstr("dog"));
  list.setFocus();
  QTest::keyClicks(&list, "y");
  QTest::keyClick(&list, Qt::Key_Return);
  user->Settle();
  EXPECT_THAT(user->Shown(), testing::StartsWith("y\n"));
  QTest::keyClick(&list, Qt::Key_Return, Qt::ControlModifier);
  user->Settle();
  EXPECT_THAT(user->Shown(), testing::Not(testing::StartsWith("y\n")));
}

TEST_F(FormWindowTest, PanelAndHelpBelongToTheMainWindow) {
  user->Click(frmMain.cmdSetParameters);
  for (const FormWindow* window : {&user->windows.Panel(), &user->windows.Help()}) {
    EXPECT_EQ(window->parentWidget(), &user->windows.Main());
    EXPECT_TRUE(window->isWindow());
    EXPECT_TRUE(window->windowFlags() & Qt::WindowMinimizeButtonHint);
  }
}

}  // namespace
}  // namespace quillomat
