#include "sources/count_result.h"

namespace quillomat {

bool IsFault(Refusal reason) {
  switch (reason) {
    case Refusal::kNone:
    case Refusal::kNotText:
    case Refusal::kEmpty:
      return false;
    default:
      return true;
  }
}

void CountResult::Rank(const FilterChoices& filters, std::size_t threads) {
  if (!countOnlyMode) ApplyWordFilters(store, filters, threads);
  totals = store.TallyWords(threads);
  ranking = RankByFrequency(store, threads);
}

}  // namespace quillomat
