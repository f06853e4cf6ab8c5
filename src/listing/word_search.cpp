#include "listing/word_search.h"

namespace quillomat {

/// Goes through the words in the order in which they are kept, which is the fast one, and leaves it
/// to the ranks which comes first.
std::optional<FoundBelow> FindBelow(const CountedWords& words, WordOrder order, std::int32_t shown,
                                    std::string_view key) {
  const std::int32_t all = words.store.NumDifferentWords();
  const bool ranked = words.ranking.rankOf.size() > static_cast<std::size_t>(all);
  if (key.empty() || !ranked) return std::nullopt;
  const bool alphabetical = order == WordOrder::kAlphabetical;
  std::optional<FoundBelow> found;
  std::int32_t listed = 0;
  for (std::int32_t place = 1; place <= all; ++place) {
    const std::int32_t rank = words.ranking.rankOf[static_cast<std::size_t>(place)];
    if (rank == 0) continue;
    ++listed;
    if ((alphabetical ? listed : rank) <= shown) continue;
    const std::string_view other = words.store.At(place).SortKey;
    if (other == key) return FoundBelow{place, true};
    if (other.find(key) == std::string_view::npos) continue;
    const bool first =
        !found ||
        (!alphabetical && rank < words.ranking.rankOf[static_cast<std::size_t>(found->place)]);
    if (first) found = FoundBelow{place, false};
  }
  return found;
}

}  // namespace quillomat
