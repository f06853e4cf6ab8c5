// When the memos of a scan rest. A text of millions of different words fills them again and again,
// and hardly a token is met while it is remembered: to remember it is for nothing then. What the
// memos hold when they come to rest stays of use.
#pragma once

#include <algorithm>
#include <cstddef>

namespace quillomat {

class MemoRest {
 public:
  /// A rest begins where more than half of the tokens were unknown by the time so many were.
  static constexpr std::size_t kUnknownPerLook = 32'768;
  /// After so many tokens another kind of text may have begun, and they are remembered again.
  static constexpr std::size_t kTokensOfRest = 16 * kUnknownPerLook;

  /// So many tokens were met, and so many of them were not remembered.
  void Note(std::size_t tokens, std::size_t unknown) {
    if (Rests()) {
      left_ -= std::min(left_, tokens);
      return;
    }
    met_ += tokens;
    unknown_ += unknown;
    if (unknown_ < kUnknownPerLook) return;
    if (unknown_ > met_ / 2) left_ = kTokensOfRest;
    sleeps_ = unknown_ > met_ - met_ / 8;
    met_ = 0;
    unknown_ = 0;
  }

  /// Whether tokens are not to be remembered.
  [[nodiscard]] bool Rests() const { return left_ > 0; }
  /// Whether they need not even be looked up, as hardly any would be known.
  [[nodiscard]] bool Sleeps() const { return Rests() && sleeps_; }

 private:
  std::size_t met_ = 0;
  std::size_t unknown_ = 0;
  std::size_t left_ = 0;
  bool sleeps_ = false;
};

}  // namespace quillomat
