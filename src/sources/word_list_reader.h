// The lists of words to ignore and of count-only words: typed by hand on the panel, or read from
// words files. A words file is scanned as a text is, with every sign allowed in words and /* */ and
// // comments skipped; it uses the word store, so the words of the last count are gone afterwards.
#pragma once

#include <cstddef>
#include <string>

#include "engine/word_list.h"
#include "sources/run_context.h"

namespace quillomat {

class WordListReader {
 public:
  explicit WordListReader(const RunContext& context) : context_(context) {}

  /// Parses the typed words into their list. Returns the cleaned text of the list or, when there
  /// are too many words, the message that says so; only the message ends with ".".
  std::string GetExtraWords(WordListKind kind);
  /// What happens when the user leaves the box of typed words.
  void OnExtraWordsLostFocus(WordListKind kind);

  /// Reads the words file named on the panel into its list; false when it cannot be read or is no
  /// text (only the latter is told to the user).
  [[nodiscard]] bool ReadWords(WordListKind kind);
  /// ReadWords with a check that the file is there, and a message about the outcome.
  bool AttemptToReadWords(WordListKind kind);
  /// Lets the user choose a words file and reads it.
  void SelectWordsFile(WordListKind kind);
  /// Forgets the words file and its list.
  void ClearWordsFile(WordListKind kind);
  /// Empties the list that was read from a file; its path stays.
  void ForgetWordsOfFile(WordListKind kind);

  /// Names the English common words as the words-to-ignore file.
  void SetPathToCWDs_Eng();

 private:
  void ScanWordsFile(const std::string& path);
  void TakeWordsFromStore(WordListKind kind);
  void TickAllowBoxesForListWords();
  [[nodiscard]] WordList& FileList(WordListKind kind);
  [[nodiscard]] WordList& ExtraList(WordListKind kind);
  [[nodiscard]] TextBox& PathBox(WordListKind kind);
  [[nodiscard]] TextBox& ExtraBox(WordListKind kind);

  const RunContext& context_;
  /// A line for the message about the last words file: what of it was too long, if that was it.
  std::string tooLong_;
};

}  // namespace quillomat
