// Feeds bytes to the line decoder. It checks:
// 1. Lines are well-formed UTF-8 without a line break in them.
// 2. They do not depend on the blocks in which the bytes come, nor on how they are asked for: line
//    by line, as whole lines that stand in the source, or part by part.
// 3. DecodeText gives the same text.
// The first byte says how long lines are made, the rest is the file.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/line_decoder.h"
#include "base/utf8.h"
#include "fuzzing.h"

namespace {

using quillomat::LineDecoder;
using quillomat::fuzzing::PiecewiseSource;
using quillomat::fuzzing::Require;
using Lines = std::vector<std::string>;

Lines OneByOne(std::string_view bytes, std::size_t piece) {
  PiecewiseSource source(bytes, piece);
  LineDecoder decoder(source);
  Lines lines;
  while (const auto line = decoder.NextLine()) lines.emplace_back(*line);
  return lines;
}

/// Lines that stand in the source as they are, cut and decoded here.
void TakePlainLines(std::string_view ahead, Lines& lines) {
  while (!ahead.empty()) {
    const std::size_t end = quillomat::FindLineEnd(ahead);
    Require(end < ahead.size(), "what NextLines gives ends with a line end");
    lines.push_back(quillomat::DecodeLine(ahead.substr(0, end)));
    const bool isPair = ahead.substr(end).starts_with("\r\n");
    ahead.remove_prefix(end + (isPair ? 2 : 1));
  }
}

Lines InAnyWay(std::string_view bytes, std::size_t piece) {
  PiecewiseSource source(bytes, piece);
  LineDecoder decoder(source);
  Lines lines;
  for (;;) {
    const std::string_view ahead = decoder.NextLines();
    if (!ahead.empty()) {
      const std::size_t taken = ahead.size();
      TakePlainLines(ahead, lines);
      decoder.SkipLines(taken);
    } else if (decoder.IsAtLongLine()) {
      std::string line;
      for (std::string_view part = decoder.NextPartOfLine(); !part.empty();
           part = decoder.NextPartOfLine()) {
        line.append(part);
      }
      lines.push_back(quillomat::DecodeLine(line));
    } else if (const auto line = decoder.NextLine()) {
      lines.emplace_back(*line);
    } else {
      return lines;
    }
  }
}

/// The text cut at its line ends; a last line without one counts.
Lines LinesOfText(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = quillomat::FindLineEnd(text);
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
  }
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  constexpr std::size_t kMostTimes = 8;
  std::string bytes;
  const std::string_view file(reinterpret_cast<const char*>(data) + 1, size - 1);
  for (std::size_t times = 0; times <= data[0] % kMostTimes; ++times) bytes.append(file);
  const Lines lines = OneByOne(bytes, bytes.size() + 1);
  for (const std::string& line : lines) {
    Require(quillomat::IsWellFormedUtf8(line), "lines are well-formed");
    Require(quillomat::FindLineEnd(line) == line.size(), "lines hold no line break");
  }
  for (const std::size_t piece : {std::size_t{1}, std::size_t{3}, std::size_t{4096}}) {
    Require(OneByOne(bytes, piece) == lines, "lines do not depend on blocks");
    Require(InAnyWay(bytes, piece) == lines, "lines do not depend on how they are asked for");
  }
  PiecewiseSource source(bytes, 7);
  Require(LinesOfText(quillomat::DecodeText(source)) == lines, "a text has the same lines");
  return 0;
}
