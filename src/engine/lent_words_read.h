// The count of the words that were read, while a scanner adds to it.
#pragma once

#include <cstdint>

#include "engine/word_scanner.h"

namespace quillomat {

/// The scanner has the count as long as this lives; then, however the scan ended, the owner has it
/// again.
class LentWordsRead {
 public:
  /// Both must outlive it.
  LentWordsRead(std::int32_t& wordsRead, WordScanner& scanner)
      : wordsRead_(wordsRead), scanner_(scanner) {
    scanner_.SetWordsRead(wordsRead_);
  }
  LentWordsRead(const LentWordsRead&) = delete;
  LentWordsRead& operator=(const LentWordsRead&) = delete;
  LentWordsRead(LentWordsRead&&) = delete;
  LentWordsRead& operator=(LentWordsRead&&) = delete;
  ~LentWordsRead() { wordsRead_ = scanner_.WordsRead(); }

 private:
  std::int32_t& wordsRead_;
  WordScanner& scanner_;
};

}  // namespace quillomat
