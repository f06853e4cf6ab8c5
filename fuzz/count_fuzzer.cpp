// Feeds bytes to the decoder, the engine and the listing. It checks:
// 1. Nothing crashes, hangs or trips a sanitizer, whatever the bytes are.
// 2. The words, counts and lists are those of the literal engine, also when the counter reads the
//    bytes in files, on several threads.
// The first bytes choose how the text is read and the settings, the rest is the file.
#include <array>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_source.h"
#include "base/line_decoder.h"
#include "fuzzing.h"
#include "properties/count_case.h"
#include "properties/count_outcome.h"
#include "sources/line_endings.h"
#include "sources/marker_fault.h"
#include "support/temporary_folder.h"

namespace {

using quillomat::fuzzing::InputReader;
using quillomat::fuzzing::Require;
using quillomat::properties::CountCase;
using quillomat::properties::Reading;
using quillomat::properties::Segmenter;
using quillomat::properties::Told;

std::vector<std::string> LinesOf(std::string_view bytes) {
  quillomat::TextSource source(bytes);
  quillomat::LineDecoder decoder(source);
  std::vector<std::string> lines;
  while (const auto line = decoder.NextLine()) lines.emplace_back(*line);
  return lines;
}

/// Settings are read off the front of the input.
CountCase CaseOf(std::string_view& rest) {
  InputReader read(rest);
  const auto text = [&read](int mostBytes) { return quillomat::DecodeLine(read.Bytes(mostBytes)); };
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
    choices.txbStartComment[pair] = text(4);
    choices.txbEndComment[pair] = text(4);
  }
  choices.txbWordsToIgnoreOrCount[static_cast<std::size_t>(read.Below(2))] = text(12);
  choices.optFolder = read.Below(2) == 1;
  choices.txbFolder = "/home/reader/books";
  result.format = read.Below(14);
  result.order = read.Below(2);
  choices.cboLetters = read.Below(2);
  choices.chkFoldAccents = read.Below(2);
  result.segmenter = static_cast<Segmenter>(read.Below(3));
  return result;
}

void RequireSame(const CountCase& countCase, const std::string& outcome, Told told) {
  const std::string expected = OutcomeOfReference(countCase, told);
  if (outcome == expected) return;
  std::cerr << AsCode(countCase) << "\nthe program's outcome:\n"
            << outcome << "\nthe literal engine's:\n"
            << expected << '\n';
  Require(false, "the outcome is that of the literal engine");
}

/// The bytes in files of several kinds, as the counter reads them.
void RequireSameOfFiles(CountCase countCase, std::string_view bytes,
                        const std::vector<std::string>& lines) {
  using quillomat::LineEndingType;
  constexpr std::size_t kLookedAt = 10'240;
  constexpr std::size_t kThreads = 2;
  if (quillomat::FindMarkerFault(quillomat::properties::ScanChoicesOf(countCase.choices))) return;
  const bool users = countCase.choices.chkAllowCommentMarkers == 1;
  const std::string_view head = bytes.substr(0, quillomat::HeadBytes(kLookedAt));
  const bool isText =
      !bytes.empty() && quillomat::LineEndingTypeOf(head, kLookedAt) != LineEndingType::kNotText;
  const quillomat::TemporaryFolder folder;
  countCase.choices.optFolder = true;
  countCase.choices.txbFolder = folder.Path();
  // More than are read as they are met.
  for (int i = 0; i < 24; ++i) {
    static constexpr std::array kEndings = {".txt", ".html", ".c"};
    const std::array<std::string, 3> markers = {users ? "user" : "", "HTML", "C"};
    const auto kind = static_cast<std::size_t>(i % 3);
    const std::string path = folder.Write("f" + std::to_string(100 + i) + kEndings[kind], bytes);
    if (isText) countCase.texts.push_back({markers[kind], path, false, lines});
  }
  const quillomat::TextOfFolder source{folder.Path(), false, {}};
  // The counts of several files come together where nothing asks for the order of words.
  const Told told = bytes.size() % 2 == 0 ? Told::kNoOrder : Told::kGrowth;
  RequireSame(countCase, OutcomeOfCounter(countCase, {source, kThreads, told}), told);
}

/// One of five ways: to try all of each input costs as many times as much and shows no more.
/// Nothing for the counter's.
std::optional<Reading> ReadingOf(std::string_view& rest) {
  constexpr std::array kReadings = {Reading::kByLines, Reading::kInBlocks, Reading::kInParts,
                                    Reading::kOnThreads};
  const int way = InputReader(rest).Below(static_cast<int>(kReadings.size()) + 1);
  if (way == static_cast<int>(kReadings.size())) return std::nullopt;
  return kReadings.at(static_cast<std::size_t>(way));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  const std::optional<Reading> reading = ReadingOf(rest);
  CountCase countCase = CaseOf(rest);
  const std::vector<std::string> lines = LinesOf(rest);
  if (!reading) {
    RequireSameOfFiles(countCase, rest, lines);
    return 0;
  }
  for (const char* markers : {"", "HTML", "user", "C"}) {
    countCase.texts.push_back({markers, "/home/reader/books/a.txt", false, lines});
  }
  RequireSame(countCase, OutcomeOfProgram(countCase, *reading), Told::kOrder);
  return 0;
}
