#include "app/list/text_search.h"

#include <string>

#include "app/table/row_filter.h"
#include "base/utf8.h"
#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

/// The end of the character at `begin` and of the marks that stand behind it.
std::size_t EndOfCharacter(std::string_view text, std::size_t begin) {
  std::size_t end = begin + CharacterAt(text, begin).bytes;
  while (end < text.size() && static_cast<unsigned char>(text[end]) >= 0x80) {
    const Utf8Character next = CharacterAt(text, end);
    if (!UnicodeTraits::Get().Is(next.codePoint, CodePointTraits::kMark)) break;
    end += next.bytes;
  }
  return end;
}

/// A text as the list folds words, and where each byte of that comes from.
class FoldedText {
 public:
  FoldedText(std::string_view text, KeyRule rule) {
    folded_.reserve(text.size());
    origins_.reserve(text.size());
    for (std::size_t begin = 0; begin < text.size();) {
      const std::size_t end = EndOfCharacter(text, begin);
      Append(text.substr(begin, end - begin), rule);
      origins_.resize(folded_.size(), {begin, end});
      begin = end;
    }
  }

  [[nodiscard]] std::vector<TextPlace> PlacesOf(std::string_view key) const {
    std::vector<TextPlace> places;
    for (std::size_t at = folded_.find(key); at != std::string::npos;) {
      places.push_back({origins_[at].begin, origins_[at + key.size() - 1].end});
      std::size_t next = at + key.size();
      while (next < folded_.size() && origins_[next].begin < places.back().end) ++next;
      at = folded_.find(key, next);
    }
    return places;
  }

 private:
  void Append(std::string_view character, KeyRule rule) {
    if (character.size() > 1) {
      folded_.append(KeyOfTyped(character, rule));
    } else {
      const char ch = character.front();
      folded_.push_back(ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch);
    }
  }

  std::string folded_;
  std::vector<TextPlace> origins_;
};

}  // namespace

std::vector<TextPlace> PlacesIn(std::string_view text, std::string_view wanted, KeyRule rule) {
  const std::string key = KeyOfTyped(wanted, rule);
  if (key.empty()) return {};
  return FoldedText(text, rule).PlacesOf(key);
}

}  // namespace quillomat
