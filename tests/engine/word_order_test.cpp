// A listener to the order of words is told of every occurrence, however the text is scanned.
#include "engine/word_order.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "support/engine_fixture.h"

namespace quillomat {
namespace {

class WordOrder : public EngineFixture {
 protected:
  /// The words that were told of, from a text that is scanned line by line or as a block.
  std::string OrderOf(std::string_view lines, bool asBlock) {
    StartCount();
    WordOrderRecorder recorder;
    store.SetOrderListener(&recorder);
    ManyAtOnce manyAtOnce;
    WordScanner scanner(settings, choices, lists, store, manyAtOnce);
    if (asBlock) {
      EXPECT_EQ(scanner.PlainLineBytes(lines), lines.size());
      scanner.GetWordsOfLines(lines);
    } else {
      std::string buffer;
      scanner.GetWords(PrepareLine(lines, IsSet(choices.caseSignificant), buffer));
    }
    store.SetOrderListener(nullptr);
    std::string order;
    for (const std::uint32_t place : recorder.places) {
      order.append(order.empty() ? "" : " ").append(store.WordAtPlace(place));
    }
    return order;
  }
  void ExpectOrder(std::string_view lines, std::string_view expected) {
    EXPECT_EQ(OrderOf(lines, false), expected);
    EXPECT_EQ(OrderOf(lines, true), expected);
  }

 private:
  class ManyAtOnce final : public ScanYield {
   public:
    bool Yield() override { return false; }
    [[nodiscard]] std::uint32_t CallsLeft() const override { return 1000; }
  };
};

TEST_F(WordOrder, IsThatOfTheText) {
  ExpectOrder("the cat saw the dog and The dog saw a cat\n",
              "the cat saw the dog and the dog saw a cat");
}

TEST_F(WordOrder, WordsThatBecomeOneAreToldOfAsOne) {
  ExpectOrder("caf\u00E9 Cafe CAF\u00C9\n", "caf\u00E9 caf\u00E9 caf\u00E9");
}

TEST_F(WordOrder, ATokenMayHoldSeveralWordsOrNone) {
  ExpectOrder("one--two 's well--known one--two--three\n", "one two well known one two three");
}

TEST_F(WordOrder, WordsThatAreNotCountedAreNotToldOf) {
  Ignore("the a");
  ExpectOrder("the cat saw a dog\n", "cat saw dog");
  const std::string tooLong(101, 'x');
  ExpectOrder("cat " + tooLong + " dog\n", "cat dog");
}

TEST_F(WordOrder, LongTokensAreToldOfInTheirPlaces) {
  ExpectOrder("a incomprehensibilities b incomprehensibilities c\n",
              "a incomprehensibilities b incomprehensibilities c");
}

TEST_F(WordOrder, GoesOnThroughMoreTokensThanAreLookedUpAtOnce) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += std::string(1, static_cast<char>('b' + i * i % 23)) + "a ";
  const std::string expected = text.substr(0, text.size() - 1);
  text.back() = '\n';
  ExpectOrder(text, expected);
}

}  // namespace
}  // namespace quillomat
