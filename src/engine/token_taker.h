// Decides what becomes of a token: cuts the word in it to its final form, asks the lists whether it
// is to be counted, and counts it in the store.
//
// What becomes of a token depends on the token and the settings alone, so it is worked out once and
// remembered; the next token like it costs one look-up. How often it is met is kept there, too,
// until somebody looks at the store.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/char_class.h"
#include "engine/count_keeper.h"
#include "engine/letter_arena.h"
#include "engine/line_block.h"
#include "engine/long_token_memo.h"
#include "engine/memo_rest.h"
#include "engine/run_cutter.h"
#include "engine/scan_settings.h"
#include "engine/token_memo.h"
#include "engine/token_outcome.h"
#include "engine/word_list.h"
#include "engine/word_store.h"

namespace quillomat {

class TokenTaker final : private CountKeeper {
 public:
  /// As many tokens as are looked up together.
  static constexpr std::size_t kTokensAtOnce = 64;

  /// Everything referred to must outlive the taker.
  TokenTaker(ScanSettings& settings, const ScanChoices& choices, const CharClass& charClass,
             const WordLists& lists, WordStore& store)
      : settings_(settings),
        choices_(choices),
        charClass_(charClass),
        lists_(lists),
        store_(store),
        cutter_(charClass, choices.letters, choices.makeSegmenter),
        keyRule_(choices.Keys()),
        memoGeneration_(store.Generation()) {}
  TokenTaker(const TokenTaker&) = delete;
  TokenTaker& operator=(const TokenTaker&) = delete;
  TokenTaker(TokenTaker&&) = delete;
  TokenTaker& operator=(TokenTaker&&) = delete;
  ~TokenTaker() override { store_.ReleaseKeeper(*this); }

  /// Takes a run of word characters that starts as words may start, out of a text that was
  /// lower-cased and rewritten as the settings want it.
  void TakeCut(std::string_view token);

  /// Takes tokens of a block, at most kTokensAtOnce.
  void TakeMany(const LineBlock& block, std::size_t first, std::size_t count);

  /// Cuts runs as it does itself.
  [[nodiscard]] RunCutter& Cutter() { return cutter_; }

  /// Words read so far, whether they were counted or not.
  [[nodiscard]] std::int32_t WordsRead() const { return wordsRead_; }
  void SetWordsRead(std::int32_t wordsRead) { wordsRead_ = wordsRead; }

 private:
  /// A word of a token that is met for the first time. Its letters, and those of its key, are in
  /// the text or in newLetters_.
  struct NewWord {
    KeyedWord letters;
    bool isStored = false;
    /// Once it was added.
    TokenOutcome outcome = kWordNotStored;
  };
  /// A token that is met for the first time, and where its words end in newWords_.
  struct NewToken {
    std::size_t number = 0;
    LineBlock::Token token{};
    std::size_t wordsEnd = 0;
  };
  /// Tokens of a block that one memo may know, and which of a batch they are. They are written
  /// before they are read, and are not worth a kilobyte of zeros.
  template <typename Memo>
  struct Keys {  // NOLINT(cppcoreguidelines-pro-type-member-init)
    typename Memo::template Keys<kTokensAtOnce> keys;
    /// No bytes, which could be a part of anything that the loops have at hand.
    std::array<std::uint16_t, kTokensAtOnce> numbers;
    std::size_t count = 0;
  };
  /// Tokens of a block as they are looked up: the short ones together, and the long ones.
  struct Batch {
    Keys<TokenMemo> shortOnes;
    Keys<LongTokenMemo> longOnes;
  };

  [[nodiscard]] std::string_view FinalForm(std::string_view token);
  [[nodiscard]] TokenOutcome OutcomeOf(const LineBlock::Token& token);
  void TakeKnown(const LineBlock& block, std::size_t first, std::size_t count, bool orderMatters);
  void NoteNewToken(const LineBlock& block, std::size_t number);
  void FindKeys(const LineBlock& block, std::size_t first, std::size_t count, Batch& batch);
  [[nodiscard]] bool MayKeep(std::size_t words) const;
  template <typename Memo>
  void KeepKnown(const LineBlock& block, std::size_t first, Memo& memo, const Keys<Memo>& keys);
  template <typename Memo>
  void CountKnown(const LineBlock& block, std::size_t first, Memo& memo, const Keys<Memo>& keys);
  void BringCounts() noexcept override;
  void TakeSeveral(TokenOutcome several);
  [[nodiscard]] std::span<const TokenOutcome> OutcomesOfSeveral(TokenOutcome several) const;
  [[nodiscard]] TokenOutcome KeepSeveral(std::span<const NewWord> words);
  void ForgetNewTokens();
  void WorkOutToken(std::string_view token);
  void WorkOutRun(std::string_view run);
  void TakeListWords(std::string_view run);
  [[nodiscard]] bool WorkOutPlainToken(std::string_view token, const TokenMemo::Key& key);
  void NoteNewWord(std::string_view word);
  void TakeNewTokens();
  void NoteStoredWord(std::string_view word, std::string_view key);
  void AddNewWords();
  void RememberToken(const NewToken& token, std::span<const NewWord> words);
  template <typename Memo, typename Key>
  void RememberIn(Memo& memo, Key key, std::size_t bytes, std::span<const NewWord> words);
  void ForgetTokensOfOldStore();
  void NoteOutcomes(const LineBlock& block, std::size_t first, std::size_t count);
  void TellOrder(std::size_t first);

  ScanSettings& settings_;
  const ScanChoices& choices_;
  const CharClass& charClass_;
  const WordLists& lists_;
  WordStore& store_;
  RunCutter cutter_;
  KeyRule keyRule_;
  TokenMemo memo_;
  LongTokenMemo longMemo_;
  MemoRest memoRest_;
  /// Of tokens that are several words: how many, and what each of them is worth.
  std::vector<TokenOutcome> several_;
  std::uint64_t memoGeneration_;
  std::int32_t wordsRead_ = 0;

  std::vector<NewToken> newTokens_;
  std::vector<NewWord> newWords_;
  LetterArena newLetters_;
  std::string tokenText_;
  std::string normalText_;
  std::string keyText_;

  // For a listener to the order of words: what tokens are worth, and the words that they are.
  std::vector<TokenOutcome> outcomes_;
  std::vector<std::uint32_t> order_;
};

/// `line` as a scan wants a line of text to be counted: lower-cased unless letter case is
/// significant, with one blank appended; for all letters in normal form before. The result stays in
/// `buffer`.
[[nodiscard]] std::string_view PrepareLine(std::string_view line, bool caseSignificant,
                                           std::string& buffer,
                                           LetterRule letters = LetterRule::kWestern);

}  // namespace quillomat
