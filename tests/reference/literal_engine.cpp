#include "reference/literal_engine.h"

#include "reference/literal_letters.h"
#include "reference/literal_rules.h"

namespace quillomat::reference {
namespace {

// In the order of the flags.
const std::array<Characters, LiteralEngine::kNumFlags>& FlagCharacters() {
  static const std::array<Characters, LiteralEngine::kNumFlags> kFlagCharacters = {
      U"-", U"'", U"_", U":", U"\\", U"/", U"()", U".", U",", U"@", U"0123456789"};
  return kFlagCharacters;
}

}  // namespace

std::array<int*, LiteralEngine::kNumFlags> LiteralEngine::AllowBoxes() {
  return {&choices.chkAllowWordsWithHyphens,     &choices.chkAllowWordsWithApostrophes,
          &choices.chkAllowWordsWithUnderscores, &choices.chkAllowWordsWithColons,
          &choices.chkAllowWordsWithBackslashes, &choices.chkAllowWordsWithForwardslashes,
          &choices.chkAllowWordsWithParentheses, &choices.chkAllowWordsWithPeriods,
          &choices.chkAllowWordsWithCommas,      &choices.chkAllowWordsWithAtSigns,
          &choices.chkAllowWordsWithNumerals};
}

void LiteralEngine::SetAllowWordsFlags() {
  const std::array<int*, kNumFlags> boxes = AllowBoxes();
  for (std::size_t i = 0; i < kNumFlags; ++i) {
    AllowFlags[i] = ReadingWordList || *boxes[i] == 1;
  }
}

void LiteralEngine::BuildExtraWordChars() {
  ExtraWordChars.clear();
  for (std::size_t i = 0; i < kNumFlags; ++i) {
    if (AllowFlags[i]) ExtraWordChars = FlagCharacters()[i] + ExtraWordChars;
  }
}

void LiteralEngine::SetCommentMarkers(std::string_view preset) {
  if (preset == "HTML") {
    CommentStart = {U"<", U"&"};
    CommentEnd = {U">", U";"};
  } else if (preset == "C") {
    CommentStart = {U"/*", U"//"};
    CommentEnd = {U"*/", U""};
  } else if (preset.empty()) {
    CommentStart = {U"", U""};
    CommentEnd = {U"", U""};
  } else {
    for (std::size_t i = 0; i < 2; ++i) {
      CommentStart[i] = FromUtf8(choices.txbStartComment[i]);
      CommentEnd[i] = FromUtf8(choices.txbEndComment[i]);
    }
  }
}

int LiteralEngine::CheckCommentMarkers() {
  SetCommentMarkers("user");
  if (CommentStart[0].empty()) return 1;
  for (std::size_t i = 0; i < 2; ++i) {
    if (CommentStart[i].empty() && !CommentEnd[i].empty()) return 2;
  }
  for (std::size_t i = 0; i < 2; ++i) {
    if (!CommentStart[i].empty() && CommentStart[i] == CommentEnd[i]) return 3;
  }
  ReadingWordList = false;
  SetAllowWordsFlags();
  BuildExtraWordChars();
  const auto count = AllLetters() ? CountWordCharsOfAll : CountWordChars;
  for (const Characters& marker : CommentStart) {
    if (marker.empty()) continue;
    if (count(marker, 1, AllowFlags[10], ExtraWordChars) == marker.size()) return 4;
  }
  return 0;
}

void LiteralEngine::ClearListCharFlags() {
  ListCharFlags.fill(false);
}

void LiteralEngine::NoteListWordChars(const Characters& word) {
  for (std::size_t i = 0; i < kNumFlags; ++i) {
    if (!ListCharFlags[i]) ListCharFlags[i] = ContainsAnyOf(word, FlagCharacters()[i]);
  }
  if (!AllLetters()) return;
  for (const char32_t character : word) {
    if (IsAnyDigit(character)) ListCharFlags[10] = true;
  }
}

void LiteralEngine::TickAllowBoxesForListWords() {
  const std::array<int*, kNumFlags> boxes = AllowBoxes();
  for (std::size_t i = 0; i < kNumFlags; ++i) {
    if (ListCharFlags[i]) *boxes[i] = 1;
  }
}

void LiteralEngine::BeginRun() {
  ClearOutput();
  lblNumberOfWords.clear();
  MinColumnWidth = 6;
  CountOnlyMode = CountOnlyList.count >= 1 || ExtraCountOnlyList.count >= 1;
  ReadingWordList = false;
  SetAllowWordsFlags();
  BuildExtraWordChars();
  ForceCommentMarkers = false;
  TextboxFull = false;
  WordsRead = 0;
  ForeignLetters = 0;
  StopRequested = false;
  EmptyStore();
}

void LiteralEngine::ScanText(std::string_view text) {
  if (text.empty()) return;
  ScanPrepared(FromUtf8(text));
}

void LiteralEngine::ScanLine(std::string_view line) {
  const Characters trimmed = Trim(FromUtf8(line));
  if (trimmed.empty()) return;
  ScanPrepared(trimmed);
}

void LiteralEngine::ScanPrepared(const Characters& text) {
  LineBuffer = text;
  if (AllLetters()) LineBuffer = NormalForm(LineBuffer);
  if (choices.chkCaseSignificant != 1) {
    LineBuffer = AllLetters() ? LowerCaseOfAll(LineBuffer) : LowerCase(LineBuffer);
  }
  if (!AllLetters()) CountForeignLetters();
  LineBuffer += U" ";
  GetWords();
}

/// Those that the rule for all letters takes into words. A mark belongs to the letter before it.
void LiteralEngine::CountForeignLetters() {
  bool behindLetter = false;
  for (const char32_t character : LineBuffer) {
    if (NormalForm({character}).empty()) continue;  // dropped from between letter and mark
    if (IsAnyMark(character)) {
      if (behindLetter) ForeignLetters += 1;
      continue;
    }
    behindLetter = IsAnyLetter(character) && IsAnyLetter(NormalForm({character})[0]);
    const bool western = character <= 255 && character != U'\u00AA' && character != U'\u00B5' &&
                         character != U'\u00BA';
    if (behindLetter && !western) ForeignLetters += 1;
  }
}

Characters LiteralEngine::Lower(const Characters& text) const {
  return AllLetters() ? NormalLowerCase(text) : LowerCase(text);
}

Characters LiteralEngine::KeyOf(const Characters& word) const {
  const bool keepAccents = choices.chkFoldAccents != 1;
  if (AllLetters()) return keepAccents ? FoldCaseOfAll(word) : FoldAccentsOfAll(word);
  return keepAccents ? LowerCase(word) : SortKeyOf(word);
}

void LiteralEngine::FinishRun() {
  if (!CountOnlyMode) ApplyWordFilters();
  TallyWords();
  RankByFrequency();
}

void LiteralEngine::Yield() const {
  if (onYield) onYield();
}

void LiteralEngine::OutputToTxb(const Characters& text) {
  if (!TextboxFull) txbOutput += text;
}

void LiteralEngine::ClearOutput() {
  txbOutput.clear();
  TextboxFull = false;
}

}  // namespace quillomat::reference
