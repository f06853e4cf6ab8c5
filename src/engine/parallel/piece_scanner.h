// Scans pieces of a text apart from each other, so that they can be scanned at the same time, and
// joins what was found in their order: with the result of one scan from end to end.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/letter_arena.h"
#include "engine/parallel/placed_pieces.h"
#include "engine/scan_settings.h"
#include "engine/uncounted.h"
#include "engine/word_list.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"

namespace quillomat {

/// What a PieceScanner has found in a piece. It numbers its words as it meets them, through all its
/// pieces.
struct PieceCount {
  /// The numbers begin anew with this piece.
  bool numbersAnew = false;
  /// The counts of its words are told with those of a later piece, or are those of several pieces.
  bool countsTogether = false;
  /// The words of the piece, or of the pieces that are counted together, by their numbers; the new
  /// ones in their order.
  std::vector<WordStore::CountedWord> words;
  /// The words that got their numbers in this piece, in order.
  std::string newLetters;
  std::vector<std::uint32_t> newWordBytes;
  std::int32_t wordsRead = 0;
  /// Every occurrence, in the order of the text, by the number of the word; only if it was asked
  /// for.
  std::vector<std::uint32_t> order;
  /// Whether a comment that is open in front of the piece makes a difference to it.
  bool looksForComments = false;
  /// ScanSettings::OpenComment in front of the piece, and behind it.
  int openBefore = -1;
  int openComment = -1;
  std::int64_t bytesWithLongLineEnds = 0;
  Uncounted uncounted;
};

/// For one thread.
class PieceScanner {
 public:
  /// Everything but the settings must outlive the scanner. The settings' flags and lists are those
  /// of all pieces. A scan ends early, and its result is worth nothing, once `stop` is set. With
  /// `keepOrder` the results have the order of words.
  PieceScanner(ScanSettings settings, const ScanChoices& choices, const WordLists& lists,
               const std::atomic<bool>& stop, bool keepOrder = false);

  enum class Counts { kByPiece, kTogether };

  /// Scans `text`, whole lines. `settings` has its markers and says which comment is open. Pieces
  /// that are counted together are counted faster, but have no counts of their own: those of all of
  /// them are to be taken for the last one.
  [[nodiscard]] PieceCount Scan(std::string_view text, const ScanSettings& settings,
                                Counts counts = Counts::kByPiece);
  /// Reads a piece and scans it likewise, by itself; about `bytesAtOnce` are read at once. Throws
  /// RunTimeError when it cannot be read; then the words are to be numbered anew.
  [[nodiscard]] PieceCount Scan(const PlacedPiece& piece, std::size_t bytesAtOnce,
                                const ScanSettings& settings);
  /// Puts the counts of the pieces that were counted together into that of the last of them.
  void TakeCounts(PieceCount& last);

  /// Numbers the words anew: after a result was thrown away, with those that it is counted together
  /// with.
  void ForgetWords();
  /// Numbers the words anew with the next piece that begins a count. May be called by any thread.
  void ForgetWordsSoon() { forget_ = true; }

 private:
  class StopTest final : public ScanYield {
   public:
    explicit StopTest(const std::atomic<bool>& stop) : stop_(stop) {}
    bool Yield() override { return stop_.load(std::memory_order_relaxed); }
    [[nodiscard]] std::uint32_t CallsLeft() const override { return UINT32_MAX; }

   private:
    const std::atomic<bool>& stop_;
  };

  [[nodiscard]] PieceCount Begin(std::size_t bytes, const ScanSettings& settings, Counts counts);
  void Take(std::string_view lines, PieceCount& count);
  void End(PieceCount& count);
  void DescribeNewWords(PieceCount& count);

  ScanSettings settings_;
  const ScanChoices& choices_;
  const WordLists& lists_;
  WordStore store_;
  WordOrderRecorder order_;
  StopTest stopTest_;
  WordScanner scanner_;
  std::atomic<bool> forget_ = false;
  bool numbersAnew_ = true;
  /// Pieces wait for their counts to be taken.
  bool owesCounts_ = false;
  std::int32_t wordsTold_ = 0;
  /// For what is read here.
  std::vector<char> memory_;
};

/// Puts what one PieceScanner has found into the store of the whole text.
class PieceJoiner {
 public:
  /// To be called in the order of the pieces. New words come into the store in the order of the
  /// text. Throws RunTimeError 6 as the store does; then pieces cannot be joined any more until the
  /// numbers begin anew. The store is neither sorted nor cleared between two calls. If it has a
  /// listener to the order of words, the piece has that order. Of pieces that are counted together
  /// the words are there at once, but each was met only once until the last piece is joined.
  void Join(const PieceCount& piece, WordStore& store);
  /// Of pieces that are counted together the last is not going to be joined: the next `words` of
  /// their new words, those of a piece, are not counted by the store any more.
  void TakeBackOwed(std::size_t words, WordStore& store);
  /// Likewise, but they stay counted once.
  void KeepOwed(std::size_t words) { firstOwed_ += words; }
  /// A piece is left out: there are numbers now of which nothing is known, until they begin anew.
  void LeaveOut() { knowsNumbers_ = false; }
  /// Whether the piece has no such numbers, and no word of it leaves the range of its tally by
  /// file: that would have to be told of the word that does so first in the text.
  [[nodiscard]] bool CanJoin(const PieceCount& piece, const WordStore& store) const;

 private:
  /// What is left of the new words of a piece.
  struct NewWords {
    [[nodiscard]] std::string_view TakeFirst() {
      const std::string_view first = letters.substr(0, bytes.front());
      letters.remove_prefix(first.size());
      bytes = bytes.subspan(1);
      return first;
    }

    std::string_view letters;
    std::span<const std::uint32_t> bytes;
  };

  void FetchNewWord(NewWords& left, WordStore& store);
  void JoinNewWords(NewWords& left, WordStore& store);
  void JoinSome(std::span<const WordStore::CountedWord> words, NewWords& left, WordStore& store);

  bool knowsNumbers_ = true;
  /// The places in the store, by the number of the word.
  std::vector<std::uint32_t> places_;
  /// Words with numbers from here on have been counted once, as their counts are still to come.
  std::size_t firstOwed_ = 0;
  std::vector<std::uint32_t> order_;
  /// New words on their way into the store, and such of their keys as are not in the piece.
  std::vector<KeyedWord> newWords_;
  LetterArena newKeys_;
  std::string keyText_;
};

}  // namespace quillomat
