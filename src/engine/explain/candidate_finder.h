// Cuts a text that is being scanned into candidates: its tokens and comments, and what stands
// between blanks and yet is no single token.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/explain/candidate.h"
#include "engine/uncounted.h"
#include "engine/word_scanner.h"

namespace quillomat {

/// A place in the scanned text, from its start to its end.
struct FoundPiece {
  enum class Kind : std::uint8_t { kToken, kComment, kCut, kNoToken };
  Kind kind = Kind::kToken;
  std::size_t start = 0;
  std::size_t end = 0;
  /// Why it was cut, or holds no token.
  CandidateReason reason = CandidateReason::kNone;
  /// At which it was cut.
  std::string signs{};
};

class CandidateFinder final : public ScanWitness {
 public:
  void OnText(std::string_view text) override {
    text_ = text;
    marks_ = MarksOnLetters(text);
  }
  void OnComment(std::string_view comment) override;
  void OnToken(std::string_view token) override;

  /// All pieces in the order of the text, once it was scanned; what was cut before what was cut out
  /// of it.
  [[nodiscard]] std::vector<FoundPiece> TakePieces();

  /// As it was scanned; a view, see OnText.
  [[nodiscard]] std::string_view Text() const { return text_; }

 private:
  /// What stands together without a character that always separates words.
  struct Stretch {
    /// From the first to the last that is a token, a letter or a digit.
    std::size_t start = 0;
    std::size_t end = 0;
    std::vector<FoundPiece> tokens;
    /// Characters that belong to no token: those within, and those that are within if more comes.
    std::vector<char32_t> signs;
    std::vector<char32_t> signsBehind;
    bool hasLetters = false;
    bool hasDigits = false;
    [[nodiscard]] bool IsEmpty() const { return start == end; }
  };

  void PassTo(std::size_t position);
  void TakeCharacter(char32_t codePoint, std::size_t start, std::size_t end);
  void Extend(std::size_t start, std::size_t end);
  void EndStretch();

  std::string_view text_;
  /// Up to there the text was looked at.
  std::size_t position_ = 0;
  MarksOnLetters marks_;
  Stretch stretch_;
  std::vector<FoundPiece> pieces_;
};

}  // namespace quillomat
