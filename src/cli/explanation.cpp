#include "cli/explanation.h"

#include <algorithm>

#include "app/explain/candidate_text.h"
#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// The line is one, and its fields are told apart, whatever stands in the text.
std::string AsField(std::string text) {
  const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < ' ' || ch == 0x7F; };
  std::ranges::replace_if(text, isControl, ' ');
  return text;
}

}  // namespace

std::string ExplanationLines(std::span<const Candidate> candidates, const FilterChoices& filters,
                             const ProgramText& texts) {
  std::string lines;
  for (const Candidate& candidate : candidates) {
    const bool counted = candidate.fate == CandidateFate::kCounted;
    const std::string change = ChangeText(candidate, texts);
    lines.append(AsField(candidate.text)).append("\t").append(FateText(candidate.fate, texts));
    lines.append("\t").append(counted ? candidate.word : ReasonText(candidate, filters, texts));
    if (!change.empty()) lines.append("\t").append(change);
    lines.append(kPlatformLineBreak);
  }
  return lines;
}

}  // namespace quillomat
