#include "engine/explain/text_origins.h"

#include <algorithm>

#include "base/text_helpers.h"
#include "base/utf8.h"
#include "engine/html_entities.h"
#include "engine/normal_text.h"
#include "engine/token_taker.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

/// Whether the character may be made one with that before it: a mark, or a part of a syllable.
bool JoinsTheOneBefore(char32_t codePoint) {
  constexpr std::uint8_t kPart = CodePointTraits::kLetter | CodePointTraits::kUnsettled;
  if (codePoint < 0x80) return false;
  const std::uint8_t kinds = UnicodeTraits::Get().Of(codePoint).kinds;
  return (kinds & CodePointTraits::kMark) != 0 || (kinds & kPart) == kPart;
}

}  // namespace

/// The text is rewritten unit by unit, and what comes of it compared with the whole: units that do
/// not stand by themselves are found out by that.
TextOrigins::TextOrigins(std::string_view text, std::string_view scanned,
                         const ScanChoices& choices)
    : text_(text), scanned_(scanned), choices_(choices) {
  std::string rewritten;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = UnitEnd(start);
    rewritten += Rewritten(text.substr(start, end - start));
    origins_.resize(rewritten.size(), {start, end});
    start = end;
  }
  rewritten += ' ';
  origins_.push_back({text.size(), text.size()});
  if (rewritten != scanned) origins_.clear();
}

std::string_view TextOrigins::At(std::size_t start, std::size_t end) const {
  if (origins_.empty()) return scanned_.substr(start, end - start);
  const std::size_t first = origins_[start].start;
  return text_.substr(first, origins_[end - 1].end - first);
}

/// Two hyphens, an entity that is decoded, or a character with what may be made one with it.
std::size_t TextOrigins::UnitEnd(std::size_t start) {
  if (text_.substr(start).starts_with("--")) return start + 2;
  if (text_[start] == '&' && start >= hiddenUntil_) return EntityEnd(start);
  std::size_t end = start + CharacterAt(text_, start).bytes;
  if (choices_.letters == LetterRule::kWestern) return end;
  while (end < text_.size() && JoinsTheOneBefore(CharacterAt(text_, end).codePoint)) {
    end += CharacterAt(text_, end).bytes;
  }
  return end;
}

std::size_t TextOrigins::EntityEnd(std::size_t start) {
  const std::size_t semicolon = text_.find(';', start);
  hiddenUntil_ = semicolon == std::string_view::npos ? text_.size() : semicolon + 1;
  const std::string_view entity = text_.substr(start, hiddenUntil_ - start);
  const bool isShort = entity.size() <= kLongestHtmlEntity;
  return isShort && !Rewritten(entity).starts_with('&') ? hiddenUntil_ : start + 1;
}

std::string TextOrigins::Rewritten(std::string_view unit) const {
  if (unit.size() == 1 && unit[0] != '&' && IsSet(choices_.caseSignificant)) {
    return std::string(unit);
  }
  std::string text;
  std::string normal;
  (void)PrepareLine(unit, IsSet(choices_.caseSignificant), text, choices_.letters);
  text.pop_back();
  if (unit.size() > 1) {
    text = ReplaceAll(text, "--", " ");
    DecodeHtmlEntities(text);
  }
  if (choices_.letters == LetterRule::kWestern) return text;
  return std::string(NormalForm(text, DottedCapitalI::kKept, normal));
}

}  // namespace quillomat
