#include "qt/mnemonics.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(Mnemonics, EachLetterIsGivenOnceAndTheStartOfAWordComesFirst) {
  EXPECT_EQ(Mnemonics().Assign({"Save state", "Select folder", "Stop", "x", "X"}),
            (QList<QString>{"&Save state", "Select &folder", "S&top", "&x", "X"}));
}

TEST(Mnemonics, SignsOfTheCaptionStandAsTheyAre) {
  EXPECT_EQ(Mnemonics().Assign({"R&D", "1 & 2"}), (QList<QString>{"&R&&D", "1 && 2"}));
  EXPECT_EQ(WithoutMnemonic("R&D"), "R&&D");
}

TEST(Mnemonics, CaptionsThatStayKeepTheirLetters) {
  Mnemonics letters;
  const QList<QString> before = letters.Assign({"Count", "Save", "Clear"});
  EXPECT_EQ(before, (QList<QString>{"&Count", "&Save", "C&lear"}));
  EXPECT_EQ(letters.Assign({"Stop", "Save", "Clear"}),
            (QList<QString>{"S&top", "&Save", "C&lear"}));
  EXPECT_EQ(letters.Assign({"Count", "Save", "Clear"}), before);
}

TEST(Mnemonics, CaptionThatChangesAloneBorrowsALetterRatherThanHaveNone) {
  Mnemonics letters;
  EXPECT_EQ(letters.Assign({"Go", "s", "t"}), (QList<QString>{"&Go", "&s", "&t"}));
  const QList<QString> lent = {"&St", "s", "&t"};
  EXPECT_EQ(letters.Assign({"St", "s", "t"}), lent);
  EXPECT_EQ(letters.Assign({"St", "s", "t"}), lent);
  EXPECT_EQ(letters.Assign({"St", "s", "x"}), (QList<QString>{"&St", "s", "&x"}));
  EXPECT_EQ(letters.Assign({"Go", "s", "x"}), (QList<QString>{"&Go", "&s", "&x"}));
}

TEST(Mnemonics, LetterThatWasLentIsNotGivenBackToAnotherCaption) {
  Mnemonics letters;
  (void)letters.Assign({"Go", "s", "t"});
  (void)letters.Assign({"St", "s", "t"});
  EXPECT_EQ(letters.Assign({"St", "new", "t"}), (QList<QString>{"&St", "&new", "&t"}));
  EXPECT_EQ(letters.Assign({"Go", "new", "t"}), (QList<QString>{"&Go", "&new", "&t"}));
}

TEST(Mnemonics, ReadableCaptionHasNoMarks) {
  EXPECT_EQ(Readable("&R&&D"), "R&D");
  EXPECT_EQ(Readable("plain"), "plain");
}

TEST(Mnemonics, OnlyLettersOfEveryKeyboardAreGiven) {
  EXPECT_EQ(Mnemonics().Assign({QString::fromUtf8("\u00D6ffnen")}),
            (QList<QString>{QString::fromUtf8("\u00D6&ffnen")}));
}

}  // namespace
}  // namespace quillomat
