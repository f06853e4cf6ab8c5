#include "engine/explain/candidate_finder.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/utf8.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

enum class CharacterKind : std::uint8_t {
  /// Separates words under every setting.
  kSeparator,
  /// Part of words under other settings, or taken for it by readers.
  kSign,
  kMark,
  kLetter,
  kDigit,
};

/// Soft hyphens, joiners, marks of direction and others.
bool LooksLikeNothing(char32_t codePoint) {
  return UnicodeTraits::Get().Is(codePoint, CodePointTraits::kFormat);
}

/// Signs that can be allowed in words, and those beyond ASCII that look like them or like nothing.
bool IsSign(char32_t codePoint) {
  constexpr std::u32string_view kSigns = U"-'_:\\/().,@\u02BC\u2010\u2011\u2018\u2019\uFF07";
  return kSigns.find(codePoint) != std::u32string_view::npos || LooksLikeNothing(codePoint);
}

CharacterKind KindOf(char32_t codePoint) {
  if (IsSign(codePoint)) return CharacterKind::kSign;
  const std::uint8_t kinds = UnicodeTraits::Get().Of(codePoint).kinds;
  if ((kinds & CodePointTraits::kLetter) != 0) return CharacterKind::kLetter;
  if ((kinds & CodePointTraits::kMark) != 0) return CharacterKind::kMark;
  if ((kinds & CodePointTraits::kDigit) != 0) return CharacterKind::kDigit;
  return CharacterKind::kSeparator;
}

/// Whether it has no shape of its own.
bool CannotBeSeen(char32_t codePoint) {
  return LooksLikeNothing(codePoint) || KindOf(codePoint) == CharacterKind::kMark;
}

std::string NumberOf(char32_t codePoint) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  for (auto rest = static_cast<std::uint32_t>(codePoint); rest > 0 || digits.size() < 4;
       rest /= 16) {
    digits.insert(0, 1, kDigits[rest % 16]);
  }
  return "U+" + digits;
}

/// Each once, in their order.
std::string Shown(const std::vector<char32_t>& characters) {
  std::string shown;
  for (auto at = characters.begin(); at != characters.end(); ++at) {
    if (std::find(characters.begin(), at, *at) != at) continue;
    if (!shown.empty()) shown += ' ';
    if (CannotBeSeen(*at)) {
      shown += NumberOf(*at);
    } else {
      AppendCharacter(shown, *at);
    }
  }
  return shown;
}

/// The gravest of what a candidate is made of besides tokens.
CandidateReason ReasonOf(bool hasLetters, bool hasDigits) {
  if (hasLetters) return CandidateReason::kForeignLetters;
  return hasDigits ? CandidateReason::kNumerals : CandidateReason::kSigns;
}

}  // namespace

void CandidateFinder::OnComment(std::string_view comment) {
  const auto start = static_cast<std::size_t>(comment.data() - text_.data());
  PassTo(start);
  EndStretch();
  position_ = start + comment.size();
  pieces_.push_back({FoundPiece::Kind::kComment, start, position_, CandidateReason::kComment});
}

void CandidateFinder::OnToken(std::string_view token) {
  const auto start = static_cast<std::size_t>(token.data() - text_.data());
  PassTo(start);
  position_ = start + token.size();
  Extend(start, position_);
  stretch_.tokens.push_back({FoundPiece::Kind::kToken, start, position_});
}

std::vector<FoundPiece> CandidateFinder::TakePieces() {
  PassTo(text_.size());
  EndStretch();
  return std::move(pieces_);
}

/// Looks at what stands between tokens.
void CandidateFinder::PassTo(std::size_t position) {
  while (position_ < position) {
    const Utf8Character character = CharacterAt(text_, position_);
    TakeCharacter(character.codePoint, position_, position_ + character.bytes);
    position_ += character.bytes;
  }
}

void CandidateFinder::TakeCharacter(char32_t codePoint, std::size_t start, std::size_t end) {
  switch (KindOf(codePoint)) {
    case CharacterKind::kSeparator:
      return EndStretch();
    case CharacterKind::kMark:
      if (stretch_.IsEmpty()) return;
      if (marks_.IsOnLetter(start, end - start)) stretch_.hasLetters = true;
      break;
    case CharacterKind::kLetter:
      stretch_.hasLetters = true;
      break;
    case CharacterKind::kDigit:
      stretch_.hasDigits = true;
      break;
    case CharacterKind::kSign:
      if (!stretch_.IsEmpty()) stretch_.signsBehind.push_back(codePoint);
      return;
  }
  Extend(start, end);
  stretch_.signs.push_back(codePoint);
}

/// The signs before it stand within, now.
void CandidateFinder::Extend(std::size_t start, std::size_t end) {
  if (stretch_.IsEmpty()) stretch_.start = start;
  stretch_.end = end;
  stretch_.signs.insert(stretch_.signs.end(), stretch_.signsBehind.begin(),
                        stretch_.signsBehind.end());
  stretch_.signsBehind.clear();
}

void CandidateFinder::EndStretch() {
  const Stretch stretch = std::exchange(stretch_, {});
  if (stretch.IsEmpty()) return;
  const CandidateReason reason = ReasonOf(stretch.hasLetters, stretch.hasDigits);
  if (stretch.tokens.empty()) {
    pieces_.push_back({FoundPiece::Kind::kNoToken, stretch.start, stretch.end, reason});
  } else if (!stretch.signs.empty()) {
    pieces_.push_back(
        {FoundPiece::Kind::kCut, stretch.start, stretch.end, reason, Shown(stretch.signs)});
  } else if (stretch.tokens.size() > 1) {
    pieces_.push_back(
        {FoundPiece::Kind::kCut, stretch.start, stretch.end, CandidateReason::kUnspaced});
  }
  pieces_.insert(pieces_.end(), stretch.tokens.begin(), stretch.tokens.end());
}

}  // namespace quillomat
