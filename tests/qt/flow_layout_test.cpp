// Rows that break where they would not fit.
#include "qt/flow_layout.h"

#include <QSpacerItem>
#include <QWidget>
#include <gtest/gtest.h>

namespace quillomat {
namespace {

constexpr int kLeastWidth = 10;
constexpr int kHeight = 20;

/// A part of a row that wants so much width.
class Part final : public QWidget {
 public:
  Part(int width, QSizePolicy::Policy policy) : width_(width) {
    setSizePolicy(policy, QSizePolicy::Fixed);
  }

  [[nodiscard]] QSize sizeHint() const override { return {width_, kHeight}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {kLeastWidth, kHeight}; }

 private:
  int width_;
};

class FlowLayoutTest : public testing::Test {
 protected:
  static constexpr int kRowWidth = 100;

  Part& Add(int width, QSizePolicy::Policy policy) {
    auto* part = new Part(width, policy);
    row_->addWidget(part);
    return *part;
  }
  void Place() {
    window_.resize(kRowWidth, row_->heightForWidth(kRowWidth));
    window_.show();
    row_->setGeometry(window_.rect());
  }

  QWidget window_;
  FlowLayout* row_ = [this] {
    auto* row = new FlowLayout(&window_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    return row;
  }();
};

TEST_F(FlowLayoutTest, WhatShrinksHasARowThatItIsAloneInToItself) {
  Add(90, QSizePolicy::Fixed);
  const Part& shrinks = Add(50, QSizePolicy::Maximum);
  Place();
  EXPECT_EQ(shrinks.geometry(), QRect(0, kHeight, kRowWidth, kHeight));
}

TEST_F(FlowLayoutTest, SoItHasBehindASpacerThatPushesToTheEnd) {
  Add(90, QSizePolicy::Fixed);
  row_->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
  const Part& shrinks = Add(50, QSizePolicy::Maximum);
  Place();
  EXPECT_EQ(shrinks.geometry(), QRect(0, kHeight, kRowWidth, kHeight));
}

TEST_F(FlowLayoutTest, WhatFollowsASpacerStandsAtTheEnd) {
  Add(90, QSizePolicy::Fixed);
  row_->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
  const Part& fixed = Add(50, QSizePolicy::Fixed);
  Place();
  EXPECT_EQ(fixed.geometry(), QRect(50, kHeight, 50, kHeight));
}

TEST_F(FlowLayoutTest, WhatShrinksMakesTheWindowNoWiderThanItMustBe) {
  Add(500, QSizePolicy::Maximum);
  EXPECT_EQ(row_->minimumSize().width(), kLeastWidth);
  Add(90, QSizePolicy::Fixed);
  EXPECT_EQ(row_->minimumSize().width(), 90);
}

}  // namespace
}  // namespace quillomat
