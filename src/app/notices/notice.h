// What the window says about its list in one quiet line, without a box to click away. One
// table says when which notice holds, the most important first; whoever has another thing to tell
// adds a fact and a row.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace quillomat {

/// What a command of a notice does.
enum class NoticeAction : std::uint8_t {
  kNone,
  kShowSkipped,
  kShowLeftOut,
  kCountAgain,
  kCountAllLetters,
  // To open the panel where that is chosen.
  kChangeEncoding,
  kChangeCountOnlyWords,
  kChangeWordsToIgnore,
  kShowTable,
  kExport,
};

/// What is known of the list on display.
struct NoticeFacts {
  /// Words were counted, and what came of it is on display. Nothing else counts without.
  bool listStands = false;
  /// A list is on display whose words gave way to a file of words; nothing else is known then.
  bool wordsGone = false;
  /// How far the count came, in words, if it was stopped.
  std::string stopped = {};
  /// Files and folders that should have been read.
  std::int64_t skipped = 0;
  /// The text that the list is of, where the window names another one by now; one of the three.
  std::string file = {};
  std::string folder = {};
  bool clipboard = false;
  /// The list would be another one if it were made now.
  bool settingsChanged = false;
  /// Figures of the order of words are wanted, and were not when the words were counted.
  bool orderFiguresMissing = false;
  /// Letters of other alphabets than the count went by.
  std::int64_t foreignLetters = 0;
  /// Scripts without blanks were not cut into words.
  bool runsLeftWhole = false;
  /// What of the text's bytes was not as its encoding wants it (Uncounted).
  std::int64_t bytesNotDecoded = 0;
  /// The first of the files of a folder that has such bytes.
  std::string firstNotDecoded = {};
  std::int64_t linesNotUtf8 = 0;
  /// In which encodings texts were read because it was guessed so.
  std::string guessed = {};
  /// Files of a folder that were left out by design, and why, in words.
  std::int64_t filesLeftOut = 0;
  std::string leftOutBecause = {};
  /// Words files that were changed and read again before the count.
  std::string listsReadAgain = {};
  /// By the lists of words that the count went by.
  std::int64_t countOnlyWords = 0;
  /// All words were counted, though some are named that alone should have been.
  bool noCountOnlyWord = false;
  std::int64_t wordsToIgnore = 0;
  /// The words that the text box holds, of so many; all of them where the text is not looked at.
  std::int64_t wordsShown = 0;
  std::int64_t words = 0;
};

using NoticeValue = std::variant<std::int64_t, std::string>;

struct Notice {
  /// Its number among the rows, which tells notices apart.
  std::size_t row = 0;
  /// The number of the program text, and what goes into the places of that.
  int text = 0;
  std::vector<NoticeValue> values;
  std::array<NoticeAction, 2> actions{};
};

/// The notices that hold, the most important first.
[[nodiscard]] std::vector<Notice> NoticesOf(const NoticeFacts& facts);

/// The number of the text that a command with that action bears; 0 for kNone.
[[nodiscard]] int CaptionOf(NoticeAction action);

}  // namespace quillomat
