#include "engine/comment_markers.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/utf8.h"
#include "engine/html_entities.h"
#include "engine/normal_text.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

/// By the small letters of all languages, whose number of bytes need not be that of the capital.
bool StartsWithMarkerOfAll(std::string_view text, std::string_view marker) {
  const UnicodeTraits& traits = UnicodeTraits::Get();
  std::size_t position = 0;
  for (std::size_t wanted = 0; wanted < marker.size();) {
    if (position == text.size()) return false;
    const Utf8Character character = CharacterAt(text, position);
    const Utf8Character small = CharacterAt(marker, wanted);
    const auto codePoint = static_cast<std::int32_t>(character.codePoint);
    if (static_cast<char32_t>(codePoint + traits.Of(character.codePoint).toLower) !=
        small.codePoint) {
      return false;
    }
    position += character.bytes;
    wanted += small.bytes;
  }
  return true;
}

/// A sign of which a line holds as many before it is rewritten as afterwards: no letter, no blank,
/// and no hyphen, of which two together become a blank.
bool IsSteadySign(char ch) {
  const bool letter = (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z');
  return ch > ' ' && ch < 0x7F && ch != '-' && !letter;
}

}  // namespace

void CommentMarkers::Prepare(const ScanSettings& settings) {
  if (preparedStart_ == settings.CommentStart && preparedEnd_ == settings.CommentEnd &&
      letters_ == settings.Letters) {
    return;
  }
  letters_ = settings.Letters;
  preparedStart_ = settings.CommentStart;
  preparedEnd_ = settings.CommentEnd;
  mayStart_.reset();
  for (std::size_t pair = 0; pair < 2; ++pair) {
    const auto lower = letters_ == LetterRule::kAll ? NormalLowerCase : LowerCase;
    start_[pair] = lower(preparedStart_[pair]);
    end_[pair] = lower(preparedEnd_[pair]);
    if (!start_[pair].empty()) NoteStart(start_[pair][0]);
  }
}

/// The bytes with which a lower-cased marker may start in a text of any letter case.
void CommentMarkers::NoteStart(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if (byte >= 0x80) {
    for (std::size_t high = 0x80; high < mayStart_.size(); ++high) mayStart_.set(high);
    return;
  }
  mayStart_.set(byte);
  constexpr unsigned char kLeadOfDottedCapitalI = 0xC4;
  if (byte == 'i' && letters_ == LetterRule::kAll) mayStart_.set(kLeadOfDottedCapitalI);
  if (byte >= 'a' && byte <= 'z') mayStart_.set(byte - std::size_t{'a' - 'A'});
}

/// Whether the lower-cased `marker`, which is not empty, stands at the start of `text` in any
/// letter case. Nearly always the first character decides.
bool CommentMarkers::StartsWithMarker(std::string_view text, std::string_view marker) const {
  if (letters_ == LetterRule::kAll) return StartsWithMarkerOfAll(text, marker);
  const auto first = static_cast<unsigned char>(text[0]);
  const auto wanted = static_cast<unsigned char>(marker[0]);
  const bool capital = first >= 'A' && first <= 'Z';
  if (wanted < 0x80) {
    if (wanted != (capital ? first + 0x20U : first)) return false;
    if (marker.size() == 1) return true;
  }
  return EqualIgnoringCase(text.substr(0, marker.size()), marker);
}

int CommentMarkers::StartAt(std::string_view text, bool forced) const {
  const int pair = PairAt(text);
  return MustBeEntity(pair, forced) && HtmlEntityEnd(text) == 0 ? kNoComment : pair;
}

int CommentMarkers::PairAt(std::string_view text) const {
  for (std::size_t pair = 0; pair < 2; ++pair) {
    const std::string& marker = start_[pair];
    if (!marker.empty() && StartsWithMarker(text, marker)) return static_cast<int>(pair);
  }
  return kNoComment;
}

bool CommentMarkers::CanBeFoundInRawLines(const TokenClasses& tokens) const {
  for (std::size_t pair = 0; pair < 2; ++pair) {
    if (!start_[pair].empty() && tokens.Holds(start_[pair][0])) return false;
    // A comment may be open whose pair has lost its start marker since: its end is looked for, too.
    if (!std::ranges::all_of(start_[pair] + end_[pair], IsSteadySign)) return false;
  }
  return true;
}

}  // namespace quillomat
