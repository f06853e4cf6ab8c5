#include "engine/explain/text_explainer.h"

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "base/line_decoder.h"
#include "base/text_helpers.h"
#include "engine/explain/candidate_finder.h"
#include "engine/explain/text_origins.h"
#include "engine/final_form.h"
#include "engine/token_taker.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"

namespace quillomat {
namespace {

class NeverAsked final : public ScanYield {
 public:
  bool Yield() override { return false; }
};

CandidateReason ReasonOf(ListVerdict verdict) {
  switch (verdict) {
    case ListVerdict::kTypedToIgnore:
      return CandidateReason::kTypedToIgnore;
    case ListVerdict::kFileToIgnore:
      return CandidateReason::kFileToIgnore;
    case ListVerdict::kNotCountOnly:
      return CandidateReason::kNotCountOnly;
    case ListVerdict::kAdmitted:
      break;
  }
  return CandidateReason::kNone;
}

CandidateReason ReasonOf(WordFilter filter) {
  switch (filter) {
    case WordFilter::kInfrequent:
      return CandidateReason::kInfrequent;
    case WordFilter::kShort:
      return CandidateReason::kShort;
    case WordFilter::kLong:
      return CandidateReason::kLong;
    case WordFilter::kRepetition:
      return CandidateReason::kRepetition;
    case WordFilter::kRomanNumeral:
      return CandidateReason::kRomanNumeral;
    case WordFilter::kNoVowel:
      return CandidateReason::kNoVowel;
    case WordFilter::kNone:
      break;
  }
  return CandidateReason::kNone;
}

class TextExplainer {
 public:
  TextExplainer(const ScanChoices& choices, const FilterChoices& filters, const WordLists& lists)
      : choices_(choices),
        filters_(filters),
        lists_(lists),
        settings_(SettingsOf(choices, lists)),
        scanner_(settings_, choices, lists, store_, yield_) {}

  /// A piece of the text, behind those before it.
  void Take(std::string_view text) {
    std::string buffer;
    CandidateFinder finder;
    scanner_.ShowTokens(
        PrepareLine(text, IsSet(choices_.caseSignificant), buffer, choices_.letters), finder);
    const TextOrigins origins(text, finder.Text(), choices_);
    for (const FoundPiece& piece : finder.TakePieces()) {
      Add(piece, finder.Text(), origins);
    }
  }

  /// Behind the last piece.
  Explanation Finish() {
    if (!settings_.CountOnlyMode) ApplyFilters();
    return {std::move(candidates_), settings_.Uncounted.runsLeftWhole};
  }

 private:
  static ScanSettings SettingsOf(const ScanChoices& choices, const WordLists& lists) {
    ScanSettings settings;
    settings.CountOnlyMode = lists.HasCountOnlyWords();
    settings.SetAllowWordsFlags(choices);
    settings.BuildExtraWordChars();
    settings.SetCommentMarkers(IsSet(choices.allowCommentMarkers) ? kUserPreset : kNoPreset,
                               choices);
    return settings;
  }

  void Add(const FoundPiece& piece, std::string_view scanned, const TextOrigins& origins) {
    Candidate& candidate = candidates_.emplace_back();
    candidate.text = origins.At(piece.start, piece.end);
    if (piece.kind == FoundPiece::Kind::kToken) {
      return Decide(scanned.substr(piece.start, piece.end - piece.start), candidate);
    }
    const bool cut = piece.kind == FoundPiece::Kind::kCut;
    candidate.fate = cut ? CandidateFate::kCut : CandidateFate::kLeftOut;
    candidate.reason = piece.reason;
    candidate.word = piece.signs;
  }

  /// What becomes of a token, but for the filters.
  void Decide(std::string_view token, Candidate& candidate) {
    const FinalForm form = FinalFormOf(token, choices_);
    candidate.trimmed = form.trimmed.size() < token.size();
    if (form.word.empty()) {
      const bool signsAlone = form.trimmed.empty();
      return LeaveOut(candidate,
                      signsAlone ? CandidateReason::kSignsAlone : CandidateReason::kFragment);
    }
    candidate.lostFinalS = form.word.size() < form.trimmed.size();
    candidate.word = form.word;
    const ListVerdict verdict = lists_.VerdictOn(form.word, settings_.CountOnlyMode);
    if (verdict != ListVerdict::kAdmitted) return LeaveOut(candidate, ReasonOf(verdict));
    const std::optional<std::uint32_t> place = store_.AddWord(form.word);
    if (!place) return LeaveOut(candidate, CandidateReason::kTooLongToStore);
    candidate.word = store_.WordAtPlace(*place);
    candidate.spelledAsBefore = candidate.word != form.word;
  }

  static void LeaveOut(Candidate& candidate, CandidateReason reason) {
    candidate.fate = CandidateFate::kLeftOut;
    candidate.reason = reason;
  }

  /// They look at a word when all of the text has been counted.
  void ApplyFilters() {
    std::map<std::string_view, WordFilter> excluded;
    for (std::int32_t index = 1; index <= store_.NumDifferentWords(); ++index) {
      const WordRec record = store_.At(index);
      const WordFilter filter = FilterThatExcludes(record, filters_);
      if (filter != WordFilter::kNone) excluded.emplace(record.Word, filter);
    }
    for (Candidate& candidate : candidates_) {
      if (candidate.fate != CandidateFate::kCounted) continue;
      const auto found = excluded.find(candidate.word);
      if (found != excluded.end()) LeaveOut(candidate, ReasonOf(found->second));
    }
  }

  const ScanChoices& choices_;
  const FilterChoices& filters_;
  const WordLists& lists_;
  ScanSettings settings_;
  WordStore store_;
  NeverAsked yield_;
  WordScanner scanner_;
  std::vector<Candidate> candidates_;
};

}  // namespace

Explanation ExplainText(std::string_view text, const ScanChoices& choices,
                        const FilterChoices& filters, const WordLists& lists) {
  TextExplainer explainer(choices, filters, lists);
  explainer.Take(text);
  return explainer.Finish();
}

Explanation ExplainLines(std::string_view text, const ScanChoices& choices,
                         const FilterChoices& filters, const WordLists& lists) {
  TextExplainer explainer(choices, filters, lists);
  LineDecoder lines(text);
  while (const auto line = lines.NextLine()) {
    const std::string_view trimmed = TrimBlanks(*line);
    if (!trimmed.empty()) explainer.Take(trimmed);
  }
  return explainer.Finish();
}

}  // namespace quillomat
