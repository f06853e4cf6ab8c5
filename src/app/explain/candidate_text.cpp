#include "app/explain/candidate_text.h"

#include <cstdint>

#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

/// The number that the filter goes by; 0 for one without.
std::int32_t LimitOf(CandidateReason reason, const FilterChoices& filters) {
  switch (reason) {
    case CandidateReason::kInfrequent:
      return filters.thresholdFrequencyIndex + kFirstListedNumber;
    case CandidateReason::kShort:
      return filters.shortWordSizeIndex + kFirstListedNumber;
    case CandidateReason::kLong:
      return filters.longWordSize;
    default:
      return 0;
  }
}

void AppendItem(std::string& items, const std::string& item) {
  if (!items.empty()) items += ", ";
  items += item;
}

}  // namespace

std::string FateText(CandidateFate fate, const ProgramText& text) {
  return text.GetText(kFirstFateText + static_cast<int>(fate));
}

std::string ReasonText(const Candidate& candidate, const FilterChoices& filters,
                       const ProgramText& text) {
  if (candidate.reason == CandidateReason::kNone) return {};
  const int number = kFirstReasonText + static_cast<int>(candidate.reason) - 1;
  const std::string limit = std::to_string(LimitOf(candidate.reason, filters));
  std::string reason = Filled(text.GetText(number), {limit});
  if (candidate.fate != CandidateFate::kCut || candidate.word.empty()) return reason;
  return Filled(text.GetText(kCutAtText), {candidate.word, reason});
}

std::string ChangeText(const Candidate& candidate, const ProgramText& text) {
  std::string changes;
  if (candidate.trimmed) AppendItem(changes, text.GetText(kTrimmedText));
  if (candidate.lostFinalS) AppendItem(changes, text.GetText(kLostFinalSText));
  if (candidate.spelledAsBefore) AppendItem(changes, text.GetText(kSpelledAsBeforeText));
  return changes;
}

}  // namespace quillomat
