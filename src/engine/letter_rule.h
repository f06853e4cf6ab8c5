// Which letters words are made of.
#pragma once

#include <cstdint>

namespace quillomat {

enum class LetterRule : std::uint8_t {
  /// A-Z, a-z and the Latin-1 letters; any other letter separates words.
  kWestern,
  /// The letters of all languages, as Unicode has them; the text is brought into a normal form.
  kAll,
};

/// What makes two words the same word.
struct KeyRule {
  LetterRule letters = LetterRule::kWestern;
  /// Words that differ in accents are different words.
  bool keepAccents = false;

  bool operator==(const KeyRule&) const = default;
};

}  // namespace quillomat
