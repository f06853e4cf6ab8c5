#include "cli/explanation.h"

#include <algorithm>

#include "app/explain/candidate_text.h"
#include "base/text_helpers.h"
#include "engine/explain/text_explainer.h"

namespace quillomat {
namespace {

/// The line is one, and its fields are told apart, whatever stands in the text.
std::string AsField(std::string text) {
  const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < ' ' || ch == 0x7F; };
  std::ranges::replace_if(text, isControl, ' ');
  return text;
}

}  // namespace

std::string ExplanationLines(std::string_view text, ExplainedAs as, const CountRequest& request,
                             const ProgramText& texts) {
  const auto explain = as == ExplainedAs::kLines ? ExplainLines : ExplainText;
  std::string lines;
  for (const Candidate& candidate : explain(text, request.scan, request.filters, request.lists)) {
    const bool counted = candidate.fate == CandidateFate::kCounted;
    const std::string change = ChangeText(candidate, texts);
    lines.append(AsField(candidate.text)).append("\t").append(FateText(candidate.fate, texts));
    lines.append("\t").append(counted ? candidate.word
                                      : ReasonText(candidate, request.filters, texts));
    if (!change.empty()) lines.append("\t").append(change);
    lines.append(kPlatformLineBreak);
  }
  return lines;
}

}  // namespace quillomat
