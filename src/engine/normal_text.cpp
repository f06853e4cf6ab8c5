#include "engine/normal_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <vector>

#include "base/utf8.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

constexpr char32_t kDottedCapitalI = 0x130;

using Byte = unsigned char;

/// Whether a byte, before another, leads a character that may not be in normal form, or has to be
/// looked at together with its neighbours: soft hyphen (C2 AD), dotted I (C4 B0), spacing
/// apostrophe and marks (CA to CD), Greek's raised dot (CE 87), scripts with marks (D2, D6 to E0),
/// Hangul in pieces (E1), signs (E2), kana (E3), more scripts with marks (EA), forms and marks
/// (EF), and everything above. Without branches: compilers make vectors of that.
constexpr Byte IsSuspect(Byte byte, Byte next) {
  const auto within = [byte](Byte first, Byte last) {
    return static_cast<Byte>(byte - first) <= last - first;
  };
  const auto pair = [byte, next](Byte lead, Byte behind) {
    return static_cast<int>(byte == lead) & static_cast<int>(next == behind);
  };
  return static_cast<Byte>(static_cast<int>(within(0xCA, 0xCD)) | static_cast<int>(byte == 0xD2) |
                           static_cast<int>(within(0xD6, 0xE3)) | static_cast<int>(byte == 0xEA) |
                           static_cast<int>(byte >= 0xEF) | pair(0xC2, 0xAD) | pair(0xC4, 0xB0) |
                           pair(0xCE, 0x87));
}

/// The first place at or behind `position` with a character that may not be settled, or the size of
/// the text.
std::size_t NextSuspect(std::string_view text, std::size_t position) {
  const auto byteAt = [text](std::size_t place) { return static_cast<Byte>(text[place]); };
  constexpr std::size_t kAtOnce = 64;
  for (; text.size() - position > kAtOnce; position += kAtOnce) {
    std::array<Byte, kAtOnce + 1> bytes;  // NOLINT(cppcoreguidelines-pro-type-member-init)
    std::memcpy(bytes.data(), text.data() + position, bytes.size());
    Byte any = 0;
    for (std::size_t i = 0; i < kAtOnce; ++i) any |= IsSuspect(bytes[i], bytes[i + 1]);
    if (any != 0) break;
  }
  for (; position < text.size(); ++position) {
    const Byte next = position + 1 < text.size() ? byteAt(position + 1) : Byte{0};
    if (byteAt(position) >= 0xC2 && IsSuspect(byteAt(position), next) != 0) return position;
  }
  return position;
}

bool IsDropped(char32_t codePoint) {
  switch (codePoint) {
    case 0xAD:    // soft hyphen
    case 0x61C:   // the marks of direction: this and the ranges below
    case 0xFEFF:  // byte-order mark
      return true;
    default:
      // 200C and 200D are the non-joiner and the joiner.
      return (codePoint >= 0x200C && codePoint <= 0x200F) ||
             (codePoint >= 0x202A && codePoint <= 0x202E) ||
             (codePoint >= 0x2066 && codePoint <= 0x2069);
  }
}

/// What stands for a character in normal form, besides what Unicode says; nothing when it stays.
std::optional<std::string_view> Replacement(char32_t codePoint) {
  static constexpr std::string_view kLigatures[] = {"ff", "fi", "fl", "ffi", "ffl", "st", "st"};
  static constexpr std::string_view kPlain =
      "!\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
      "abcdefghijklmnopqrstuvwxyz{|}~";
  if (IsDropped(codePoint)) return std::string_view();
  if (codePoint >= 0xFF01 && codePoint <= 0xFF5E) return kPlain.substr(codePoint - 0xFF01, 1);
  if (codePoint >= 0xFB00 && codePoint <= 0xFB06) return kLigatures[codePoint - 0xFB00];
  switch (codePoint) {
    case 0x2BC:
    case 0x2018:
    case 0x2019:
      return "'";
    case 0x2010:
    case 0x2011:
      return "-";
    default:
      return std::nullopt;
  }
}

/// Brings one text into normal form.
class Normaliser {
 public:
  Normaliser(std::string_view text, DottedCapitalI dotted, std::string& result)
      : text_(text), dotted_(dotted), result_(result) {}

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

  [[nodiscard]] std::size_t NextUnsettled(std::size_t position) const {
    for (;;) {
      position = NextSuspect(text_, position);
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
  DottedCapitalI dotted_;
  std::string& result_;
  std::vector<std::int32_t> codePoints_;
};

}  // namespace

std::string_view NormalForm(std::string_view text, DottedCapitalI dotted, std::string& scratch) {
  if (NextSuspect(text, 0) == text.size()) return text;
  return Normaliser(text, dotted, scratch).Run() ? std::string_view(scratch) : text;
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
