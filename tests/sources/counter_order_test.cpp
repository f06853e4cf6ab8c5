// The counter works out the figures that hang on the order of words, if it is asked to.
#include <string>

#include "sources/counter_fixture.h"
#include "sources/text_reader.h"

namespace quillomat {
namespace {

using WordOrderOfCount = CounterFixture;

TEST_F(WordOrderOfCount, IsNotKeptUnlessAskedFor) {
  EXPECT_FALSE(Run(TextOfClipboard{"to be or not to be"}).orderFigures.has_value());
}

TEST_F(WordOrderOfCount, GivesTheGrowthOfTheVocabulary) {
  request.orderFigures = true;
  const CountResult result = Run(TextOfClipboard{"to be or not to be"});
  const std::vector<GrowthPoint> expected = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 4}, {6, 4}};
  EXPECT_EQ(result.orderFigures.value().growth, expected);
}

TEST_F(WordOrderOfCount, GoesOnFromFileToFile) {
  static_cast<void>(folder.Write("a.txt", "to be"));
  static_cast<void>(folder.Write("b.txt", "or to be"));
  request.orderFigures = true;
  const CountResult result = Run(TextOfFolder{folder.Path(), false, {}});
  const std::vector<GrowthPoint> expected = {{1, 1}, {2, 2}, {3, 3}, {4, 3}, {5, 3}};
  EXPECT_EQ(result.orderFigures.value().growth, expected);
}

TEST_F(WordOrderOfCount, IsTheSameOnSeveralThreads) {
  std::string text;
  for (int i = 0; static_cast<std::int64_t>(text.size()) < 3 * TextReader::kBytesWorthThreads;
       ++i) {
    std::string word = "w";
    for (int rest = i % 1000 * (i % 97); rest > 0; rest /= 26) {
      word += static_cast<char>('a' + rest % 26);
    }
    text += word + (i % 11 == 10 ? "\n" : " ");
  }
  const std::string path = folder.Write("large.txt", text);
  request.orderFigures = true;
  const OrderFigures one = Run(TextOfFile{path}).orderFigures.value();
  request.threads = 3;
  const OrderFigures three = Run(TextOfFile{path}).orderFigures.value();
  EXPECT_EQ(three.growth, one.growth);
  EXPECT_EQ(three.standardisedRatio, one.standardisedRatio);
  EXPECT_EQ(three.movingAverageRatio, one.movingAverageRatio);
  EXPECT_GT(one.standardisedRatio.value(), 0.1);
}

}  // namespace
}  // namespace quillomat
