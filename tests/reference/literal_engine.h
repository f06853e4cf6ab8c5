// The literal engine: counting and listing step by step as the rules state them, slow and obvious.
// It is the judge of the engine that the program uses, so nothing here is made faster or shared
// with it.
//
// It plays the main window as far as counting and listing touch it: the choices, the scan settings,
// the word store, the word lists, the output text box and the word-count label are its members,
// under the names that the algorithms use. The callers of the public functions speak UTF-8; the
// members that are `Characters` can be read with ToUtf8.
//
// A run is: set `choices`, BeginRun, SetCommentMarkers, ScanLine or ScanText as often as there is
// text, FinishRun; then any number of listings. Every sum that does not fit throws Overflow.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "reference/literal_arithmetic.h"
#include "reference/literal_choices.h"
#include "reference/literal_letters.h"
#include "reference/literal_lists.h"
#include "reference/literal_text.h"

namespace quillomat::reference {

/// One different word.
struct WordRec {
  Characters Word;
  Characters SortKey;
  std::int32_t Count = 0;
  std::int32_t Rank = 0;
  std::int32_t NextByFrequency = 0;  // an index of the store; 0: none
  bool Included = false;
  Characters FileNumbers;  // five digits a file
  Characters FileCounts;   // five digits a file, in the same order
  std::int32_t NumFiles = 0;
};

/// What to list, and the numbers that stand in the first line of a folder's list.
struct ListingRequest {
  int cboWordOrder = 0;      // 1: alphabetical, otherwise by frequency
  int cboDisplayFormat = 0;  // 0 to 13
  std::int32_t numFiles = 0;
  std::int32_t numFolders = 0;
};

/// What a walk left in the text box.
struct TextboxListing {
  std::string text;
  std::string header;   // its first text: the lines before the first word
  std::string preview;  // its second text, put there beyond 2,048 characters; else empty
  bool textboxFull = false;
};

class LiteralEngine {
 public:
  static constexpr std::size_t kNumFlags = 11;

  LiteralChoices choices;

  // --- Scan settings ---
  std::array<bool, kNumFlags> AllowFlags{};
  std::array<bool, kNumFlags> ListCharFlags{};
  Characters ExtraWordChars;
  std::array<Characters, 2> CommentStart;
  std::array<Characters, 2> CommentEnd;
  int OpenComment = -1;  // stays from one text to the next, and from one run to the next
  bool UseCommentMarkers = false;
  bool ForceCommentMarkers = false;
  bool ReadingWordList = false;
  bool CountOnlyMode = false;

  void SetAllowWordsFlags();
  void BuildExtraWordChars();
  /// "HTML", "C", "" (no markers); anything else loads the markers of the choices.
  void SetCommentMarkers(std::string_view preset);
  /// The number of the first check that the markers of the choices fail, 1 to 4, or 0: the first
  /// start marker is empty; one is empty with an end marker; both are the same; every character of
  /// a start marker may stand in a word.
  [[nodiscard]] int CheckCommentMarkers();
  void ClearListCharFlags();
  void NoteListWordChars(const Characters& word);
  void TickAllowBoxesForListWords();

  // --- Runs ---
  /// Makes ready for a count: settings from the choices, an empty store, an empty text box.
  void BeginRun();
  /// Lower-cases the text unless letter case is significant, appends one blank and takes its words.
  void ScanText(std::string_view text);
  /// As ScanText, for a line of a file: trimmed first, and skipped when nothing is left.
  void ScanLine(std::string_view line);
  /// Filters (not for count-only words), totals and ranks.
  void FinishRun();

  // --- Word extraction ---
  Characters LineBuffer;
  std::size_t ScanPos = 1;
  std::int32_t WordsRead = 0;
  std::int32_t ForeignLetters = 0;  // met in texts, and of other alphabets than the western one
  bool StopRequested = false;
  /// Called wherever the program lets pending events happen; it may set StopRequested.
  std::function<void()> onYield;

  void GetWords();
  /// The next run of word characters, and a word of it.
  [[nodiscard]] Characters GetNextRun();
  [[nodiscard]] Characters FinalForm(const Characters& token);
  /// Finds the words of scripts without blanks where the letters of all languages are chosen;
  /// without it their runs stay whole.
  WordFinder findWords;
  [[nodiscard]] std::vector<Characters> PartsOf(const Characters& run) const;
  /// Where the letters of all languages are chosen these are other functions than else.
  [[nodiscard]] Characters Lower(const Characters& text) const;
  [[nodiscard]] Characters KeyOf(const Characters& word) const;
  [[nodiscard]] bool IsListed(const Characters& word, const WordList& list, bool sorted) const;
  [[nodiscard]] int FindCommentStart() const;
  void SkipComment();

  // --- Word lists ---
  WordList IgnoreList;
  WordList ExtraIgnoreList;
  WordList CountOnlyList;
  WordList ExtraCountOnlyList;

  /// Takes the typed words of the choices, 0: to ignore, 1: count-only. Returns the cleaned text,
  /// or a message that ends with "."; then the list is as it was.
  std::string GetExtraWords(int index);
  /// The different words of a words file, in the order of their keys. Empties the store, and leaves
  /// ReadingWordList set and the "C" comment markers loaded.
  std::vector<std::string> ReadListLines(const std::vector<std::string>& lines);
  /// ReadListLines into IgnoreList (0) or CountOnlyList (1, which also ticks boxes in the choices).
  void ReadWords(int index, const std::vector<std::string>& lines);

  // --- Word store ---
  std::vector<WordRec> WordStore = std::vector<WordRec>(501);  // index 0 holds no word
  std::int32_t NumDifferentWords = 0;
  std::vector<Characters> WordOrder;  // the key of every occurrence, as they come
  std::size_t LongWordLimit = 100;
  std::size_t DisplayLimit = 44'000;
  std::vector<Characters> FileList = std::vector<Characters>(101);  // index 0 holds no path
  std::int32_t CurrentFileNumber = 0;

  void EmptyStore();
  void AddWord(const Characters& word);
  void AppendWordRecord(const Characters& word);
  void MoveNewWordIntoPlace();
  void NoteCurrentFile();
  void CountWordInFile(std::int32_t index);

  // --- Filters and totals ---
  std::int32_t NumIncludedWords = 0;
  std::int32_t TotalIncludedCount = 0;
  std::int32_t MaxCount = 0;
  std::int32_t NumExcludedWords = 0;
  std::int16_t MaxWordLength = 0;

  void ApplyWordFilters();
  void TallyWords();

  // --- Text box and label ---
  Characters txbOutput;
  bool TextboxFull = false;
  std::vector<std::string> lblNumberOfWords;  // the texts that the label has shown, in their order

  void OutputToTxb(const Characters& text);
  void ClearOutput();

  // --- Listing ---
  std::int32_t ChainHead = 0;
  std::int16_t MinColumnWidth = 6;
  std::size_t OutputLengthLimit = 44'000;
  std::int16_t RankWidth = 0;
  std::int16_t FreqWidth = 0;
  std::int16_t FilesWidth = 0;
  std::int16_t WordWidth = 0;
  int lblTwirler = U' ';  // the character code that the turning label shows

  void RankByFrequency();
  /// Why the format cannot be shown, with CR LF line breaks; empty when it can.
  [[nodiscard]] std::string CheckDisplayFormat(int format) const;
  /// The walk into the text box.
  TextboxListing ListToTextbox(const ListingRequest& request);
  /// The walk into an output file: what the file then holds.
  std::string ListToFile(const ListingRequest& request, std::string_view lineBreak);
  /// What the text box shows in the end: the message when no word is listed, else the walk's text.
  std::string ListWords(const ListingRequest& request);
  [[nodiscard]] Characters NoWordsMessage() const;

  [[nodiscard]] Characters RankCell(std::int32_t index) const;
  [[nodiscard]] Characters FreqCell(std::int32_t index) const;
  [[nodiscard]] Characters FilesCell(std::int32_t index) const;
  [[nodiscard]] Characters LogRankCell(std::int32_t index, bool useLog10) const;
  [[nodiscard]] Characters LogFreqCell(std::int32_t index, bool useLog10) const;
  [[nodiscard]] Characters WordCell(std::int32_t index) const;
  [[nodiscard]] Characters FileListText(std::int32_t index, bool withFreq) const;

 private:
  [[nodiscard]] std::array<int*, kNumFlags> AllowBoxes();
  [[nodiscard]] bool AllLetters() const { return choices.cboLetters == 1; }
  [[nodiscard]] bool SkipCommentsHere();
  [[nodiscard]] bool MayStartWord(const Characters& ch) const;
  [[nodiscard]] bool RestIsOneBlank() const;
  void PrepareLineBuffer();
  void TakeWord(const Characters& word);
  void ScanPrepared(const Characters& text);
  void CountForeignLetters();
  void Yield() const;

  [[nodiscard]] std::vector<Characters> CutItems(const std::vector<Characters>& items) const;
  void CollectListWords(const std::vector<std::string>& lines);

  [[nodiscard]] bool TrackingFiles() const;
  [[nodiscard]] std::int32_t FindWord(const Characters& key) const;
  void CountEntry(std::int32_t index);
  void ShowNumberOfNewWord();
  void EchoWord(const Characters& word);
  [[nodiscard]] bool PassesWordFilters(const WordRec& entry) const;

  void LinkFrequencyChain();
  void Walk();
  void ListAlphabetical();
  void ListByFrequency();
  void WriteScanHeader();
  void ComputeColumnWidths();
  void FormatWordLine(std::int32_t index);
  [[nodiscard]] Characters LineText(std::int32_t index) const;
  [[nodiscard]] Characters PlainLayout(std::int32_t index) const;
  [[nodiscard]] Characters CommaLayout(std::int32_t index) const;
  [[nodiscard]] Characters HeaderLine(const Characters& header) const;
  [[nodiscard]] bool FolderIsAbbreviated() const;
  void EmitToTextbox(std::int32_t index, const Characters& line);
  void EmitToFile(std::int32_t index, const Characters& line);

  // One walk.
  ListingRequest request_;
  bool outputToFile_ = false;
  Characters lineBreak_ = U"\r\n";
  Characters accumulator_;
  Characters outputFile_;
  Characters header_;
  Characters preview_;
  bool previewShown_ = false;
};

}  // namespace quillomat::reference
