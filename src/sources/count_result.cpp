#include "sources/count_result.h"

#include "base/letter_case.h"
#include "system/paths.h"

namespace quillomat {

bool IsFault(Refusal reason) {
  switch (reason) {
    case Refusal::kNone:
    case Refusal::kNotText:
    case Refusal::kEmpty:
    case Refusal::kNeverText:
      return false;
    default:
      return true;
  }
}

void LeftOut::Add(const SkippedFile& file) {
  if (file.reason != Refusal::kNeverText) {
    ++byContents;
    return;
  }
  ++byExtension;
  extensions.insert(LowerCase(ExtensionOf(file.path)));
}

std::string LeftOut::Reasons(std::string_view noTextOrEmpty) const {
  std::string reasons(byContents > 0 ? noTextOrEmpty : "");
  for (const std::string& extension : extensions) {
    reasons.append(reasons.empty() ? "." : ", .").append(extension);
  }
  return reasons;
}

void CountResult::Rank(const FilterChoices& filters, std::size_t threads) {
  if (!countOnlyMode) ApplyWordFilters(store, filters, threads);
  totals = store.TallyWords(threads);
  ranking = RankByFrequency(store, threads);
}

}  // namespace quillomat
