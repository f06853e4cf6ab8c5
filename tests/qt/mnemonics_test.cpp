#include "qt/mnemonics.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(Mnemonics, EachLetterIsGivenOnceAndTheStartOfAWordComesFirst) {
  EXPECT_EQ(WithMnemonics({"Save state", "Select folder", "Stop", "x", "X"}),
            (QList<QString>{"&Save state", "Select &folder", "S&top", "&x", "X"}));
}

TEST(Mnemonics, SignsOfTheCaptionStandAsTheyAre) {
  EXPECT_EQ(WithMnemonics({"R&D", "1 & 2"}), (QList<QString>{"&R&&D", "1 && 2"}));
  EXPECT_EQ(WithoutMnemonic("R&D"), "R&&D");
}

TEST(Mnemonics, OnlyLettersOfEveryKeyboardAreGiven) {
  EXPECT_EQ(WithMnemonics({QString::fromUtf8("\u00D6ffnen")}),
            (QList<QString>{QString::fromUtf8("\u00D6&ffnen")}));
}

}  // namespace
}  // namespace quillomat
