#include "sources/late_guess_source.h"

#include <string_view>

#include "sources/encoding_guess.h"

namespace quillomat {

std::size_t LateGuessSource::Read(std::span<char> buffer) {
  if (converted_) return converted_->Read(buffer);
  const std::size_t bytes = behindAscii_.Read(buffer);
  if (decided_) return bytes;
  const std::size_t ascii = FirstBeyondAscii({buffer.data(), bytes});
  if (ascii == std::string_view::npos) {
    asciiBytes_ += bytes;
    return bytes;
  }
  decided_ = true;
  if (!IsGuessedLate(asciiBytes_ + ascii)) return bytes;
  behindAscii_.PutBack({buffer.data() + ascii, bytes - ascii});
  Guess();
  return ascii > 0 ? ascii : Read(buffer);
}

void LateGuessSource::Guess() {
  guessed_ = LateGuess(behindAscii_.Ahead(kGuessBytes));
  if (guessed_ != CharacterSet::kAsFound) {
    converted_.emplace(behindAscii_, guessed_, bytesNotDecoded_, stop_);
  }
}

}  // namespace quillomat
