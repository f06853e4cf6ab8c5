// What a newcomer does in the first minutes, with real keys and a real mouse: the window system is
// told of them by xdotool, from a thread of their own, while the program runs as it always does.
// Run by first_minutes.sh.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QThread>
#include <algorithm>
#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

#include "qt/path_suggestions.h"
#include "qt/program_windows.h"
#include "qt/text_conversion.h"

namespace quillomat {
namespace {

class Newcomer {
 public:
  Newcomer(Program& program, Windows& windows) : program_(program), windows_(windows) {}

  void LiveThroughTheFirstMinutes() {
    WaitUntil("the window is there", [this] { return windows_.Main().isActiveWindow(); });
    ChooseAndCount();
    NameTheOutputFile();
    ChangeTheFormat();
    ClickFast();
    TypeAPath();
    LookForAWord();
    LeaveABadFolder();
    OpenTheParameters();
    EditAWordsFileByHand();
    Quit();
  }

 private:
  // What can be seen, asked in the program's own thread.

  template <class Question>
  auto Ask(Question question) {
    decltype(question()) answer{};
    QMetaObject::invokeMethod(
        qApp, [&] { answer = question(); }, Qt::BlockingQueuedConnection);
    return answer;
  }

  void WaitUntil(const char* what, const std::function<bool()>& isSo) {
    constexpr int kTries = 400;
    for (int i = 0; i < kTries; ++i, QThread::msleep(50)) {
      if (Ask(isSo)) return;
    }
    throw std::runtime_error(what);
  }

  void Expect(const char* what, const std::function<bool()>& isSo) {
    QThread::msleep(600);  // what comes uninvited needs a moment, too
    if (!Ask(isSo)) throw std::runtime_error(what);
  }

  /// And it has the keys.
  static bool IsBoxInFront() {
    const QWidget* box = QApplication::activeModalWidget();
    return box != nullptr && box->isActiveWindow();
  }
  bool NoBox() { return QApplication::activeModalWidget() == nullptr; }
  bool HasFocus(const Control& control) {
    return program_.frmMain.Focused() == &control && windows_.Main().WidgetOf(control).hasFocus();
  }
  /// What is offered below a box.
  bool IsOffering(const Control& control) {
    const QObjectList& parts = windows_.Main().WidgetOf(control).children();
    return std::any_of(parts.begin(), parts.end(), [](const QObject* part) {
      const auto* suggestions = dynamic_cast<const PathSuggestions*>(part);
      return suggestions != nullptr && suggestions->IsOffering();
    });
  }

  // What a hand does.

  static void Tool(const QStringList& arguments) {
    if (QProcess::execute(QStringLiteral("xdotool"), arguments) != 0) {
      throw std::runtime_error("xdotool fails");
    }
  }
  static void Type(const QString& text) {
    Tool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("25"), text});
  }
  static void Press(const char* keys) {
    Tool({QStringLiteral("key"), QString::fromLatin1(keys)});
    QThread::msleep(150);
  }
  /// Having read it: a key that comes with a box answers none.
  static void AnswerTheBox() {
    QThread::msleep(500);
    Press("Return");
  }
  static void ClickAt(QPoint place, int button = 1) {
    Tool({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
    QThread::msleep(100);
    Tool({QStringLiteral("click"), QString::number(button)});
    QThread::msleep(150);
  }
  void Click(const Control& control, int button = 1) {
    ClickAt(Ask([&] {
              QWidget& widget = control.Owner().Name() == "frmMain"
                                    ? windows_.Main().WidgetOf(control)
                                    : windows_.Panel().WidgetOf(control);
              const int x = std::min(widget.width() / 2, 40);
              return widget.mapToGlobal(QPoint(x, widget.height() / 2));
            }),
            button);
  }

  // The story.

  void ChooseAndCount() {
    Click(frmMain_.cmdFile[0]);
    WaitUntil("the dialog comes", IsBoxInFront);
    Type(QStringLiteral("harbour_en.txt"));
    Press("Return");
    WaitUntil("the file of the documents is chosen", [this] {
      return NoBox() && frmMain_.txbFile[0].Text() == Documents() + "/harbour_en.txt";
    });
    WaitUntil("the source is the file", [this] { return frmMain_.optInFile.Value(); });
    Click(frmMain_.cmdCountWords);
    WaitUntil("it is counted", [this] {
      return NoBox() && frmMain_.txbOutput.Text().find("  the\r\n") != std::string::npos;
    });
  }

  void NameTheOutputFile() {
    Click(frmMain_.txbFile[1]);
    Type(QStringLiteral("list.txt"));
    Press("Return");
    WaitUntil("the name is a path in the documents",
              [this] { return frmMain_.txbFile[1].Text() == ListPath(); });
    WaitUntil("the list is written", [] { return QFileInfo::exists(ToQt(ListPath())); });
    WaitUntil("the count command waits", [this] { return HasFocus(frmMain_.cmdCountWords); });
  }

  void ChangeTheFormat() {
    Ask([this] {
      program_.frmParams.chkWarnOnOverwrite.SetChecked(false);
      return true;
    });
    Click(frmMain_.cboDisplayFormat);
    WaitUntil("the formats drop down", [] { return QApplication::activePopupWidget() != nullptr; });
    Press("Down");
    Press("Return");
    WaitUntil("the list is in the other format", [this] {
      return frmMain_.cboDisplayFormat.ListIndex() == 1 &&
             frmMain_.txbOutput.Text().find("Word") < frmMain_.txbOutput.Text().find("Freq");
    });
    Expect("the count command has the keys", [this] { return HasFocus(frmMain_.cmdCountWords); });
    Type(QStringLiteral("x"));
    Expect("no key has gone into the path",
           [this] { return frmMain_.txbFile[1].Text() == ListPath(); });
    Click(frmMain_.cboWordOrder, 5);
    Expect("the wheel alone changes nothing",
           [this] { return frmMain_.cboWordOrder.ListIndex() == 0; });
  }

  void ClickFast() {
    Click(frmMain_.cmdClearOutput);
    Expect("the list is gone, and the count command has the keys", [this] {
      return frmMain_.txbOutput.Text().empty() && HasFocus(frmMain_.cmdCountWords);
    });
  }

  void TypeAPath() {
    Click(frmMain_.txbFile[0]);
    Press("ctrl+a");
    Type(ToQt(Documents() + "/har"));
    WaitUntil("paths are offered", [this] { return IsOffering(frmMain_.txbFile[0]); });
    Press("Escape");
    Ask([] {
      return QFile::copy(ToQt(Documents() + "/harbour_en.txt"), ToQt(Documents() + "/har2"));
    });
    Expect("nothing is offered again without a key",
           [this] { return !IsOffering(frmMain_.txbFile[0]); });
    Press("b");
    WaitUntil("paths are offered", [this] { return IsOffering(frmMain_.txbFile[0]); });
    Click(frmMain_.chkIncludeSubfolders);
    WaitUntil("the click is not swallowed",
              [this] { return frmMain_.chkIncludeSubfolders.IsChecked(); });
    Click(frmMain_.txbFile[0]);
    Press("End");
    Type(QStringLiteral("o"));
    WaitUntil("paths are offered", [this] { return IsOffering(frmMain_.txbFile[0]); });
    Press("Down");
    Press("Return");
    WaitUntil("what is marked is taken",
              [this] { return frmMain_.txbFile[0].Text() == Documents() + "/harbour_en.txt"; });
    Press("Return");
    WaitUntil("the next Enter counts", [this] { return !frmMain_.txbOutput.Text().empty(); });
  }

  /// The text has more words than the box holds.
  void LookForAWord() {
    Ask([] {
      QFile file(ToQt(Documents() + "/many.txt"));
      if (!file.open(QIODevice::WriteOnly)) return false;
      for (char a = 'a'; a <= 'z'; ++a) {
        for (char b = 'a'; b <= 'z'; ++b) {
          for (char c = 'a'; c <= 'z'; ++c) file.write(QByteArray("word") + a + b + c + '\n');
        }
      }
      return true;
    });
    Click(frmMain_.txbFile[0]);
    Press("ctrl+a");
    Type(ToQt(Documents() + "/many.txt"));
    Press("Return");
    WaitUntil("the box is full", IsBoxInFront);
    AnswerTheBox();
    WaitUntil("the list is there", [this] { return NoBox() && !program_.State().Busy(); });
    Press("ctrl+f");
    Type(QStringLiteral("wordzzz"));
    WaitUntil("it is said where a word beyond the box stands", [this] {
      const auto labels = windows_.Main().Finder().findChildren<QLabel*>();
      return std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->isVisible() &&
               label->text().contains(QStringLiteral("below the end of this text"));
      });
    });
    Press("Escape");
  }

  void LeaveABadFolder() {
    Click(frmMain_.txbFolder);
    Type(QStringLiteral("/no such folder"));
    Click(frmMain_.cmdClearFolder);
    Expect("the click is carried out, and no box comes",
           [this] { return NoBox() && frmMain_.txbFolder.Text().empty(); });
  }

  void OpenTheParameters() {
    Click(frmMain_.cmdSetParameters);
    WaitUntil("the panel is there", [this] { return windows_.Panel().isActiveWindow(); });
    // A place of the main window that the panel leaves free, if there is one.
    ClickAt(Ask([this] {
      const QRect main = windows_.Main().geometry();
      const QRect panel = windows_.Panel().frameGeometry();
      for (const QPoint corner :
           {main.bottomLeft() + QPoint(3, -3), main.topRight() + QPoint(-3, 3),
            main.bottomRight() - QPoint(3, 3), main.topLeft() + QPoint(3, 3)}) {
        if (!panel.contains(corner)) return corner;
      }
      return main.center();
    }));
    Click(program_.frmParams.cmdClose);
    WaitUntil("the panel was not buried by a click on the main window",
              [this] { return !windows_.Panel().isVisible(); });
  }

  void EditAWordsFileByHand() {
    Ask([] {
      QFile file(ToQt(Documents() + "/few.txt"));
      return file.open(QIODevice::WriteOnly) && file.write("the\n") > 0;
    });
    TextBox& box = program_.frmParams.txbWordsFile[0];
    Click(frmMain_.cmdSetParameters);
    WaitUntil("the panel is there", [this] { return windows_.Panel().isActiveWindow(); });
    Click(box);
    Type(ToQt(Documents() + "/few.txt"));
    Click(program_.frmParams.chkOutputWithCommas);
    WaitUntil("the words are loaded when the box is left", IsBoxInFront);
    AnswerTheBox();
    WaitUntil("the click that left it is carried out",
              [this] { return NoBox() && program_.frmParams.chkOutputWithCommas.IsChecked(); });
    Click(program_.frmParams.cmdClose);
    Click(frmMain_.txbFile[0]);
    Press("ctrl+a");
    Type(ToQt(Documents() + "/harbour_en.txt"));
    Press("Return");
    WaitUntil("the words of the file are left out",
              [this] { return !program_.State().Busy() && Lists("harbour") && !Lists("the"); });
    Click(frmMain_.cmdSetParameters);
    WaitUntil("the panel is there", [this] { return windows_.Panel().isActiveWindow(); });
    Click(box);
    Press("ctrl+a");
    Press("Delete");
    Click(program_.frmParams.cmdClose);
    Click(frmMain_.cmdCountWords);
    WaitUntil("no word is left out when the box is empty",
              [this] { return !program_.State().Busy() && Lists("harbour") && Lists("the"); });
    Expect("nothing was to be told", [this] { return NoBox(); });
  }

  void Quit() {
    Click(frmMain_.cmdQuit);
    WaitUntil("a click on Quit ends it", [this] { return program_.HasEnded(); });
  }

  bool Lists(const std::string& word) {
    return frmMain_.txbOutput.Text().find("  " + word + " ") != std::string::npos;
  }

  static std::string Documents() { return FromQt(QDir::homePath()) + "/Documents"; }
  static std::string ListPath() { return Documents() + "/list.txt"; }

  Program& program_;
  Windows& windows_;
  MainForm& frmMain_ = program_.frmMain;
};

int Run(QApplication& application) {
  QtDesktop desktop;
  Program program(desktop);
  Windows windows(program, desktop);
  if (!program.Start()) return 1;
  Newcomer newcomer(program, windows);
  std::string stuck;
  const std::unique_ptr<QThread> hand(QThread::create([&] {
    try {
      newcomer.LiveThroughTheFirstMinutes();
    } catch (const std::exception& error) {
      stuck = error.what();
    }
    QMetaObject::invokeMethod(
        &application, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
  }));
  hand->start();
  QApplication::exec();
  hand->wait();
  if (stuck.empty()) return 0;
  std::cerr << "not so: " << stuck << '\n';
  for (const QWidget* box : QApplication::topLevelWidgets()) {
    if (box->isVisible()) std::cerr << "on the screen: " << FromQt(box->windowTitle()) << '\n';
  }
  return 1;
}

}  // namespace
}  // namespace quillomat

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return quillomat::Run(application);
}
