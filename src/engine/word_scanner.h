// The scanner: finds the words in a piece of text (a line of a file, a whole clipboard text, a line
// of a words file), cuts each to its final form, decides whether it is to be counted, and hands it
// to the word store. It skips comments and decodes entities.
//
// One scanner serves one run. Text is well-formed UTF-8. The caller has prepared it (PrepareLine):
// lower-cased it unless letter case is significant, and appended one blank, as the last character
// of a text never starts a word.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/char_class.h"
#include "engine/comment_markers.h"
#include "engine/line_block.h"
#include "engine/scan_settings.h"
#include "engine/token_classes.h"
#include "engine/token_taker.h"
#include "engine/word_list.h"
#include "engine/word_store.h"

namespace quillomat {

/// Lets the user interface live while text is scanned.
class ScanYield {
 public:
  ScanYield() = default;
  ScanYield(const ScanYield&) = delete;
  ScanYield& operator=(const ScanYield&) = delete;
  ScanYield(ScanYield&&) = delete;
  ScanYield& operator=(ScanYield&&) = delete;
  virtual ~ScanYield() = default;

  /// Called after every candidate word, so it must cost next to nothing. True when the user has
  /// asked the run to stop.
  virtual bool Yield() = 0;

  /// For many words at once: how many calls may be put off, and what makes up for them. `calls` is
  /// 1 to CallsLeft().
  [[nodiscard]] virtual std::uint32_t CallsLeft() const { return 1; }
  virtual bool YieldFor(std::uint32_t /*calls*/) { return Yield(); }
};

/// Is shown what a scan finds in a piece of text. All are views into the text of OnText.
class ScanWitness {
 public:
  ScanWitness() = default;
  ScanWitness(const ScanWitness&) = delete;
  ScanWitness& operator=(const ScanWitness&) = delete;
  ScanWitness(ScanWitness&&) = delete;
  ScanWitness& operator=(ScanWitness&&) = delete;
  virtual ~ScanWitness() = default;

  /// First: the text as it is scanned, rewritten and in normal form. It lives
  /// until the scanner is given another.
  virtual void OnText(std::string_view text) = 0;
  /// A comment with its markers, or as much of it as stands in this text.
  virtual void OnComment(std::string_view comment) = 0;
  /// A run of word characters that starts as words may start.
  virtual void OnToken(std::string_view token) = 0;
};

class WordScanner {
 public:
  /// Everything referred to must outlive the scanner. `settings` is ready (SetAllowWordsFlags,
  /// BuildExtraWordChars); its markers may change between texts, its flags and lists may not. The
  /// store takes its rule of keys from the choices.
  WordScanner(ScanSettings& settings, const ScanChoices& choices, const WordLists& lists,
              WordStore& store, ScanYield& yield);

  /// Scans one piece of text. Throws RunTimeError 6 when a counter overflows.
  void GetWords(std::string_view lineBuffer);

  /// Scans it likewise, but shows what is found and counts nothing. Comments are carried on.
  void ShowTokens(std::string_view lineBuffer, ScanWitness& witness);

  /// How many bytes at the start of `lines`, which are whole lines with their line feeds, can be
  /// given to GetWordsOfLines; 0 when the first line needs GetWords.
  [[nodiscard]] std::size_t PlainLineBytes(std::string_view lines);

  /// Scans lines of the last PlainLineBytes in one go, as they stand in the file: with the results
  /// of GetWords for each of them, many times faster.
  void GetWordsOfLines(std::string_view lines);

  /// Whether lines can be scanned in parts: the markers are such that GetWordsOfLines finds them.
  [[nodiscard]] bool CanTakeParts();
  /// Scans a part of one line, well-formed UTF-8 that was cut as LineCutter does. `state` is that
  /// behind the part before, and then behind this one.
  void GetWordsOfPart(std::string_view part, LinePartState& state);
  [[nodiscard]] const TokenClasses& Classes() const { return tokenClasses_; }

  // Of a text that somebody else counts: carry on the open comment alone.

  void PassOver(std::string_view lineBuffer);
  void PassOverLines(std::string_view lines);
  /// Whether markers are in force, without which no comment begins or ends.
  [[nodiscard]] bool LooksForComments() {
    PrepareMarkers();
    return settings_.UseCommentMarkers;
  }

  /// Candidate words read so far, whether they were counted or not.
  [[nodiscard]] std::int32_t WordsRead() const { return taker_.WordsRead(); }
  void SetWordsRead(std::int32_t wordsRead) { taker_.SetWordsRead(wordsRead); }

 private:
  /// What stays to be done after comments were skipped.
  enum class AfterComments { kScan, kStop };

  void NoteForeignLetters(std::string_view text, bool behindLetter = false);
  template <typename Take>
  void ScanText(std::string_view lineBuffer, Take take);
  std::string_view Rewritten(std::string_view text);
  void PrepareMarkers();
  void TakeTokens();
  /// Whether a comment goes on, or may start, at the position.
  [[nodiscard]] bool MayMeetComment() const {
    return settings_.UseCommentMarkers &&
           (settings_.OpenComment != kNoComment || markers_.MayStartWith(text_[position_]));
  }
  [[nodiscard]] int CommentStart() const {
    return markers_.StartAt(text_.substr(position_), settings_.ForceCommentMarkers);
  }
  void SkipComment();
  AfterComments SkipComments();
  [[nodiscard]] bool TakeTokensOfBlock();
  void LeaveBlock();
  [[nodiscard]] bool RestIsOneBlank() const { return text_.substr(position_) == " "; }

  ScanSettings& settings_;
  const ScanChoices& choices_;
  ScanYield& yield_;
  CharClass charClass_;
  TokenClasses tokenClasses_;
  CommentMarkers markers_;
  TokenTaker taker_;
  LineBlock block_;

  /// The text being scanned, and the byte position of the next character to examine. A position
  /// past the end is text_.size().
  std::string_view text_;
  std::size_t position_ = 0;
  std::string rewritten_;
  std::string normalText_;
  /// While a text is shown, else null.
  ScanWitness* witness_ = nullptr;
  /// Of the lines that PlainLineBytes was asked about last.
  bool linesAreAscii_ = false;
};

}  // namespace quillomat
