// A text in an encoding that nobody can guess yet, as its head is ASCII, as one of UTF-8: the guess
// is made where its first byte beyond ASCII is met.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "base/byte_source.h"
#include "base/character_set.h"
#include "sources/converted_source.h"
#include "sources/read_sources.h"

namespace quillomat {

class LateGuessSource final : public ByteSource {
 public:
  /// All outlive it. `source` is at the start of a text of which CharacterSetOf made nothing. A
  /// byte beyond ASCII within its first kGuessBytes was seen by that, and nothing is converted.
  /// Otherwise `guessed` becomes what is guessed; bytes that are no character are added to
  /// `bytesNotDecoded`.
  /// `stop` is that of ConvertedSource.
  LateGuessSource(ByteSource& source, CharacterSet& guessed, std::int64_t& bytesNotDecoded,
                  const StopQuestion* stop = nullptr)
      : behindAscii_(source), guessed_(guessed), bytesNotDecoded_(bytesNotDecoded), stop_(stop) {}

  std::size_t Read(std::span<char> buffer) override;
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return converted_ ? converted_->IsReady(longest) : behindAscii_.IsReady(longest);
  }

 private:
  void Guess();

  HeadedSource behindAscii_;
  CharacterSet& guessed_;
  std::int64_t& bytesNotDecoded_;
  const StopQuestion* stop_;
  std::size_t asciiBytes_ = 0;
  bool decided_ = false;
  std::optional<ConvertedSource> converted_;
};

}  // namespace quillomat
