#include "qt/progress_label.h"

#include <gtest/gtest.h>

#include "qt/text_conversion.h"
#include "sources/progress_bar.h"

namespace quillomat {
namespace {

TEST(ProgressLabel, KnowsTheShareOfABarOfTheProgram) {
  ProgressLabel label;
  label.setText(ToQt(ProgressBar::Bar(0)));
  EXPECT_NEAR(label.Share().value(), 0.0, 0.05);
  label.setText(ToQt(ProgressBar::Bar(20)));
  EXPECT_NEAR(label.Share().value(), 0.5, 0.05);
  label.setText(ToQt(ProgressBar::Bar(39)));
  EXPECT_NEAR(label.Share().value(), 1.0, 0.001);
}

TEST(ProgressLabel, AnyOtherTextIsNoBar) {
  ProgressLabel label;
  for (const char* text : {"", " ", "[", "[]", "Processing . . . ", "\u2584"}) {
    label.setText(QString::fromUtf8(text));
    EXPECT_FALSE(label.Share()) << text;
  }
}

TEST(ProgressLabel, BarIsPainted) {
  ProgressLabel label;
  label.resize(400, 30);
  label.setText(ToQt(ProgressBar::Bar(1)));
  const QImage little = label.grab().toImage();
  label.setText(ToQt(ProgressBar::Bar(39)));
  EXPECT_NE(label.grab().toImage(), little);
}

}  // namespace
}  // namespace quillomat
