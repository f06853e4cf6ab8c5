// The lists of words to ignore and of count-only words: typed by hand on the panel, or read from
// words files (words_file.h). Reading one uses the word store, so the words of the last count are
// gone afterwards.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "app/count/words_file.h"
#include "app/what_parts_share.h"
#include "engine/scan_settings.h"
#include "engine/uncounted.h"
#include "engine/word_list.h"
#include "sources/guessed_sets.h"
#include "ui/event.h"

namespace quillomat {

class WordListReader {
 public:
  /// All must outlive it.
  WordListReader(const UserSide& user, const ProgramFacts& facts, PathBoxes& paths)
      : frmMain_(user.frmMain),
        frmParams_(user.frmParams),
        output_(user.output),
        messages_(user.messages),
        run_(facts.run),
        words_(facts.words),
        inForce_(facts.inForce),
        paths_(paths),
        flags_(facts.flags) {}

  /// What came of typed words.
  struct TypedWords {
    /// False where there are too many; the list stands as it was.
    bool taken = true;
    /// The cleaned text of the list or, where it was not taken, the message that says why.
    std::string text;
  };
  /// Parses the typed words into their list.
  TypedWords GetExtraWords(WordListKind kind);
  /// What happens when the user leaves the box of typed words.
  void OnExtraWordsLostFocus(WordListKind kind);

  /// Reads the words file named on the panel into its list; false when it cannot be read or is no
  /// text (only the latter is told to the user).
  [[nodiscard]] bool ReadWords(WordListKind kind);
  /// ReadWords with a check that the file is there, and a message about the outcome. A file that is
  /// refused leaves its list empty, and its box as well unless a state is being restored.
  bool AttemptToReadWords(WordListKind kind);
  /// What happens when the user leaves the box of a words file: another file than the one in force
  /// is read, and an emptied box empties its list.
  void OnWordsFileLostFocus(WordListKind kind);

  /// Makes the lists what their boxes say, before a count: a file is read unless its words are in
  /// force already and it has not been changed since.
  /// False when a box does not stand for a list; the user has been told, about nothing else.
  [[nodiscard]] bool TakeBoxes();
  /// Lets the user choose a words file and reads it.
  void SelectWordsFile(WordListKind kind);
  /// Makes one of the lists that come with the program the words-to-ignore file, and reads it.
  void ChooseCommonWords(const std::string& path);
  /// Forgets the words file and its list.
  void ClearWordsFile(WordListKind kind);
  /// Empties the list that was read from a file; its path stays, and is read before a count.
  void ForgetWordsOfFile(WordListKind kind);

  /// Names the English common words as the words-to-ignore file.
  void SetPathToCWDs_Eng();

  /// A list was read, parsed or emptied.
  Event<> ListTaken;

 private:
  [[nodiscard]] bool WantsWordsToIgnore();
  void TellLoaded(WordListKind kind, const std::string& path);
  [[nodiscard]] bool TellNotFound(WordListKind kind);
  void TellNotLoaded(WordListKind kind, const std::string& path);
  [[nodiscard]] bool TakeWordsFile(WordListKind kind);
  [[nodiscard]] bool ReadForCount(WordListKind kind, const std::string& path);
  [[nodiscard]] bool TakeTypedWords(WordListKind kind);
  void DecodeTypedWords(WordListKind kind);
  void TellTypedLosses(WordListKind kind, const std::string& cleaned);
  void ScanWordsFile(WordsFile& file, const ScanChoices& choices);
  void TakeWordsFromStore(WordListKind kind);
  void TickAllowBoxesForListWords();
  [[nodiscard]] WordList& FileList(WordListKind kind);
  [[nodiscard]] WordList& ExtraList(WordListKind kind);
  [[nodiscard]] TextBox& PathBox(WordListKind kind);
  [[nodiscard]] TextBox& ExtraBox(WordListKind kind);

  /// Whether the words of the file are those that it has under the present rule of letters, and in
  /// the present encoding.
  [[nodiscard]] bool IsInForce(WordListKind kind, const std::string& path);
  /// Whether the file of the list holds what it held then; true where that cannot be told.
  [[nodiscard]] bool HoldsTheSame(WordListKind kind);
  /// The file that the list was read from; "" when it was read from none.
  [[nodiscard]] std::string& FileInForce(WordListKind kind);

  MainForm& frmMain_;
  ParamsForm& frmParams_;
  OutputBox& output_;
  const Messages& messages_;
  RunState& run_;
  CurrentWords& words_;
  InForce& inForce_;
  PathBoxes& paths_;
  const WindowFlags& flags_;
  /// A line for the message about the last words file: what of it was too long, if that was it.
  std::string tooLong_;
  /// The typed lists of which the user has been told that they cannot be used as a whole.
  std::array<std::string, 2> lossyTyped_;
  /// The files of which the user has been told that they are away.
  std::array<std::string, 2> toldAway_;
  // Of the last words file, by the settings that it was read with.
  Uncounted notRead_;
  GuessedSets guessed_;
};

}  // namespace quillomat
