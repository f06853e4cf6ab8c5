// The two walks.
#include "listing/list_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "listing/listing_fixture.h"

namespace quillomat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListWalk : public ListingFixture {
 protected:
  ListWalk() { options.format = DisplayFormat::kWord; }

  RememberingSink sink;
};

TEST_F(ListWalk, ByFrequencyFollowsTheRanks) {
  AddSample();
  Finish();
  Walk(WordOrder::kByFrequency, sink);
  EXPECT_THAT(sink.lines, ElementsAre("the", "cat", "sat", "well-known"));
}

TEST_F(ListWalk, AlphabeticalFollowsTheStore) {
  AddSample();
  Finish();
  Walk(WordOrder::kAlphabetical, sink);
  EXPECT_THAT(sink.lines, ElementsAre("cat", "sat", "the", "well-known"));
}

TEST_F(ListWalk, EveryLineComesWithItsAlphabeticalPlace) {
  AddSample();
  Finish();
  Walk(WordOrder::kByFrequency, sink);
  EXPECT_THAT(sink.indexes, ElementsAre(3, 1, 2, 4));
}

TEST_F(ListWalk, ExcludedWordsAreNotListed) {
  AddSample();
  store.SetIncluded(PlaceOf("the"), false);
  Finish();
  Walk(WordOrder::kByFrequency, sink);
  EXPECT_THAT(sink.lines, ElementsAre("cat", "sat", "well-known"));
  RememberingSink alphabetical;
  Walk(WordOrder::kAlphabetical, alphabetical);
  EXPECT_THAT(alphabetical.lines, ElementsAre("cat", "sat", "well-known"));
}

TEST_F(ListWalk, HeaderComesOnceAndFirst) {
  AddSample();
  Finish();
  Walk(WordOrder::kAlphabetical, sink);
  EXPECT_THAT(sink.headers, ElementsAre("Word (longest has 10 characters)"));
}

TEST_F(ListWalk, WordsWithCommasHaveNoHeader) {
  AddSample();
  Finish();
  options.format = DisplayFormat::kWordCommas;
  Walk(WordOrder::kAlphabetical, sink);
  EXPECT_THAT(sink.headers, IsEmpty());
}

TEST_F(ListWalk, SinkMayEndEitherWalkAtOnce) {
  AddSample();
  Finish();
  const LineFormatter formatter(Counted(), options);
  sink.stopAt = 2;
  EXPECT_FALSE(ListByFrequency(Counted(), formatter, sink));
  EXPECT_THAT(sink.lines, ElementsAre("the", "cat"));
  RememberingSink alphabetical;
  alphabetical.stopAt = 1;
  EXPECT_FALSE(ListAlphabetical(Counted(), formatter, alphabetical));
  EXPECT_THAT(alphabetical.lines, ElementsAre("cat"));
}

TEST_F(ListWalk, WalkToTheEndSaysSo) {
  AddSample();
  Finish();
  const LineFormatter formatter(Counted(), options);
  EXPECT_TRUE(ListByFrequency(Counted(), formatter, sink));
  EXPECT_TRUE(ListAlphabetical(Counted(), formatter, sink));
}

TEST_F(ListWalk, CountedTextIsListedAsFiltered) {
  Count("The cat sat. The cat, the XIV hmm's!");
  EXPECT_EQ(Listed(), "cat*2 sat the*3");
  Finish();
  options.format = DisplayFormat::kRankFrequencyWord;
  Walk(WordOrder::kByFrequency, sink);
  EXPECT_THAT(sink.lines, ElementsAre("      1       3  the",  //
                                      "      2       2  cat",  //
                                      "      3       1  sat"));
}

}  // namespace
}  // namespace quillomat
