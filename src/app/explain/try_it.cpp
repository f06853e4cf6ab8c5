#include "app/explain/try_it.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "app/count/panel_choices.h"
#include "app/explain/candidate_text.h"
#include "app/setting_values.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "sources/marker_fault.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

constexpr std::string_view kLineName = "txbTryIt";

/// Words of which there is the same to tell; "" for nothing.
struct WordGroup {
  std::string remark;
  std::vector<std::string> words{};
};

/// The candidates of one fate, each word once.
std::vector<WordGroup> GroupsOf(CandidateFate fate, const std::vector<Candidate>& candidates,
                                const FilterChoices& filters, const ProgramText& text) {
  const bool counted = fate == CandidateFate::kCounted;
  std::vector<WordGroup> groups;
  for (const Candidate& candidate : candidates) {
    if (candidate.fate != fate) continue;
    const std::string remark =
        counted ? ChangeText(candidate, text) : ReasonText(candidate, filters, text);
    auto group = std::ranges::find(groups, remark, &WordGroup::remark);
    if (group == groups.end()) group = groups.insert(groups.end(), {remark});
    const std::string& word = counted ? candidate.word : candidate.text;
    if (std::ranges::find(group->words, word) == group->words.end()) group->words.push_back(word);
  }
  return groups;
}

/// "dog, bird; cat (without its final s)".
std::string ListOf(const std::vector<WordGroup>& groups) {
  std::string list;
  for (const WordGroup& group : groups) {
    if (!list.empty()) list += "; ";
    for (std::size_t i = 0; i < group.words.size(); ++i) {
      list.append(i > 0 ? ", " : "").append(group.words[i]);
    }
    if (!group.remark.empty()) list.append(" (").append(group.remark).append(")");
  }
  return list;
}

}  // namespace

void TryIt::Connect() {
  const auto update = [this] { Update(); };
  frmParams_.Changed.Connect(update);
  frmParams_.txbTryIt.Change.Connect(update);
  for (const Setting& setting : AllSettings()) {
    if (setting.window != SettingWindow::kPanel || setting.entails == Entails::kNothing) continue;
    frmParams_.Find(setting.control)->Changed.Connect(update);
  }
  wordLists_.ListTaken.Connect([this] {
    lists_.Forget();
    Update();
  });
}

void TryIt::Reset() {
  SetToDefault(*FindSetting(AllSettings(), kLineName), frmParams_.txbTryIt);
}

void TryIt::Update() {
  if (frmParams_.Visible()) frmParams_.txbTried.SetText(Outcome());
}

std::string TryIt::Outcome() {
  const ScanChoices choices = ReadScanChoices(frmParams_);
  if (IsSet(choices.allowCommentMarkers) && FindMarkerFault(choices)) {
    return text_.GetText(kMarkersRefusedText);
  }
  FilterChoices filters = ReadFilterChoices(frmParams_);
  // How often a word of the line occurs in a text that is counted nobody knows.
  filters.ignoreInfrequentWords = CheckState::kUnchecked;
  const std::string& line = frmParams_.txbTryIt.Text();
  return OutcomeText(
      ExplainText(line.substr(0, BytesOfFirst(line, kMostTried)), choices, filters, lists_.Lists()),
      filters, text_);
}

std::string OutcomeText(const Explanation& explanation, const FilterChoices& filters,
                        const ProgramText& text) {
  std::string outcome;
  for (const CandidateFate fate :
       {CandidateFate::kCounted, CandidateFate::kLeftOut, CandidateFate::kCut}) {
    const std::string words = ListOf(GroupsOf(fate, explanation.candidates, filters, text));
    if (words.empty()) continue;
    if (!outcome.empty()) outcome += kCrLf;
    outcome += Filled(text.GetText(kFirstTriedText + static_cast<int>(fate)), {words});
  }
  if (outcome.empty()) return text.GetText(kNothingTriedText);
  if (explanation.runsLeftWhole) outcome.append(kCrLf).append(text.GetText(kRunsLeftWholeText));
  return outcome;
}

}  // namespace quillomat
