#include "text/text_table.h"

#include <algorithm>
#include <charconv>
#include <new>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include "base/line_decoder.h"
#include "base/text_helpers.h"
#include "base/utf8.h"
#include "text/load_result.h"

namespace quillomat {
namespace {

using namespace load_result;

constexpr std::string_view kBlanks = " \t";
constexpr char kCommentSign = '#';
constexpr int kTaken = 1;

std::string_view WithoutOuterBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Takes what stands before the first blank off the front of `rest`, and the blanks behind it.
std::string_view TakeField(std::string_view& rest) {
  const std::string_view field = rest.substr(0, rest.find_first_of(kBlanks));
  rest = WithoutOuterBlanks(rest.substr(field.size()));
  return field;
}

std::optional<int> TextNumberOf(std::string_view field) {
  int number = 0;
  const char* const end = field.data() + field.size();
  const auto [stop, error] = std::from_chars(field.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  if (number < 1 || number > kLargestTextNumber) return std::nullopt;
  return number;
}

/// \n is a line break, \s a blank and \\ a backslash; before anything else a backslash is itself.
std::string Unescaped(std::string_view text) {
  std::string plain;
  while (true) {
    const std::size_t backslash = text.find('\\');
    if (backslash == text.npos || backslash + 1 == text.size()) return plain.append(text);
    const char next = text[backslash + 1];
    const bool isSign = next == 'n' || next == 's' || next == '\\';
    plain.append(text.substr(0, isSign ? backslash : backslash + 1));
    if (next == 'n') plain.append(kCrLf);
    if (next == 's') plain.push_back(' ');
    if (next == '\\') plain.push_back('\\');
    text.remove_prefix(backslash + (isSign ? 2 : 1));
  }
}

/// All that the source has, or nothing when that is more than a program text may be. Never holds
/// much more than that, so that an endless source does no harm.
std::optional<std::string> ReadLimited(ByteSource& source) {
  constexpr std::size_t kBlockBytes = 16384;
  std::string bytes;
  std::vector<char> block(kBlockBytes);
  while (const std::size_t size = source.Read(block)) {
    bytes.append(block.data(), size);
    if (bytes.size() > kLargestProgramText) return std::nullopt;
  }
  return bytes;
}

class TableBuilder {
 public:
  explicit TableBuilder(TextTable& texts) : texts_(texts) {}

  /// kTaken, or the code of what is wrong with the line.
  [[nodiscard]] int TakeLine(std::string_view line, int lineNumber) {
    std::string_view rest = WithoutOuterBlanks(line);
    if (rest.empty() || rest.front() == kCommentSign) return kTaken;
    const std::optional<int> number = TextNumberOf(TakeField(rest));
    if (!number) return kNotRecovered;
    const std::optional<Language> language = LanguageOfTag(TakeField(rest));
    if (!language) return MissingAt(lineNumber);
    const TextKey key = {*number, *language};
    const auto place = PlaceOf(key);
    if (place != texts_.end() && place->first == key) return DuplicateAt(lineNumber);
    const std::string text = Unescaped(rest);
    if (text.empty()) return MissingAt(lineNumber);
    if (IsTooLong(text)) return TooLongAt(lineNumber);
    places_.push_back({*number, lineNumber});
    return Keep(place, key, text);
  }

  /// How many texts there are, or the code for the first text whose number lacks a language.
  [[nodiscard]] int Finish() const {
    const std::set<int> incomplete = IncompleteNumbers();
    const auto fault = std::ranges::find_if(
        places_, [&](const Place& place) { return incomplete.contains(place.number); });
    return fault == places_.end() ? static_cast<int>(texts_.size()) : MissingAt(fault->line);
  }

 private:
  struct Place {
    int number;
    int line;
  };

  [[nodiscard]] std::set<int> IncompleteNumbers() const {
    std::set<int> incomplete;
    std::size_t languages = 0;
    for (auto text = texts_.begin(); text != texts_.end();) {
      const int number = text->first.first;
      ++languages;
      if (++text != texts_.end() && text->first.first == number) continue;
      if (languages < kLanguages.size()) incomplete.insert(number);
      languages = 0;
    }
    return incomplete;
  }

  /// Where a text with this key stands, or would. Files name the texts in their order, mostly.
  [[nodiscard]] TextTable::iterator PlaceOf(TextKey key) {
    if (texts_.empty() || texts_.rbegin()->first < key) return texts_.end();
    return texts_.lower_bound(key);
  }

  /// Few are as long in bytes as they may be in characters.
  [[nodiscard]] static bool IsTooLong(std::string_view text) {
    return text.size() > kLongestText && CharacterCount(text) > kLongestText;
  }
  [[nodiscard]] int Keep(TextTable::iterator place, TextKey key, std::string_view text) {
    try {
      texts_.try_emplace(place, key, text);
      return kTaken;
    } catch (const std::bad_alloc&) {
      return kParticularMemory;
    }
  }

  TextTable& texts_;
  /// Of the texts, in the order of the file.
  std::vector<Place> places_;
};

}  // namespace

int ReadTextTable(ByteSource& source, TextTable& texts) {
  UnmarkedSource unmarked(source);
  const std::optional<std::string> bytes = ReadLimited(unmarked);
  if (!bytes) return kTooMuch;
  LineDecoder lines(*bytes);
  TableBuilder builder(texts);
  int lineNumber = 0;
  while (const std::optional<std::string_view> line = lines.NextLine()) {
    const int result = builder.TakeLine(*line, ++lineNumber);
    if (result != kTaken) return result;
  }
  return lineNumber == 0 ? kEmpty : builder.Finish();
}

}  // namespace quillomat
