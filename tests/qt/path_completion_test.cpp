// Paths that are completed while they are typed.
#include "qt/path_completion.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace quillomat {
namespace {

class PathCompletion : public ::testing::Test {
 protected:
  PathCompletion() {
    auto* column = new QVBoxLayout(&window_);
    for (QLineEdit* box : {box_, otherBox_}) {
      column->addWidget(box);
      CompletePaths(*box, PathKind::kFile);
    }
    window_.show();
    static_cast<void>(QTest::qWaitForWindowActive(&window_));
    box_->setFocus();
  }

  void PutFile(const char* name) { static_cast<void>(folder_.Write(name, "x")); }
  void Type(const char* name) {
    box_->clear();
    QTest::keyClicks(box_, QString::fromStdString(folder_ / name));
  }
  [[nodiscard]] bool IsOffering() const {
    return box_->completer() != nullptr && box_->completer()->popup()->isVisible();
  }
  [[nodiscard]] bool OffersSoon() const {
    return QTest::qWaitFor([this] { return IsOffering(); }, kLongEnough);
  }
  /// Until what is to be offered is known, and would be offered when it is there.
  static void Pause() { QTest::qWait(kPause); }

  static constexpr int kLongEnough = 20'000;
  static constexpr int kPause = 1500;

  TemporaryFolder folder_;
  QWidget window_;
  QLineEdit* box_ = new QLineEdit;
  QLineEdit* otherBox_ = new QLineEdit;
};

TEST_F(PathCompletion, OffersWhatIsInTheFolder) {
  PutFile("harbour.txt");
  PutFile("meadow.txt");
  Type("har");
  ASSERT_TRUE(OffersSoon());
  EXPECT_EQ(box_->completer()->currentCompletion(),
            QDir::toNativeSeparators(QString::fromStdString(folder_ / "harbour.txt")));
  EXPECT_EQ(box_->completer()->completionCount(), 1);
}

TEST_F(PathCompletion, OffersNothingWhileTypingGoesOn) {
  PutFile("harbour.txt");
  Type("har");
  EXPECT_EQ(box_->completer(), nullptr);
  QTest::keyClick(box_, Qt::Key_Return);
  Pause();
  EXPECT_FALSE(IsOffering());
}

TEST_F(PathCompletion, OffersNothingOnceReturnWasPressed) {
  Type("list.txt");
  Pause();
  QTest::keyClick(box_, Qt::Key_Return);
  PutFile("list.txt");
  Pause();
  EXPECT_FALSE(IsOffering());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(PathCompletion, OffersNothingOnceTheBoxWasLeft) {
  Type("list.txt");
  Pause();
  otherBox_->setFocus();
  PutFile("list.txt");
  Pause();
  EXPECT_FALSE(IsOffering());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(PathCompletion, OffersAgainWhenTypingGoesOn) {
  PutFile("harbour.txt");
  Type("nothing");
  QTest::keyClick(box_, Qt::Key_Return);
  QTest::qWait(10);
  Type("har");
  EXPECT_TRUE(OffersSoon());
}

TEST_F(PathCompletion, WhatIsOfferedIsTakenByReturn) {
  PutFile("harbour.txt");
  Type("har");
  ASSERT_TRUE(OffersSoon());
  QAbstractItemView* offered = box_->completer()->popup();
  QTest::keyClick(offered, Qt::Key_Down);
  QTest::keyClick(offered, Qt::Key_Return);
  EXPECT_EQ(box_->text().toStdString(), folder_ / "harbour.txt");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !IsOffering(); }, kLongEnough));
}

}  // namespace
}  // namespace quillomat
