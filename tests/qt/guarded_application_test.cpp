// Handlers that fail for want of memory.
#include "qt/guarded_application.h"

#include <gmock/gmock.h>
#include <new>

#include "window_fixture.h"

namespace quillomat {
namespace {

class GuardedApplicationTest : public WindowFixture {
 protected:
  GuardedApplicationTest() {
    Application().tell = [this](const RunTimeError& error) {
      user->program.Lister().ReportError(error);
    };
    EXPECT_TRUE(user->Start());
  }
  ~GuardedApplicationTest() override { Application().tell = nullptr; }

  static GuardedApplication& Application() { return dynamic_cast<GuardedApplication&>(*qApp); }

 private:
  Q_DISABLE_COPY_MOVE(GuardedApplicationTest)
};

TEST_F(GuardedApplicationTest, WhatFailsIsToldOfAndTheProgramGoesOn) {
  MainForm& frmMain = user->program.frmMain;
  bool fails = true;
  frmMain.cmdCopyToClipboard.Click.Connect([&fails] {
    if (fails) throw std::bad_alloc();
  });
  user->program.Sources().ChooseText(folder.Write("a.txt", "the cat the dog"));
  user->Click(frmMain.cmdCountWords);
  boxes.Answer(QMessageBox::Ok);
  // Not by the mouse: the toolkit loses some bytes of a click out of which something is thrown.
  QMetaObject::invokeMethod(
      qApp, [&frmMain] { frmMain.cmdCopyToClipboard.PerformClick(); }, Qt::QueuedConnection);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !boxes.Texts().empty(); }, 20'000));
  EXPECT_THAT(boxes.Texts(), testing::ElementsAre("Error 7: Out of memory"));
  EXPECT_THAT(user->Shown(), testing::HasSubstr("dog"));
  fails = false;
  user->Click(frmMain.cmdCountWords);
  EXPECT_THAT(user->Shown(), testing::HasSubstr("dog"));
}

TEST_F(GuardedApplicationTest, WhatFailsAgainAndAgainIsToldOnce) {
  QObject receiver;
  for (int times = 0; times < 3; ++times) {
    QMetaObject::invokeMethod(
        &receiver, [] { throw RunTimeError(RunTimeErrorNumber::kDiskFull); }, Qt::QueuedConnection);
  }
  boxes.Answer(QMessageBox::Ok);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !boxes.Texts().empty(); }, 20'000));
  user->Settle();
  EXPECT_THAT(boxes.Texts(), testing::ElementsAre("Error 61: Disk full"));
}

TEST_F(GuardedApplicationTest, NotEvenMemoryForABoxIsNoEndlessTale) {
  int tales = 0;
  Application().tell = [&tales](const RunTimeError&) {
    ++tales;
    throw std::bad_alloc();
  };
  QObject receiver;
  QMetaObject::invokeMethod(
      &receiver, [] { throw std::bad_alloc(); }, Qt::QueuedConnection);
  user->Settle();
  EXPECT_EQ(tales, 1);
}

}  // namespace
}  // namespace quillomat
