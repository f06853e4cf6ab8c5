// Feeds bytes to the decoder, the engine and the listing. It checks:
// 1. Nothing crashes, hangs or trips a sanitizer, whatever the bytes are.
// 2. Lines are well-formed UTF-8, and decoding does not depend on how the bytes come in blocks.
// 3. The words, counts and lists are those of the literal engine.
// The first bytes choose the settings, the rest is the file.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_source.h"
#include "base/line_decoder.h"
#include "base/utf8.h"
#include "properties/count_case.h"
#include "properties/count_outcome.h"

namespace {

using quillomat::properties::CountCase;
using quillomat::properties::Reading;

/// Gives the bytes out in pieces of one size.
class PiecewiseSource final : public quillomat::ByteSource {
 public:
  PiecewiseSource(std::string_view bytes, std::size_t piece) : rest_(bytes), piece_(piece) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = std::min({buffer.size(), rest_.size(), piece_});
    std::copy_n(rest_.begin(), bytes, buffer.begin());
    rest_.remove_prefix(bytes);
    return bytes;
  }

 private:
  std::string_view rest_;
  std::size_t piece_;
};

std::vector<std::string> LinesOf(std::string_view bytes, std::size_t piece) {
  PiecewiseSource source(bytes, piece);
  quillomat::LineDecoder decoder(source);
  std::vector<std::string> lines;
  while (const auto line = decoder.NextLine()) lines.emplace_back(*line);
  return lines;
}

void Require(bool holds) {
  if (!holds) std::abort();
}

/// Reads settings off the front of the input.
class SettingsReader {
 public:
  explicit SettingsReader(std::string_view& rest) : rest_(rest) {}

  int Below(int limit) {
    if (rest_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(rest_[0]);
    rest_.remove_prefix(1);
    return byte % limit;
  }

  std::string Text(int mostBytes) {
    const auto bytes = std::min(static_cast<std::size_t>(Below(mostBytes + 1)), rest_.size());
    const std::string text = quillomat::DecodeLine(rest_.substr(0, bytes));
    rest_.remove_prefix(bytes);
    return text;
  }

 private:
  std::string_view& rest_;
};

CountCase CaseOf(std::string_view& rest) {
  SettingsReader read(rest);
  CountCase result;
  auto& choices = result.choices;
  for (int* box : {&choices.chkAllowWordsWithHyphens, &choices.chkAllowWordsWithApostrophes,
                   &choices.chkAllowWordsWithUnderscores, &choices.chkAllowWordsWithColons,
                   &choices.chkAllowWordsWithBackslashes, &choices.chkAllowWordsWithForwardslashes,
                   &choices.chkAllowWordsWithParentheses, &choices.chkAllowWordsWithPeriods,
                   &choices.chkAllowWordsWithCommas, &choices.chkAllowWordsWithAtSigns,
                   &choices.chkAllowWordsWithNumerals, &choices.chkCaseSignificant,
                   &choices.chkDropFinalS, &choices.chkAllowCommentMarkers,
                   &choices.chkIgnoreRepetitions, &choices.chkOutputWithCommas}) {
    *box = read.Below(3);
  }
  for (std::size_t pair = 0; pair < 2; ++pair) {
    choices.txbStartComment[pair] = read.Text(4);
    choices.txbEndComment[pair] = read.Text(4);
  }
  choices.txbWordsToIgnoreOrCount[static_cast<std::size_t>(read.Below(2))] = read.Text(12);
  choices.optFolder = read.Below(2) == 1;
  choices.txbFolder = "/home/reader/books";
  result.format = read.Below(14);
  result.order = read.Below(2);
  return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  CountCase countCase = CaseOf(rest);
  const std::vector<std::string> lines = LinesOf(rest, rest.size() + 1);
  Require(lines == LinesOf(rest, 1) && lines == LinesOf(rest, 3));
  for (const std::string& line : lines) Require(quillomat::IsWellFormedUtf8(line));
  for (const char* markers : {"", "HTML", "user", "C"}) {
    countCase.texts.push_back({markers, "/home/reader/books/a.txt", false, lines});
  }
  const std::string expected = OutcomeOfReference(countCase);
  Require(OutcomeOfProgram(countCase, Reading::kByLines) == expected);
  Require(OutcomeOfProgram(countCase, Reading::kInBlocks) == expected);
  Require(OutcomeOfProgram(countCase, Reading::kInParts) == expected);
  Require(OutcomeOfProgram(countCase, Reading::kOnThreads) == expected);
  return 0;
}
