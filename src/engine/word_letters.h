// The spelling of a word and its sort key, in 32 bytes: those of nearly all words fit in, and
// looking at a word costs no more than looking at its record. Longer ones are in an arena.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "engine/letter_arena.h"
#include "engine/short_bytes.h"

namespace quillomat {

class WordLetters {
 public:
  WordLetters() = default;

  /// What does not fit goes to `arena`, which must outlive the letters. A key that is the word is
  /// not kept again.
  WordLetters(std::string_view word, std::string_view key, LetterArena& arena) {
    const bool isOwnKey = key.data() == word.data() || key == word;
    const std::string_view ownKey = isOwnKey ? std::string_view() : key;
    if (word.size() + ownKey.size() <= letters_.size()) {
      wordBytes_ = static_cast<std::uint8_t>(word.size());
      keyBytes_ = static_cast<std::uint8_t>(ownKey.size());
      CopyShortBytes(letters_.data(), word.data(), word.size());
      CopyShortBytes(letters_.data() + word.size(), ownKey.data(), ownKey.size());
      return;
    }
    wordBytes_ = kElsewhere;
    const Elsewhere elsewhere{arena.Keep(word, ownKey), word.size(), ownKey.size()};
    std::memcpy(letters_.data(), &elsewhere, sizeof elsewhere);
  }

  /// The view is good as long as this object stays where it is.
  [[nodiscard]] std::string_view Word() const {
    if (wordBytes_ != kElsewhere) return {letters_.data(), wordBytes_};
    const Elsewhere elsewhere = LettersElsewhere();
    return {elsewhere.text, elsewhere.wordBytes};
  }
  /// Whether `key` is the sort key.
  [[nodiscard]] bool HasKey(std::string_view key) const {
    const std::string_view own = Key();
    return own.size() == key.size() && EqualBytes(own.data(), key.data(), key.size());
  }
  [[nodiscard]] std::string_view Key() const {
    if (wordBytes_ != kElsewhere) {
      return keyBytes_ == 0 ? Word() : std::string_view(letters_.data() + wordBytes_, keyBytes_);
    }
    const Elsewhere elsewhere = LettersElsewhere();
    if (elsewhere.keyBytes == 0) return Word();
    return {elsewhere.text + elsewhere.wordBytes, elsewhere.keyBytes};
  }

 private:
  static constexpr std::uint8_t kElsewhere = UINT8_MAX;

  struct Elsewhere {
    const char* text;
    std::size_t wordBytes;
    std::size_t keyBytes;
  };

  [[nodiscard]] Elsewhere LettersElsewhere() const {
    Elsewhere elsewhere{};
    std::memcpy(&elsewhere, letters_.data(), sizeof elsewhere);
    return elsewhere;
  }

  std::uint8_t wordBytes_ = 0;
  std::uint8_t keyBytes_ = 0;  // 0: the word is its own key
  static constexpr std::size_t kOwnBytes = 30;
  static_assert(kOwnBytes <= kMostShortBytes);
  std::array<char, kOwnBytes> letters_{};
};
static_assert(sizeof(WordLetters) == 32);

}  // namespace quillomat
