// When the memos of a scan rest. A text of millions of different words fills them again and again,
// and hardly a token is met while it is remembered: to remember it is for nothing then. What a
// memo holds when it comes to rest stays of use.
#pragma once

#include <cstddef>

namespace quillomat {

class MemoRest {
 public:
  /// So many tokens were met, and so many of them were not remembered.
  void Note(std::size_t tokens, std::size_t unknown) {
    met_ += tokens;
    unknown_ += unknown;
    left_ -= left_ < tokens ? left_ : tokens;
  }

  /// Whether tokens are not to be remembered.
  [[nodiscard]] bool Rests() const { return left_ > 0; }
  /// Whether they need not even be looked up.
  [[nodiscard]] bool Sleeps() const { return sleeps_ && Rests(); }

  /// To be asked when a memo is full and does not rest: whether a rest begins. Otherwise it is to
  /// forget its tokens. Never twice together, as another kind of text may have begun.
  [[nodiscard]] bool Begins() {
    const bool wasOfNoUse = unknown_ > met_ / 2;
    left_ = wasOfNoUse && !hasRested_ ? kTokensOfRest : 0;
    hasRested_ = Rests();
    sleeps_ = unknown_ > met_ - met_ / 8;
    met_ = 0;
    unknown_ = 0;
    return Rests();
  }

 private:
  /// Some times as many as fill a memo.
  static constexpr std::size_t kTokensOfRest = 524'288;

  std::size_t met_ = 0;
  std::size_t unknown_ = 0;
  std::size_t left_ = 0;
  bool hasRested_ = false;
  bool sleeps_ = false;
};

}  // namespace quillomat
