// A source whose bytes are in an encoding, as one of UTF-8: who reads it knows nothing of
// encodings.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_source.h"
#include "base/bytes_ahead.h"
#include "base/character_set.h"
#include "base/text_decoder.h"
#include "engine/uncounted.h"
#include "sources/guessed_sets.h"
#include "sources/stop_question.h"

namespace quillomat {

class ConvertedSource final : public ByteSource {
 public:
  /// Both outlive it. `from` is a set, neither kAsFound nor kGuess. Bytes that are no character are
  /// added to `bytesNotDecoded`; a byte-order mark stays. Where `stop`, which outlives it too, says
  /// that the count was stopped, the text goes on behind its end: a character that is not finished
  /// there is left out. Throws RunTimeError where the system cannot decode the set.
  ConvertedSource(ByteSource& source, CharacterSet from, std::int64_t& bytesNotDecoded,
                  const StopQuestion* stop = nullptr);

  std::size_t Read(std::span<char> buffer) override;
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return !converted_.IsEmpty() || ended_ || source_.IsReady(longest);
  }

 private:
  void ConvertBlock();

  ByteSource& source_;
  std::unique_ptr<TextDecoder> decoder_;
  std::int64_t& bytesNotDecoded_;
  const StopQuestion* stop_;
  std::vector<char> block_;
  BytesAhead converted_;
  bool ended_ = false;
};

/// All of `bytes`, in UTF-8, without a byte-order mark. The arguments are those of ConvertedSource.
[[nodiscard]] std::string ConvertedText(std::string_view bytes, CharacterSet from,
                                        std::int64_t& bytesNotDecoded);

/// All of `source` as text, line breaks included, where the user wants the encoding `choice`. What
/// is not as it should be is added to `uncounted`, and a guess that was made to `guessed`.
[[nodiscard]] std::string WholeText(ByteSource& source, CharacterSet choice, Uncounted& uncounted,
                                    GuessedSets& guessed);

/// The start of a text whose start is `head`, which may end within a character.
[[nodiscard]] std::string ConvertedHead(std::string_view head, CharacterSet from);

}  // namespace quillomat
