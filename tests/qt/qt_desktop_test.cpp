// Boxes, dialogs and the clipboard of the toolkit.
#include "qt/qt_desktop.h"

#include <QClipboard>
#include <QDialog>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QInputDialog>
#include <QThread>
#include <filesystem>
#include <gmock/gmock.h>
#include <memory>

#include "support/environment.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

class QtDesktopTest : public testing::Test {
 protected:
  /// Does something to the dialog that comes next.
  template <class Dialog>
  static void WithDialog(std::function<void(Dialog&)> action) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer->deleteLater();
      timer->stop();
      action(*dialog);
    });
    timer->start(5);
  }

  /// Until a box may be answered by keys.
  static void WaitForKeys() { QTest::qWait(static_cast<int>((2 * BoxGuard::kPause).count())); }

  /// As a key that is held down repeats itself.
  static void Repeat(QWidget& box, Qt::Key key) {
    QTest::simulateEvent(&box, true, key, Qt::NoModifier, QString(), true);
  }

  TemporaryFolder folder;
  QtDesktop desktop;
};

/// Clicks that come within it are those of a double click.
class DoubleClickTime {
 public:
  explicit DoubleClickTime(int milliseconds) { Set(milliseconds); }
  DoubleClickTime(const DoubleClickTime&) = delete;
  DoubleClickTime& operator=(const DoubleClickTime&) = delete;
  DoubleClickTime(DoubleClickTime&&) = delete;
  DoubleClickTime& operator=(DoubleClickTime&&) = delete;
  ~DoubleClickTime() { Set(usual_); }

  static void Set(int milliseconds) { QApplication::setDoubleClickInterval(milliseconds); }

 private:
  int usual_ = QApplication::doubleClickInterval();
};

TEST_F(QtDesktopTest, KeyThatIsHeldAnswersNoBox) {
  WithDialog<QMessageBox>([](QMessageBox& box) {
    WaitForKeys();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space}) {
      Repeat(box, key);
      Repeat(*box.button(QMessageBox::No), key);
      EXPECT_TRUE(box.isVisible());
    }
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(desktop.ShowMessage({"?", "", MessageIcon::kQuestion, MessageButtons::kYesNo}),
            MessageAnswer::kYes);
  WithDialog<QInputDialog>([](QInputDialog& box) {
    WaitForKeys();
    auto& line = *box.findChild<QLineEdit*>();
    Repeat(line, Qt::Key_Return);
    EXPECT_TRUE(box.isVisible());
    line.clear();
    QTest::simulateEvent(&line, true, Qt::Key_A, Qt::NoModifier, "a", true);
    QTest::keyClick(&line, Qt::Key_Return);
  });
  EXPECT_EQ(desktop.AskForText({"Title", "Text", "/here"}), "a") << "letters may be held";
}

/// Keys for a box that has just come. False where the machine was so busy that it had not just
/// come.
bool KeysAreKeptFrom(QMessageBox& box, const QElapsedTimer& sincePress) {
  QElapsedTimer sinceBox;
  sinceBox.start();
  QEvent comes(QEvent::WindowActivate);
  QApplication::sendEvent(&box, &comes);
  QTest::keyClick(&box, Qt::Key_Escape);
  QTest::keyClick(&box, Qt::Key_N, Qt::AltModifier);
  if (sinceBox.elapsed() >= BoxGuard::kPause.count()) return false;
  EXPECT_TRUE(box.isVisible()) << "so soon";
  QTest::qWait(static_cast<int>(BoxGuard::kPause.count()) + 20);
  QTest::keyPress(&box, Qt::Key_Return);
  if (sincePress.elapsed() >= BoxGuard::kLongestSilence.count()) return false;
  EXPECT_TRUE(box.isVisible()) << "it went down before the box came";
  QTest::keyRelease(&box, Qt::Key_Return);
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_FALSE(box.isVisible());
  return true;
}

TEST_F(QtDesktopTest, KeyOfTheMomentBeforeABoxDoesNotAnswerIt) {
  constexpr int kMostTries = 50;
  bool inTime = false;
  for (int tries = 0; !inTime && tries < kMostTries; ++tries) {
    QWidget window;
    window.show();
    QElapsedTimer sincePress;
    sincePress.start();
    QTest::keyPress(&window, Qt::Key_Return);
    WithDialog<QMessageBox>([&](QMessageBox& box) {
      inTime = KeysAreKeptFrom(box, sincePress);
      if (box.isVisible()) box.reject();
    });
    const MessageAnswer answer =
        desktop.ShowMessage({"?", "", MessageIcon::kQuestion, MessageButtons::kYesNo});
    if (inTime) {
      EXPECT_EQ(answer, MessageAnswer::kYes);
    }
    QTest::keyRelease(&window, Qt::Key_Return);
  }
  EXPECT_TRUE(inTime);
}

TEST_F(QtDesktopTest, SecondClickOfADoubleClickDoesNotAnswerTheBoxOfTheFirst) {
  QWidget window;
  window.resize(300, 200);
  window.show();
  const QPoint place(150, 100);
  const DoubleClickTime longEnough(60'000);
  QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, place);
  WithDialog<QMessageBox>([&](QMessageBox& box) {
    QAbstractButton& yes = *box.button(QMessageBox::Yes);
    const QPoint middle = yes.mapTo(&box, yes.rect().center());
    box.move(window.mapToGlobal(place) - middle);
    QTest::mouseClick(&yes, Qt::LeftButton);
    EXPECT_TRUE(box.isVisible());
    DoubleClickTime::Set(0);  // from now on it is over
    QTest::mouseClick(&yes, Qt::LeftButton);
    EXPECT_FALSE(box.isVisible());
  });
  EXPECT_EQ(desktop.ShowMessage({"?", "", MessageIcon::kQuestion, MessageButtons::kYesNo}),
            MessageAnswer::kYes);
}

TEST_F(QtDesktopTest, RowOfBoxesAtOnePlaceIsClickedAwayOneAfterTheOther) {
  const DoubleClickTime longEnough(60'000);
  QPoint place;
  QElapsedTimer sinceClick;
  for (int box = 0; box < 3; ++box) {
    WithDialog<QMessageBox>([&, box](QMessageBox& shown) {
      QAbstractButton& ok = *shown.button(QMessageBox::Ok);
      if (box > 0) shown.move(place - ok.mapTo(&shown, ok.rect().center()));
      place = ok.mapToGlobal(ok.rect().center());
      if (box > 0) {
        QTest::mouseClick(&ok, Qt::LeftButton);  // nobody can have read it
        const bool isLate = sinceClick.elapsed() >= BoxGuard::kPause.count();
        EXPECT_TRUE(shown.isVisible() || isLate);
      }
      WaitForKeys();
      if (shown.isVisible()) QTest::mouseClick(&ok, Qt::LeftButton);
      EXPECT_FALSE(shown.isVisible()) << box;
      if (shown.isVisible()) shown.reject();
      sinceClick.start();
    });
    desktop.ShowMessage({"one of a row", ""});
  }
}

TEST_F(QtDesktopTest, KeyWhoseReleaseTheBoxCameBeforeAnswersAfterAWhile) {
  QWidget window;
  window.show();
  QTest::keyPress(&window, Qt::Key_Return);
  WithDialog<QMessageBox>([](QMessageBox& box) {
    QTest::qWait(static_cast<int>(BoxGuard::kLongestSilence.count()) + 100);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_FALSE(box.isVisible());
  });
  EXPECT_EQ(desktop.ShowMessage({"?", "", MessageIcon::kQuestion, MessageButtons::kYesNo}),
            MessageAnswer::kYes);
}

TEST_F(QtDesktopTest, EnterIsCancelWhereOkWouldLoseSomethingUntilTheAnswerIsAnother) {
  InputBox box{"Title", "Text", "/here"};
  box.okCaption = "Go";
  box.cancelCaption = "Leave";
  box.okLoses = true;
  const auto enter = [](QInputDialog& shown) {
    WaitForKeys();
    QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Return);
  };
  WithDialog<QInputDialog>([enter](QInputDialog& shown) {
    EXPECT_EQ(shown.okButtonText(), "Go");
    EXPECT_EQ(shown.cancelButtonText(), "Leave");
    enter(shown);
  });
  EXPECT_EQ(desktop.AskForText(box), "");
  box.okCaption.clear();
  box.cancelCaption.clear();
  WithDialog<QInputDialog>(enter);
  EXPECT_EQ(desktop.AskForText(box), "");
  WithDialog<QInputDialog>([enter](QInputDialog& shown) {
    shown.setTextValue("/there");
    enter(shown);
  });
  EXPECT_EQ(desktop.AskForText(box), "/there");
  WithDialog<QInputDialog>([](QInputDialog& shown) {
    WaitForKeys();
    QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Tab);
    QTest::keyClick(shown.focusWidget(), Qt::Key_Return);
  });
  EXPECT_EQ(desktop.AskForText(box), "/here") << "with the keyboard on it, OK is OK";
}

TEST_F(QtDesktopTest, BoxShowsWhatItIsToldAndGivesTheAnswer) {
  for (const auto& [button, answer] : {std::pair(QMessageBox::Yes, MessageAnswer::kYes),
                                       {QMessageBox::No, MessageAnswer::kNo},
                                       {QMessageBox::Cancel, MessageAnswer::kCancel}}) {
    WithDialog<QMessageBox>([clicked = button](QMessageBox& box) {
      EXPECT_EQ(box.text(), "One\nTwo <b>");
      EXPECT_EQ(box.windowTitle(), "Title");
      EXPECT_EQ(box.icon(), QMessageBox::Question);
      box.button(clicked)->click();
    });
    EXPECT_EQ(desktop.ShowMessage({"One\r\nTwo <b>", "Title", MessageIcon::kQuestion,
                                   MessageButtons::kYesNoCancel}),
              answer);
  }
}

TEST_F(QtDesktopTest, EscapeIsCancelOrNoOrOk) {
  const auto escape = [](QMessageBox& box) {
    WaitForKeys();
    QTest::keyClick(&box, Qt::Key_Escape);
  };
  for (const auto& [buttons, answer] : {std::pair(MessageButtons::kOk, MessageAnswer::kOk),
                                        {MessageButtons::kOkCancel, MessageAnswer::kCancel},
                                        {MessageButtons::kYesNo, MessageAnswer::kNo},
                                        {MessageButtons::kYesNoCancel, MessageAnswer::kCancel}}) {
    WithDialog<QMessageBox>(escape);
    EXPECT_EQ(desktop.ShowMessage({"?", "", MessageIcon::kNone, buttons}), answer);
  }
}

TEST_F(QtDesktopTest, BoxOfFewWordsIsAsWideAsItsTitle) {
  const std::string title(40, 'W');
  int width = 0;
  int wanted = 0;
  WithDialog<QMessageBox>([&](QMessageBox& box) {
    width = box.width();
    wanted = box.fontMetrics().horizontalAdvance(box.windowTitle());
    box.accept();
  });
  EXPECT_EQ(desktop.ShowMessage({"Saved.", title}), MessageAnswer::kOk);
  EXPECT_GT(width, wanted);
}

TEST_F(QtDesktopTest, EscapeDoesNotAnswerWhereNoLoses) {
  WithDialog<QMessageBox>([](QMessageBox& box) {
    WaitForKeys();
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_TRUE(box.isVisible());
    QTest::keyClick(&box, Qt::Key_Return);
  });
  MessageBox question{"?", "", MessageIcon::kQuestion, MessageButtons::kYesNo};
  question.noLoses = true;
  EXPECT_EQ(desktop.ShowMessage(question), MessageAnswer::kYes);
}

TEST_F(QtDesktopTest, InputBoxGivesTheTextOrNothing) {
  const InputBox box{"Title", "One\r\nTwo", "/here"};
  WithDialog<QInputDialog>([](QInputDialog& dialog) {
    EXPECT_EQ(dialog.labelText(), "One\nTwo");
    EXPECT_EQ(dialog.textValue(), "/here");
    dialog.setTextValue("/there");
    dialog.accept();
  });
  EXPECT_EQ(desktop.AskForText(box), "/there");
  WithDialog<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(desktop.AskForText(box), "");
}

TEST_F(QtDesktopTest, FileDialogIsSetUpAsAsked) {
  const std::string path = folder.Write("mine.qlm", "");
  FileDialog dialog;
  dialog.title = "Specify";
  dialog.filter = "QLM state files (*.qlm) | *.qlm";
  dialog.fileMustExist = true;
  WithDialog<QFileDialog>([&](QFileDialog& shown) {
    EXPECT_EQ(shown.windowTitle(), "Specify");
    EXPECT_EQ(shown.nameFilters(), QStringList{"QLM state files (*.qlm)"});
    EXPECT_EQ(shown.fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(shown.acceptMode(), QFileDialog::AcceptOpen);
    shown.setDirectory(ToQt(folder.Path()));
    shown.selectFile("mine.qlm");
    shown.findChild<QLineEdit*>("fileNameEdit")->setText(ToQt(path));
    static_cast<QDialog&>(shown).done(QDialog::Accepted);
  });
  EXPECT_EQ(desktop.ChooseFile(dialog), path);
  dialog.mode = FileDialog::Mode::kSave;
  dialog.filter = "Any text file (*.*) | *.*";
  dialog.fileMustExist = false;
  WithDialog<QFileDialog>([](QFileDialog& shown) {
    EXPECT_EQ(shown.nameFilters(), QStringList{"Any text file (*)"});
    EXPECT_EQ(shown.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_TRUE(shown.testOption(QFileDialog::DontConfirmOverwrite));
    EXPECT_EQ(shown.defaultSuffix(), "");
    shown.reject();
  });
  EXPECT_EQ(desktop.ChooseFile(dialog), std::nullopt);
}

TEST_F(QtDesktopTest, ClipboardGoesThereAndBack) {
  desktop.PutClipboardText("one\r\ntwo");
  EXPECT_EQ(QApplication::clipboard()->text(), "one\ntwo");
  EXPECT_EQ(desktop.ClipboardText(), "one\ntwo");
  desktop.ClearClipboard();
  EXPECT_EQ(desktop.ClipboardText(), "");
}

TEST_F(QtDesktopTest, EveryBoxOfARowBelongsToTheWindow) {
  QWidget window;
  desktop.SetWindow(&window);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (int i = 0; i < 2; ++i) {
    WithDialog<QMessageBox>([&window](QMessageBox& box) {
      EXPECT_EQ(box.parentWidget(), &window);
      box.button(QMessageBox::Ok)->click();
    });
    desktop.ShowMessage({"One", "Title"});
    window.clearFocus();
    QApplication::setActiveWindow(nullptr);  // until the window system gives it back
  }
}

TEST_F(QtDesktopTest, DialogOpensInTheFolder) {
  FileDialog dialog;
  dialog.filter = "Any text file (*.*) | *.*";
  dialog.folder = folder.Path();
  WithDialog<QFileDialog>([&](QFileDialog& shown) {
    EXPECT_EQ(FromQt(shown.directory().path()), folder.Path());
    shown.reject();
  });
  EXPECT_EQ(desktop.ChooseFile(dialog), std::nullopt);
}

TEST_F(QtDesktopTest, DocumentsAreInAFolderThatIsThere) {
  EXPECT_TRUE(QFileInfo(ToQt(desktop.DocumentsFolder())).isDir());
}

#ifdef Q_OS_LINUX
/// The shell's command fails, but only when it has been started.
class FailingShell : public QtDesktopTest {
 protected:
  FailingShell() {
    const std::string command = folder.Write("xdg-open", "#!/bin/sh\nexit 3\n");
    std::filesystem::permissions(command, std::filesystem::perms(0755));
  }

  static void WaitUntil(const std::function<bool()>& happened) {
    for (int step = 0; step < 4000 && !happened(); ++step) {
      QApplication::processEvents();
      QThread::msleep(5);
    }
    EXPECT_TRUE(happened());
  }

  ScopedVariable path_{"PATH", folder.Path()};
};

TEST_F(FailingShell, IsToldOfInTheThreadOfTheWindows) {
  const QThread* thread = nullptr;
  EXPECT_TRUE(desktop.OpenWithShell("https://quillomat.example/",
                                    [&thread] { thread = QThread::currentThread(); }));
  WaitUntil([&thread] { return thread != nullptr; });
  EXPECT_EQ(thread, qApp->thread());
}

TEST_F(FailingShell, IsOfNoInterestToADesktopThatIsGone) {
  bool told = false;
  auto held = std::make_shared<int>();
  const std::weak_ptr<int> holder = held;
  {
    QtDesktop other;
    EXPECT_TRUE(other.OpenWithShell("https://quillomat.example/",
                                    [&told, held = std::move(held)] { told = true; }));
  }
  WaitUntil([&holder] { return holder.expired(); });
  QApplication::processEvents();
  EXPECT_FALSE(told);
}
#endif

}  // namespace
}  // namespace quillomat
