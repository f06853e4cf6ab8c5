#include "reference/literal_arithmetic.h"
#include "reference/literal_engine.h"
#include "reference/literal_letters.h"
#include "reference/literal_rules.h"

namespace quillomat::reference {
namespace {

constexpr std::size_t kStoreStep = 500;
constexpr std::size_t kFileListStep = 100;
constexpr std::int32_t kLargestFileNumber = 99'999;
constexpr std::size_t kMostFileNumberCharacters = 40'000;

}  // namespace

void LiteralEngine::EmptyStore() {
  WordStore.assign(kStoreStep + 1, WordRec());
  NumDifferentWords = 0;
  WordOrder.clear();
  FileList.assign(kFileListStep + 1, Characters());
  CurrentFileNumber = 0;
}

bool LiteralEngine::TrackingFiles() const {
  return choices.optFolder && CountOnlyMode;
}

void LiteralEngine::AddWord(const Characters& word) {
  if (!ReadingWordList && word.size() > LongWordLimit) return;
  if (TrackingFiles()) NoteCurrentFile();
  WordOrder.push_back(KeyOf(word));
  if (NumDifferentWords == 0) {
    NumDifferentWords = 1;
    AppendWordRecord(word);
    EchoWord(word);
    if (CountOnlyMode) lblNumberOfWords.emplace_back("One word found so far.");
    return;
  }
  const std::int32_t known = FindWord(KeyOf(word));
  if (known > 0) {
    CountEntry(known);
    return;
  }
  const std::size_t upperBound = WordStore.size() - 1;
  if (upperBound == Index(NumDifferentWords)) WordStore.resize(WordStore.size() + kStoreStep);
  NumDifferentWords = Sum32(NumDifferentWords, 1);
  ShowNumberOfNewWord();
  EchoWord(word);
  if (choices.chkSuppressWords == 0 && txbOutput.size() > DisplayLimit) {
    OutputToTxb(U"\r\n\r\n[Suppressing display of words to avoid buffer overflow.]");
    choices.chkSuppressWords = 1;
  }
  AppendWordRecord(word);
  MoveNewWordIntoPlace();
}

/// The index of the entry with this key; 0 when there is none. The store is not empty.
std::int32_t LiteralEngine::FindWord(const Characters& key) const {
  std::int32_t lo = 1;
  std::int32_t hi = NumDifferentWords;
  while (true) {
    const std::int32_t mid = (lo + hi) / 2;
    if (WordStore[Index(mid)].SortKey == key) return mid;
    if (mid < NumDifferentWords && WordStore[Index(mid + 1)].SortKey == key) return mid + 1;
    if (key <= WordStore[Index(mid)].SortKey) {
      hi = mid;
    } else {
      lo = mid;
    }
    if ((lo + hi) / 2 == mid) return 0;
  }
}

void LiteralEngine::CountEntry(std::int32_t index) {
  WordRec& entry = WordStore[Index(index)];
  entry.Count = Sum32(entry.Count, 1);
  if (TrackingFiles()) CountWordInFile(index);
}

void LiteralEngine::ShowNumberOfNewWord() {
  const bool tenth = NumDifferentWords % 10 == 0;
  const std::string number = ToUtf8(Grouped(NumDifferentWords));
  if (ReadingWordList) {
    if (tenth) lblNumberOfWords.push_back("Number of words read so far: " + number);
  } else if (tenth || CountOnlyMode) {
    lblNumberOfWords.push_back("Number of different words found so far: " + number);
  }
}

void LiteralEngine::EchoWord(const Characters& word) {
  if (choices.chkSuppressWords == 0) OutputToTxb(word + U" ");
}

void LiteralEngine::AppendWordRecord(const Characters& word) {
  WordRec& entry = WordStore[Index(NumDifferentWords)];
  entry.Word = word;
  entry.Included = true;
  entry.SortKey = KeyOf(word);
  entry.Count = 1;
  if (ReadingWordList) return;
  if (TrackingFiles() && CurrentFileNumber <= kLargestFileNumber) {
    entry.FileNumbers = FiveDigits(CurrentFileNumber);
    entry.FileCounts = U"00001";
    entry.NumFiles = 1;
  } else {
    entry.FileNumbers = U"";
    entry.FileCounts = U"";
    entry.NumFiles = 0;
  }
}

void LiteralEngine::MoveNewWordIntoPlace() {
  const std::int32_t n = NumDifferentWords;
  if (WordStore[Index(n)].SortKey > WordStore[Index(n - 1)].SortKey) return;
  const WordRec copy = WordStore[Index(n)];
  std::int32_t j = 1;
  while (j < n && WordStore[Index(j)].SortKey <= copy.SortKey) j += 1;
  for (std::int32_t i = n - 1; i >= j; --i) WordStore[Index(i + 1)] = WordStore[Index(i)];
  WordStore[Index(j)] = copy;
}

void LiteralEngine::NoteCurrentFile() {
  const Characters path = FromUtf8(choices.txbFile0);
  if (path == FileList[Index(CurrentFileNumber)]) return;
  CurrentFileNumber = Sum32(CurrentFileNumber, 1);
  const std::size_t upperBound = FileList.size() - 1;
  if (Index(CurrentFileNumber) > upperBound) FileList.resize(FileList.size() + kFileListStep);
  FileList[Index(CurrentFileNumber)] = path;
}

void LiteralEngine::CountWordInFile(std::int32_t index) {
  WordRec& entry = WordStore[Index(index)];
  if (entry.FileNumbers.size() == kMostFileNumberCharacters) return;
  if (CurrentFileNumber > kLargestFileNumber) return;
  const Characters cur = FiveDigits(CurrentFileNumber);
  if (Right(entry.FileNumbers, kFileDigits) != cur) {
    entry.FileNumbers += cur;
    entry.FileCounts += U"00000";
    entry.NumFiles += 1;
  }
  const std::int32_t count = Sum16(NumericValue(Right(entry.FileCounts, kFileDigits)), 1);
  entry.FileCounts.resize(entry.FileCounts.size() - kFileDigits);
  entry.FileCounts += FiveDigits(count);
}

void LiteralEngine::ApplyWordFilters() {
  for (std::int32_t i = 1; i <= NumDifferentWords; ++i) {
    WordRec& entry = WordStore[Index(i)];
    entry.Included = PassesWordFilters(entry);
  }
}

bool LiteralEngine::PassesWordFilters(const WordRec& entry) const {
  const auto length = static_cast<std::int32_t>(entry.Word.size());
  if (choices.chkIgnoreInfrequentWords == 1 && entry.Count < choices.cboThresholdFrequency + 2) {
    return false;
  }
  if (choices.chkIgnoreShortWords == 1 && length < choices.cboShortWordSize + 2) return false;
  if (length > choices.longWordSize) return false;
  const Characters first = CharacterAt(entry.Word, 1);
  if (choices.chkIgnoreRepetitions == 1 && length > 1 && IsRepetition(entry.Word) &&
      !ContainsAnyOf(first, U"0123456789") && !(AllLetters() && IsAnyDigit(first[0]))) {
    return false;
  }
  if (choices.chkIgnoreRomNum40 == 1 && IsRomanNumeral(entry.Word, true)) return false;
  const auto lacksVowel = AllLetters() ? LacksVowelOfAll : LacksVowel;
  return !(choices.chkIgnoreNoVowelOrY == 1 && lacksVowel(entry.Word, true));
}

void LiteralEngine::TallyWords() {
  MaxWordLength = 0;
  NumIncludedWords = 0;
  MaxCount = 0;
  NumExcludedWords = 0;
  TotalIncludedCount = 0;
  for (std::int32_t i = 1; i <= NumDifferentWords; ++i) {
    const WordRec& entry = WordStore[Index(i)];
    if (!entry.Included) {
      NumExcludedWords = Sum32(NumExcludedWords, 1);
      continue;
    }
    NumIncludedWords = Sum32(NumIncludedWords, 1);
    TotalIncludedCount = Sum32(TotalIncludedCount, entry.Count);
    if (entry.Count > MaxCount) MaxCount = entry.Count;
    const std::int16_t length = As16(entry.Word.size());
    if (length > MaxWordLength) MaxWordLength = length;
  }
}

}  // namespace quillomat::reference
