#include "engine/normal_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/direction_marks.h"
#include "base/utf8.h"
#include "engine/unicode_traits.h"
#include "engine/utf8_kernels.h"

namespace quillomat {
namespace {

constexpr char32_t kDottedCapitalI = 0x130;

/// Finds the characters of a text that may not be settled; most quickly from its start to its end.
class SuspectSearch {
 public:
  // The masks are written before they are read.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
  explicit SuspectSearch(std::string_view text) : text_(text) {}

  /// Where the first at or behind `position` starts, or the size of the text.
  std::size_t Next(std::size_t position) {
    const std::size_t blocks = Utf8Blocks(text_);
    std::size_t block = (position + 1) / kUtf8Block;  // their second bytes are marked
    std::uint64_t behind = ~std::uint64_t{0} << (position + 1) % kUtf8Block;
    for (; block < blocks; ++block, behind = ~std::uint64_t{0}) {
      if (block < firstMarked_ || block >= endOfMarked_) Mark(block);
      const std::uint64_t marks = masks_[block - firstMarked_] & behind;
      if (marks == 0) continue;
      return block * kUtf8Block + static_cast<std::size_t>(std::countr_zero(marks)) - 1;
    }
    return text_.size();
  }

 private:
  static constexpr std::size_t kBlocksAtOnce = 64;

  void Mark(std::size_t firstBlock) {
    firstMarked_ = firstBlock;
    endOfMarked_ = std::min(firstBlock + kBlocksAtOnce, Utf8Blocks(text_));
    MarkSuspects(text_, firstBlock, std::span(masks_).first(endOfMarked_ - firstMarked_));
  }

  std::string_view text_;
  std::size_t firstMarked_ = 0;
  std::size_t endOfMarked_ = 0;
  std::array<std::uint64_t, kBlocksAtOnce> masks_;
};

/// What a wide form of ASCII stands for, if words may have it; nothing for all others.
std::optional<std::string_view> PlainOfWide(char32_t codePoint) {
  static constexpr char32_t kFirst = 0xFF01;
  static constexpr std::string_view kPlain =
      "!\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
      "abcdefghijklmnopqrstuvwxyz{|}~";
  constexpr std::string_view kNotInWords = "!\"#$%&*+;<=>?[]^`{|}~";
  if (codePoint < kFirst || codePoint >= kFirst + kPlain.size()) return std::nullopt;
  const std::string_view plain = kPlain.substr(codePoint - kFirst, 1);
  if (kNotInWords.find(plain) != std::string_view::npos) return std::nullopt;
  return plain;
}

/// What stands for a character in normal form, besides what Unicode says; nothing when it stays.
std::optional<std::string_view> Replacement(char32_t codePoint) {
  static constexpr std::string_view kLigatures[] = {"ff", "fi", "fl", "ffi", "ffl", "st", "st"};
  if (IsDropped(codePoint)) return std::string_view();
  if (codePoint >= 0xFB00 && codePoint <= 0xFB06) return kLigatures[codePoint - 0xFB00];
  switch (codePoint) {
    case kLetterApostrophe:
    case 0x2018:
    case 0x2019:
      return "'";
    case 0x2010:
    case 0x2011:
      return "-";
    default:
      return PlainOfWide(codePoint);
  }
}

/// Brings one text into normal form.
class Normaliser {
 public:
  Normaliser(std::string_view text, SuspectSearch& suspects, DottedCapitalI dotted,
             std::string& result)
      : text_(text), suspects_(suspects), dotted_(dotted), result_(result) {}

  /// False when the text is in normal form already; then there is no result.
  bool Run() {
    std::size_t copied = 0;
    std::size_t position = NextUnsettled(0);
    if (position == text_.size()) return false;
    result_.clear();
    while (position < text_.size()) {
      result_.append(text_.substr(copied, position - copied));
      position = TakeUnsettled(position);
      copied = position;
      position = NextUnsettled(position);
    }
    result_.append(text_.substr(copied));
    return true;
  }

 private:
  [[nodiscard]] bool IsUnsettled(char32_t codePoint) const {
    if (codePoint < 0x80) return false;
    if (codePoint == kDottedCapitalI) return dotted_ == DottedCapitalI::kLowered;
    return traits_.Is(codePoint, CodePointTraits::kUnsettled) || Replacement(codePoint).has_value();
  }

  [[nodiscard]] std::size_t NextUnsettled(std::size_t position) {
    for (;;) {
      position = suspects_.Next(position);
      if (position == text_.size()) return position;
      const Utf8Character character = CharacterAt(text_, position);
      if (IsUnsettled(character.codePoint)) return position;
      position += character.bytes;
    }
  }

  /// Takes the unsettled characters at the position; returns the place behind them.
  std::size_t TakeUnsettled(std::size_t position) {
    const Utf8Character first = CharacterAt(text_, position);
    const std::size_t behind = position + first.bytes;
    if (const auto replacement = Replacement(first.codePoint); replacement && IsSettledAt(behind)) {
      result_.append(*replacement);
      return behind;
    }
    codePoints_.clear();
    TakeLastOfResult();
    std::size_t end = position;
    while (!IsSettledAt(end)) {
      const Utf8Character character = CharacterAt(text_, end);
      Take(character.codePoint);
      end += character.bytes;
    }
    Compose(codePoints_);
    if (dotted_ == DottedCapitalI::kLowered) LowerDotted();
    for (const std::int32_t codePoint : codePoints_) {
      AppendCharacter(result_, static_cast<char32_t>(codePoint));
    }
    return end;
  }

  /// Also at the end.
  [[nodiscard]] bool IsSettledAt(std::size_t position) const {
    return position == text_.size() || !IsUnsettled(CharacterAt(text_, position).codePoint);
  }

  /// The settled character before may be composed with what follows.
  void TakeLastOfResult() {
    if (result_.empty()) return;
    const std::size_t last = LastCharacterStart(result_);
    AppendDecomposed(CharacterAt(result_, last).codePoint, codePoints_);
    result_.resize(last);
  }

  void Take(char32_t codePoint) {
    if (const auto replacement = Replacement(codePoint)) {
      codePoints_.insert(codePoints_.end(), replacement->begin(), replacement->end());
    } else {
      AppendDecomposed(codePoint, codePoints_);
    }
  }

  /// Marks behind it may be composed with the small letter.
  void LowerDotted() {
    const auto dotted = static_cast<std::int32_t>(kDottedCapitalI);
    if (std::ranges::find(codePoints_, dotted) == codePoints_.end()) return;
    std::vector<std::int32_t> lowered;
    for (const std::int32_t codePoint : codePoints_) {
      AppendDecomposed(codePoint == dotted ? U'i' : static_cast<char32_t>(codePoint), lowered);
    }
    codePoints_ = std::move(lowered);
    Compose(codePoints_);
  }

  const UnicodeTraits& traits_ = UnicodeTraits::Get();
  std::string_view text_;
  SuspectSearch& suspects_;
  DottedCapitalI dotted_;
  std::string& result_;
  std::vector<std::int32_t> codePoints_;
};

}  // namespace

bool IsDropped(char32_t codePoint) {
  switch (codePoint) {
    case 0xAD:    // soft hyphen
    case 0x200C:  // non-joiner
    case 0x200D:  // joiner
    case 0xFEFF:  // byte-order mark
      return true;
    default:
      return IsDirectionMark(codePoint);
  }
}

std::string_view NormalForm(std::string_view text, DottedCapitalI dotted, std::string& scratch) {
  SuspectSearch suspects(text);
  if (suspects.Next(0) == text.size()) return text;
  return Normaliser(text, suspects, dotted, scratch).Run() ? std::string_view(scratch) : text;
}

std::string LowerCaseOfAll(std::string_view text) {
  constexpr char kToLower = 'a' - 'A';
  const UnicodeTraits& traits = UnicodeTraits::Get();
  std::string result;
  result.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    const char ch = text[position];
    if (static_cast<unsigned char>(ch) < 0x80) {
      result.push_back(ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + kToLower) : ch);
      ++position;
      continue;
    }
    const Utf8Character character = CharacterAt(text, position);
    const auto codePoint = static_cast<std::int32_t>(character.codePoint);
    AppendCharacter(result,
                    static_cast<char32_t>(codePoint + traits.Of(character.codePoint).toLower));
    position += character.bytes;
  }
  return result;
}

std::string NormalLowerCase(std::string_view text) {
  std::string scratch;
  const std::string lower = LowerCaseOfAll(NormalForm(text, DottedCapitalI::kLowered, scratch));
  return std::string(NormalForm(lower, DottedCapitalI::kKept, scratch));
}

}  // namespace quillomat
