#include "text/text_table.h"

#include <algorithm>
#include <charconv>
#include <new>
#include <optional>
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
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
    if (next != 'n' && next != 's' && next != '\\') {
      plain.push_back(text[i]);
      continue;
    }
    if (next == 'n') plain.append(kCrLf);
    if (next == 's') plain.push_back(' ');
    if (next == '\\') plain.push_back('\\');
    ++i;
  }
  return plain;
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
    if (texts_.contains({*number, *language})) return DuplicateAt(lineNumber);
    const std::string text = Unescaped(rest);
    if (text.empty()) return MissingAt(lineNumber);
    if (CharacterCount(text) > kLongestText) return TooLongAt(lineNumber);
    firstLines_.try_emplace(*number, lineNumber);
    return Keep({*number, *language}, text);
  }

  /// How many texts there are, or the code for the first number that lacks a language.
  [[nodiscard]] int Finish() const {
    std::optional<int> firstFault;
    for (const auto& [number, line] : firstLines_) {
      if (!HasAllLanguages(number)) firstFault = std::min(firstFault.value_or(line), line);
    }
    return firstFault ? MissingAt(*firstFault) : static_cast<int>(texts_.size());
  }

 private:
  [[nodiscard]] bool HasAllLanguages(int number) const {
    return std::ranges::all_of(kLanguages, [&](Language language) {
      return texts_.contains({number, language});
    });
  }

  [[nodiscard]] int Keep(TextKey key, std::string_view text) {
    try {
      texts_.try_emplace(key, text);
      return kTaken;
    } catch (const std::bad_alloc&) {
      return kParticularMemory;
    }
  }

  TextTable& texts_;
  /// Where each number stands first.
  std::map<int, int> firstLines_;
};

}  // namespace

int ReadTextTable(ByteSource& source, TextTable& texts) {
  const std::optional<std::string> bytes = ReadLimited(source);
  if (!bytes) return kTooMuch;
  TextSource contents(*bytes);
  LineDecoder lines(contents);
  TableBuilder builder(texts);
  int lineNumber = 0;
  while (const std::optional<std::string_view> line = lines.NextLine()) {
    const int result = builder.TakeLine(*line, ++lineNumber);
    if (result != kTaken) return result;
  }
  return lineNumber == 0 ? kEmpty : builder.Finish();
}

}  // namespace quillomat
