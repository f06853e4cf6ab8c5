// Figures of a text that hang on the order of its words, worked out while it is counted. They are
// of the occurrences that are counted: words to ignore, and all but the count-only words if there
// are any, are passed over as if they did not stand in the text.
//
//   standardised type-token ratio: the text is cut into successive parts of 1,000 words; the mean
//     of the parts' ratios of different words to words. What is left at the end does not count
//     (W. Johnson, "Studies in language behavior", Psychological Monographs 56(2), 1944, where it
//     is the mean segmental type-token ratio).
//   moving-average type-token ratio: the mean of the ratios of all windows of 500 successive words,
//     from the first to the last (M. A. Covington, J. D. McFall, "Cutting the Gordian knot: the
//     moving-average type-token ratio", Journal of Quantitative Linguistics 17(2), 2010).
//   growth of the vocabulary: how many different words the first so many words have (H. S. Heaps,
//     "Information Retrieval", 1978, chapter 7; R. H. Baayen, "Word Frequency Distributions",
//     2001, chapter 1).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "engine/word_order.h"

namespace quillomat {

/// A point of the growth of the vocabulary.
struct GrowthPoint {
  /// So many words, from the start of the text.
  std::int64_t instances = 0;
  /// So many of them are different.
  std::int64_t differentWords = 0;

  bool operator==(const GrowthPoint&) const = default;
};

struct OrderFigures {
  /// Nothing for a text that is shorter than one part.
  std::optional<double> standardisedRatio;
  /// Nothing for a text that is shorter than one window.
  std::optional<double> movingAverageRatio;
  /// In equal steps, and the end of the text. Empty for a text without words.
  std::vector<GrowthPoint> growth;
};

/// Memory: four bytes for each different word, and some kilobytes.
class OrderFigureCounter final : public WordOrderListener {
 public:
  struct Sizes {
    /// In words, at least one.
    std::uint32_t part = 1000;
    std::uint32_t window = 500;
    /// An even number. When there are so many points, every second one goes and the step doubles:
    /// so there are about 150 to 300, however long the text is.
    std::size_t mostPoints = 300;
  };

  OrderFigureCounter() : OrderFigureCounter(Sizes{}) {}
  /// Other sizes are for tests.
  explicit OrderFigureCounter(const Sizes& sizes) : sizes_(sizes), inWindow_(sizes.window) {}

  void OnWords(std::span<const std::uint32_t> places) override;

  /// Of the words until now.
  [[nodiscard]] OrderFigures Figures() const;

 private:
  void Take(std::uint32_t place);
  void TakeIntoWindow(std::uint32_t place, std::uint32_t before);
  void TakeIntoPart(std::uint32_t before);
  void NoteGrowth();

  Sizes sizes_;
  /// Words until now; a count has no more than 2^31.
  std::uint32_t words_ = 0;
  std::uint32_t differentWords_ = 0;
  /// By place, which word of the text it was the last time, from 1; 0 for none.
  std::vector<std::uint32_t> lastSeen_;

  /// The last words, as a ring.
  std::vector<std::uint32_t> inWindow_;
  std::uint32_t nextInWindow_ = 0;
  std::uint32_t differentInWindow_ = 0;
  /// The sum over all windows.
  std::uint64_t differentInWindows_ = 0;

  /// So many words stand before the part.
  std::uint32_t partStart_ = 0;
  std::uint32_t differentInPart_ = 0;
  /// The sum over all whole parts.
  std::uint64_t differentInParts_ = 0;

  std::uint32_t step_ = 1;
  std::uint32_t nextPoint_ = 1;
  std::vector<GrowthPoint> points_;
};

}  // namespace quillomat
