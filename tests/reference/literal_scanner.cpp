#include "reference/literal_engine.h"
#include "reference/literal_entities.h"
#include "reference/literal_letters.h"
#include "reference/literal_rules.h"

namespace quillomat::reference {

void LiteralEngine::GetWords() {
  PrepareLineBuffer();
  ScanPos = 1;
  while (ScanPos < LineBuffer.size()) {
    if (UseCommentMarkers && !SkipCommentsHere()) return;
    if (!MayStartWord(CharacterAt(LineBuffer, ScanPos))) {
      ScanPos += 1;
      if (RestIsOneBlank()) return;
      continue;
    }
    for (const Characters& part : PartsOf(GetNextRun())) {
      const Characters word = FinalForm(part);
      if (!word.empty()) TakeWord(word);
    }
    Yield();
    if (StopRequested) return;
  }
}

void LiteralEngine::PrepareLineBuffer() {
  if (ReadingWordList) {
    UseCommentMarkers = true;
    if (AllLetters()) LineBuffer = Composed(LineBuffer);
    return;
  }
  UseCommentMarkers = (choices.chkAllowCommentMarkers == 1 &&
                       (!CommentStart[0].empty() || !CommentStart[1].empty())) ||
                      ForceCommentMarkers;
  LineBuffer = Replace(LineBuffer, U"--", U" ");
  DecodeHtmlEntities(LineBuffer);
  if (AllLetters()) LineBuffer = Composed(LineBuffer);  // small letters, and those of entities
}

/// Whether the scan of this text goes on after the comments that are open or begin here.
bool LiteralEngine::SkipCommentsHere() {
  if (OpenComment == -1) OpenComment = FindCommentStart();
  while (OpenComment >= 0) {
    SkipComment();
    if (ScanPos > LineBuffer.size()) return false;
    if (RestIsOneBlank()) {
      OpenComment = -1;
      return false;
    }
    OpenComment = FindCommentStart();
  }
  return true;
}

bool LiteralEngine::MayStartWord(const Characters& ch) const {
  if (AllLetters()) {
    const bool inside = CountWordCharsOfAll(ch, 1, AllowFlags[10], ExtraWordChars) == 1;
    return inside && InStr(1, U"-'.,()", ch) == 0;
  }
  return IsWordChar(ch, false, ExtraWordChars) && InStr(1, U"-'.,()", ch) == 0;
}

bool LiteralEngine::RestIsOneBlank() const {
  return ScanPos == LineBuffer.size() && CharacterAt(LineBuffer, ScanPos) == U" ";
}

void LiteralEngine::TakeWord(const Characters& word) {
  if (ReadingWordList) {
    AddWord(word);
    return;
  }
  WordsRead = Sum32(WordsRead, 1);
  if (CountOnlyMode) {
    const bool listed = IsListed(word, ExtraCountOnlyList, false);
    if (listed || IsListed(word, CountOnlyList, false)) AddWord(word);
    return;
  }
  if (ExtraIgnoreList.count == 0 && IgnoreList.count == 0) {
    AddWord(word);
    return;
  }
  if (IsListed(word, ExtraIgnoreList, false)) return;
  if (IsListed(word, IgnoreList, true)) return;
  AddWord(word);
}

/// Of all letters: whether an entry is the word but for letter case. Accents make a difference.
bool LiteralEngine::IsListed(const Characters& word, const WordList& list, bool sorted) const {
  if (!AllLetters()) {
    const auto keyOf = [this](const Characters& entry) { return KeyOf(entry); };
    return IsInList(LowerCase(word), list.entries, 1, list.count, sorted, keyOf);
  }
  for (std::size_t i = 1; i <= static_cast<std::size_t>(list.count); ++i) {
    if (FoldCaseOfAll(list.entries[i]) == FoldCaseOfAll(word)) return true;
  }
  return false;
}

Characters LiteralEngine::GetNextRun() {
  const auto count = AllLetters() ? CountWordCharsOfAll : CountWordChars;
  const std::size_t n = count(LineBuffer, ScanPos, AllowFlags[10], ExtraWordChars);
  const std::size_t start = ScanPos;
  ScanPos += n;
  return Mid(LineBuffer, start, n);
}

std::vector<Characters> LiteralEngine::PartsOf(const Characters& run) const {
  if (!AllLetters() || !findWords) return {run};
  return CutRun(run, AllowFlags[10], ExtraWordChars, findWords);
}

Characters LiteralEngine::FinalForm(const Characters& token) {
  Characters word = TrimTrailingChars(token, U"-'.,:()");
  if (choices.chkDropFinalS == 1 && !ReadingWordList) {
    word = AllLetters() ? ApplyFinalSRuleOfAll(word) : ApplyFinalSRule(word);
  }
  if (choices.chkAllowWordsWithApostrophes == 0 && !ReadingWordList) {
    word = ApplyApostropheFragmentRule(word);
  }
  if (!word.empty() && ReadingWordList) NoteListWordChars(word);
  return word;
}

int LiteralEngine::FindCommentStart() const {
  for (const int i : {0, 1}) {
    const Characters marker = Lower(CommentStart[static_cast<std::size_t>(i)]);
    if (marker.empty()) continue;
    const Characters here = Mid(LineBuffer, ScanPos, marker.size());
    if ((AllLetters() ? LowerCaseOfAll(here) : LowerCase(here)) != marker) continue;
    if (i == 1 && marker == U"&" && ForceCommentMarkers) {
      return HtmlEntityEnd(Mid(LineBuffer, ScanPos)) >= 1 ? 1 : -1;
    }
    return i;
  }
  return -1;
}

void LiteralEngine::SkipComment() {
  const Characters e = Lower(CommentEnd[static_cast<std::size_t>(OpenComment)]);
  if (e.empty()) {
    ScanPos = LineBuffer.size() + 1;
    OpenComment = -1;
    return;
  }
  const std::size_t p = InStr(ScanPos, LineBuffer, e);
  ScanPos = p > 0 ? p + e.size() : LineBuffer.size() + 1;
}

}  // namespace quillomat::reference
