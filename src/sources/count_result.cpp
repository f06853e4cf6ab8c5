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

void CountResult::Rank(const FilterChoices& filters) {
  if (!countOnlyMode) ApplyWordFilters(store, filters);
  totals = store.TallyWords();
  ranking = RankByFrequency(store);
}

}  // namespace quillomat
