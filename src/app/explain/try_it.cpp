#include "app/explain/try_it.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "app/count/panel_choices.h"
#include "app/explain/candidate_text.h"
#include "app/setting_values.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/explain/text_explainer.h"
#include "sources/marker_fault.h"
#include "text/caption_table.h"
#include "text/filled_text.h"

namespace quillomat {
namespace {

constexpr std::string_view kLineName = "txbTryIt";

/// "cat", or "cat (without its final s)".
std::string ItemOf(const Candidate& candidate, const FilterChoices& filters,
                   const ProgramText& text) {
  const bool counted = candidate.fate == CandidateFate::kCounted;
  const std::string why =
      counted ? ChangeText(candidate, text) : ReasonText(candidate, filters, text);
  std::string item = counted ? candidate.word : candidate.text;
  if (!why.empty()) item.append(" (").append(why).append(")");
  return item;
}

/// Those of one fate, each once, with commas between them.
std::string ItemsOf(CandidateFate fate, const std::vector<Candidate>& candidates,
                    const FilterChoices& filters, const ProgramText& text) {
  std::vector<std::string> items;
  std::string joined;
  for (const Candidate& candidate : candidates) {
    if (candidate.fate != fate) continue;
    std::string item = ItemOf(candidate, filters, text);
    if (std::ranges::find(items, item) != items.end()) continue;
    if (!joined.empty()) joined += ", ";
    joined += item;
    items.push_back(std::move(item));
  }
  return joined;
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
  // What they name is read when they are left, or a command has named it.
  const auto updateAfterClick = [this] { frmParams_.AfterClick([this] { Update(); }); };
  for (std::size_t kind = 0; kind < 2; ++kind) {
    frmParams_.txbWordsFile[kind].LostFocus.Connect(updateAfterClick);
    frmParams_.txbWordsToIgnoreOrCount[kind].LostFocus.Connect(updateAfterClick);
    frmParams_.cmdSelectWordsFile[kind].Click.Connect(updateAfterClick);
  }
  frmParams_.lblState.Changed.Connect(update);  // a state was loaded
}

void TryIt::Reset() {
  SetToDefault(*FindSetting(AllSettings(), kLineName), frmParams_.txbTryIt);
}

void TryIt::Update() {
  if (frmParams_.Visible()) frmParams_.txbTried.SetText(Outcome());
}

std::string TryIt::Outcome() const {
  const ScanChoices choices = ReadScanChoices(frmParams_);
  if (IsSet(choices.allowCommentMarkers) && FindMarkerFault(choices)) {
    return text_.GetText(kMarkersRefusedText);
  }
  FilterChoices filters = ReadFilterChoices(frmParams_);
  // How often a word of the line occurs in a text that is counted nobody knows.
  filters.ignoreInfrequentWords = CheckState::kUnchecked;
  const std::string& line = frmParams_.txbTryIt.Text();
  const std::vector<Candidate> candidates =
      ExplainText(line.substr(0, BytesOfFirst(line, kMostTried)), choices, filters, inForce_.lists);
  std::string outcome;
  for (const CandidateFate fate :
       {CandidateFate::kCounted, CandidateFate::kLeftOut, CandidateFate::kCut}) {
    const std::string items = ItemsOf(fate, candidates, filters, text_);
    if (items.empty()) continue;
    if (!outcome.empty()) outcome += kCrLf;
    outcome += Filled(text_.GetText(kFirstTriedText + static_cast<int>(fate)), {items});
  }
  return outcome.empty() ? text_.GetText(kNothingTriedText) : outcome;
}

}  // namespace quillomat
