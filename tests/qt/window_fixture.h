// The whole program with its real windows and boxes, in a home of its own. What a person does is
// done to the widgets: keys are typed and buttons clicked.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <string>
#include <vector>

#include "app/program.h"
#include "qt/program_windows.h"
#include "qt/text_conversion.h"
#include "support/temporary_folder.h"
#include "support/user_home.h"

namespace quillomat {

/// Clicks the boxes' buttons in the order of a script, and remembers what the boxes said. A test in
/// which boxes come for ever, or one stays, ends with what the box says.
class BoxAnswerer {
 public:
  BoxAnswerer() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
    timer_.start(5);
  }

  void Answer(QMessageBox::StandardButton button) { answers_.push_back(button); }
  /// Lets the boxes stand for a while from now on.
  void Pause(int milliseconds) {
    timer_.stop();
    QTimer::singleShot(milliseconds, &timer_, [this] { timer_.start(5); });
  }
  [[nodiscard]] const std::vector<std::string>& Texts() const { return texts_; }
  [[nodiscard]] const std::vector<std::string>& TitlesSeen() const { return titles_; }

 private:
  /// A box without an answer in the script fails the test and is closed.
  void Look() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal != standing_) {
      standing_ = modal;
      since_.start();
    }
    if (modal != nullptr && since_.hasExpired(kLongestStand)) GiveUp("stays", *modal);
    auto* box = qobject_cast<QMessageBox*>(modal);
    if (box == nullptr || box == answered_) return;
    answered_ = box;
    texts_.push_back(FromQt(box->text()));
    titles_.push_back(FromQt(box->windowTitle()));
    if (answers_.empty()) {
      ADD_FAILURE() << "an unexpected box: " << texts_.back();
      if (++unexpected_ > kMostUnexpected) GiveUp("comes again and again", *box);
      return box->reject();
    }
    QAbstractButton* button = box->button(answers_.front());
    answers_.pop_front();
    if (button == nullptr) {
      ADD_FAILURE() << "no such button in the box: " << texts_.back();
      return box->reject();
    }
    QTest::mouseClick(button, Qt::LeftButton);
  }

  /// The test may never get out of the program's own loops, so its process ends here.
  [[noreturn]] static void GiveUp(const char* why, const QWidget& modal) {
    const auto* const box = qobject_cast<const QMessageBox*>(&modal);
    std::cerr << "A box " << why << ": \"" << FromQt(modal.windowTitle()) << "\" "
              << (box == nullptr ? "" : FromQt(box->text())) << std::endl;
    std::_Exit(EXIT_FAILURE);
  }

  static constexpr qint64 kLongestStand = 30'000;  // milliseconds
  static constexpr int kMostUnexpected = 20;

  QTimer timer_;
  QPointer<QMessageBox> answered_;
  /// What is in front, and since when.
  QPointer<QWidget> standing_;
  QElapsedTimer since_;
  int unexpected_ = 0;
  std::deque<QMessageBox::StandardButton> answers_;
  std::vector<std::string> texts_;
  std::vector<std::string> titles_;
};

/// The program as a user has it before him.
class ProgramOnDesktop {
 public:
  ProgramOnDesktop() : program(desktop), windows(program, desktop) {
    program.Ended.Connect([this] { windows.KeepPlaces(); });
  }

  bool Start() {
    windows.RestorePlaces();
    const bool started = program.Start();
    Settle();
    return started;
  }

  /// Lets everything that is pending happen.
  static void Settle() {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }

  FormWindow& WindowOf(const Control& control) {
    if (&control.Owner() == &program.frmMain) return windows.Main();
    if (&control.Owner() == &program.frmExport) return windows.Export();
    return &control.Owner() == &program.frmParams ? windows.Panel() : windows.Help();
  }
  template <class Widget>
  Widget& WidgetOf(const Control& control) {
    return dynamic_cast<Widget&>(WindowOf(control).WidgetOf(control));
  }

  void Click(const Control& control) {
    auto& widget = WidgetOf<QWidget>(control);
    const bool boxed = dynamic_cast<QCheckBox*>(&widget) != nullptr ||
                       dynamic_cast<QRadioButton*>(&widget) != nullptr;
    const QPoint place = boxed ? QPoint(8, widget.height() / 2) : widget.rect().center();
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
    Settle();
  }

  void Type(const Control& control, const std::string& text) {
    auto& line = WidgetOf<QLineEdit>(control);
    line.setFocus();
    line.selectAll();
    if (text.empty()) QTest::keyClick(&line, Qt::Key_Delete);
    QTest::keyClicks(&line, ToQt(text));
    Settle();
  }

  /// Chooses an item with the keyboard.
  void Choose(const Control& control, int index) {
    auto& combo = WidgetOf<QComboBox>(control);
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Home);
    for (int i = 0; i < index; ++i) QTest::keyClick(&combo, Qt::Key_Down);
    Settle();
  }

  /// What the list shows.
  std::string Shown() { return FromQt(windows.Main().List().toPlainText()); }

  QtDesktop desktop;
  Program program;
  Windows windows;
};

class WindowFixture : public testing::Test {
 protected:
  UserHome home;
  TemporaryFolder folder;
  BoxAnswerer boxes;
  std::unique_ptr<ProgramOnDesktop> user = std::make_unique<ProgramOnDesktop>();
};

/// Starts a count, and does something as soon as it has begun, however long that takes.
inline void CountAndMeanwhile(ProgramOnDesktop& user, const std::function<void()>& action) {
  QTimer begun;
  QObject::connect(&begun, &QTimer::timeout, [&] {
    if (user.program.State().Phase() != RunPhase::kCounting) return;
    begun.stop();
    action();
  });
  begun.start(1);
  user.Click(user.program.frmMain.cmdCountWords);
}

/// Starts a count, and stops it as soon as it has begun.
inline void ClickWhenItCounts(ProgramOnDesktop& user) {
  CountAndMeanwhile(user, [&user] { user.program.frmMain.cmdCountWords.PerformClick(); });
}

}  // namespace quillomat
