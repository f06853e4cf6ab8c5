// The words of a words file: scanned as a text is, with every sign allowed in words and /* */ and
// // comments skipped, in the encoding that the user has chosen unless it looks like UTF-8. No
// window takes part.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "base/byte_source.h"
#include "base/character_set.h"
#include "engine/scan_settings.h"
#include "engine/uncounted.h"
#include "engine/word_scanner.h"
#include "engine/word_store.h"
#include "sources/guessed_sets.h"
#include "sources/line_endings.h"
#include "sources/read_sources.h"

namespace quillomat {

/// Makes the settings those of words files.
void SetUpForWordsFile(ScanSettings& settings, const ScanChoices& choices);

class WordsFile {
 public:
  /// `source` is at its start and outlives it; one that may be endless is read to a limit. The head
  /// is read.
  WordsFile(ByteSource& source, CharacterSet encoding, bool mayBeEndless);

  /// Of its text, in UTF-8.
  [[nodiscard]] LineEndingType Type() const { return type_; }
  /// What it was read in because that was guessed; known when it has been scanned.
  [[nodiscard]] GuessedSets Guessed() const;

  /// Puts its words into the store: of all letters each that accents tell from others, whatever
  /// they do in a text. Returns what of it could not be read as it was meant. The settings were set
  /// up for it; a stop ends it early. Throws as the source does, and InputTooLong. Called once.
  [[nodiscard]] Uncounted Scan(ScanSettings& settings, const ScanChoices& choices, WordStore& store,
                               ScanYield& yield);

 private:
  [[nodiscard]] std::unique_ptr<ByteSource> Converted(ByteSource& text, Uncounted& lost);

  HeadedSource text_;
  CharacterSet choice_;
  CharacterSet from_ = CharacterSet::kAsFound;
  bool mayBeEndless_;
  LineEndingType type_ = LineEndingType::kDos;
};

/// The words of the store, in its order.
[[nodiscard]] std::vector<std::string> WordsIn(const WordStore& store);

}  // namespace quillomat
