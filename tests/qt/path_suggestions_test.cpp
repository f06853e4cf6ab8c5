// Paths that are offered while they are typed.
#include "qt/path_suggestions.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QThreadPool>
#include <QVBoxLayout>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <semaphore>
#include <stop_token>
#include <utility>

#include "support/environment.h"
#include "support/temporary_folder.h"

namespace quillomat {
namespace {

class PathCompletion : public ::testing::Test {
 protected:
  PathCompletion() {
    auto* column = new QVBoxLayout(&window_);
    column->addWidget(box_);
    column->addWidget(otherBox_);
    suggestions_ = new PathSuggestions(*box_, PathKind::kFile);
    window_.show();
    static_cast<void>(QTest::qWaitForWindowActive(&window_));
    box_->setFocus();
  }

  void PutFile(const char* name) { static_cast<void>(folder_.Write(name, "x")); }
  [[nodiscard]] QString Path(const char* name) const {
    return QDir::toNativeSeparators(QString::fromStdString(folder_ / name));
  }
  void Type(const char* name) {
    box_->clear();
    QTest::keyClicks(box_, Path(name));
  }
  [[nodiscard]] bool IsOffering() const { return suggestions_->IsOffering(); }
  [[nodiscard]] bool OffersSoon() const {
    return QTest::qWaitFor([this] { return IsOffering(); }, kLongEnough);
  }
  /// Until what is to be offered is known, and would be offered when it is there.
  static void Pause() { QTest::qWait(kPause); }

  static constexpr int kLongEnough = 20'000;
  static constexpr int kPause = 900;

  TemporaryFolder folder_;
  QWidget window_;
  QLineEdit* box_ = new QLineEdit;
  QLineEdit* otherBox_ = new QLineEdit;
  PathSuggestions* suggestions_ = nullptr;
};

TEST_F(PathCompletion, OffersWhatIsInTheFolder) {
  PutFile("harbour.txt");
  PutFile("harvest.txt");
  PutFile("meadow.txt");
  Type("har");
  ASSERT_TRUE(OffersSoon());
  EXPECT_EQ(suggestions_->Offered(), (QStringList{Path("harbour.txt"), Path("harvest.txt")}));
  QTest::keyClicks(box_, "v");
  EXPECT_EQ(suggestions_->Offered(), QStringList{Path("harvest.txt")}) << "at once";
}

TEST_F(PathCompletion, OffersWhatIsInTheUsersHomeAsItIsTyped) {
  const ScopedVariable home("HOME", folder_.Path());
  PutFile("harbour.txt");
  std::filesystem::create_directory(folder_ / "harvest");
  QTest::keyClicks(box_, "~/harb");
  ASSERT_TRUE(OffersSoon());
  EXPECT_EQ(suggestions_->Offered(), QStringList{"~/harbour.txt"});
  QTest::keyClick(box_, Qt::Key_Down);
  QTest::keyClick(box_, Qt::Key_Return);
  EXPECT_EQ(box_->text(), "~/harbour.txt");
  box_->clear();
  QTest::keyClicks(box_, "~/harv");
  ASSERT_TRUE(OffersSoon());
  EXPECT_EQ(suggestions_->Offered(), QStringList{"~/harvest"});
}

TEST_F(PathCompletion, OffersNothingWhileTypingGoesOn) {
  PutFile("harbour.txt");
  Type("har");
  EXPECT_FALSE(IsOffering());
  QTest::keyClick(box_, Qt::Key_Return);
  Pause();
  EXPECT_FALSE(IsOffering());
}

/// A folder that does not answer until it is let go.
class DeadFolder {
 public:
  [[nodiscard]] PathSuggestions::Source Source() {
    return [gate = gate_](const QString& typed, PathKind, const std::stop_token&) {
      if (!typed.contains("dead")) return QStringList{typed + "more"};
      gate->acquire();
      return QStringList();
    };
  }
  ~DeadFolder() { gate_->release(PathSuggestions::kMostLooks); }

 private:
  std::shared_ptr<std::counting_semaphore<>> gate_ = std::make_shared<std::counting_semaphore<>>(0);
};

TEST_F(PathCompletion, FolderThatDoesNotAnswerKeepsNobodyWaiting) {
  DeadFolder dead;
  delete suggestions_;
  suggestions_ = new PathSuggestions(*box_, PathKind::kFile, dead.Source());
  for (int times = 1; times < PathSuggestions::kMostLooks; ++times) {
    Type("dead");
    Pause();
  }
  Type("near");
  EXPECT_TRUE(OffersSoon()) << "of another folder";
  EXPECT_TRUE(QThreadPool::globalInstance()->waitForDone(0)) << "the program's end waits for these";
  delete std::exchange(box_, nullptr);
}

TEST_F(PathCompletion, ScreenReaderIsToldWhatIsMarked) {
  QStringList told;
  suggestions_->announce = [&told](const QListWidget& list, int row) {
    told.append(list.item(row)->text());
  };
  PutFile("harbour.txt");
  PutFile("harvest.txt");
  Type("har");
  ASSERT_TRUE(OffersSoon());
  QTest::keyClick(box_, Qt::Key_Up);
  QTest::keyClick(box_, Qt::Key_Down);
  EXPECT_EQ(told, (QStringList{Path("harvest.txt"), Path("harbour.txt")}));
}

TEST_F(PathCompletion, OffersNothingWithoutAKey) {
  PutFile("harbour.txt");
  box_->setText(Path("har"));
  Pause();
  EXPECT_FALSE(IsOffering());
}

TEST_F(PathCompletion, OffersNothingThatIsAlreadyThere) {
  PutFile("harbour.txt");
  Type("harbour.txt");
  Pause();
  EXPECT_FALSE(IsOffering());
}

TEST_F(PathCompletion, OffersNothingOnceReturnWasPressedOrTheBoxLeft) {
  Type("list");
  Pause();
  QTest::keyClick(box_, Qt::Key_Return);
  PutFile("list.txt");
  Pause();
  EXPECT_FALSE(IsOffering());
  Type("lis");
  otherBox_->setFocus();
  Pause();
  EXPECT_FALSE(IsOffering());
}

TEST_F(PathCompletion, EscapeClosesItUntilTheNextKey) {
  PutFile("harbour.txt");
  Type("har");
  ASSERT_TRUE(OffersSoon());
  QTest::keyClick(box_, Qt::Key_Escape);
  EXPECT_FALSE(IsOffering());
  PutFile("harvest.txt");
  Pause();
  EXPECT_FALSE(IsOffering()) << "the folder has changed, but nobody has typed";
  QTest::keyClicks(box_, "b");
  EXPECT_TRUE(OffersSoon());
}

TEST_F(PathCompletion, WhatIsMarkedIsTakenByReturn) {
  PutFile("harbour.txt");
  Type("har");
  ASSERT_TRUE(OffersSoon());
  QTest::keyClick(box_, Qt::Key_Down);
  QTest::keyClick(box_, Qt::Key_Return);
  EXPECT_EQ(box_->text(), Path("harbour.txt"));
  Pause();
  EXPECT_FALSE(IsOffering());
}

TEST_F(PathCompletion, ReturnIsTheWindowsWhenNothingIsMarked) {
  PutFile("harbour.txt");
  Type("har");
  ASSERT_TRUE(OffersSoon());
  int pressed = 0;
  QObject::connect(box_, &QLineEdit::returnPressed, [&pressed] { ++pressed; });
  QTest::keyClick(box_, Qt::Key_Return);
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(box_->text(), Path("har"));
  EXPECT_FALSE(IsOffering());
}

TEST_F(PathCompletion, EntryIsTakenByAClickAndTheMouseIsLeftAlone) {
  PutFile("harbour.txt");
  Type("har");
  ASSERT_TRUE(OffersSoon());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "it would swallow the next click";
  const QListWidget& list = suggestions_->List();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                    list.visualItemRect(list.item(0)).center());
  EXPECT_EQ(box_->text(), Path("harbour.txt"));
  EXPECT_FALSE(IsOffering());
}

TEST_F(PathCompletion, NameMayHoldSignsThatStandForOthersElsewhere) {
  PutFile("[har]bour.txt");
  Type("[har]");
  ASSERT_TRUE(OffersSoon());
  EXPECT_EQ(suggestions_->Offered(), QStringList{Path("[har]bour.txt")});
}

}  // namespace
}  // namespace quillomat
