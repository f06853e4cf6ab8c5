#include "engine/whole_lines.h"

#include <string>

#include "base/line_decoder.h"
#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// False when the next line is none that is long, or it cannot be taken in parts.
bool ScanLongLine(const LongLine::Scan& scan, LineDecoder& lines) {
  if (!lines.IsAtLongLine() || !scan.scanner.CanTakeParts()) return false;
  LongLine line(scan);
  for (std::string_view part = lines.NextPartOfLine(); !part.empty();
       part = lines.NextPartOfLine()) {
    line.Take(part);
    if (scan.yield.Yield()) break;
  }
  line.End();
  return true;
}

}  // namespace

void ScanWholeLines(const LongLine::Scan& scan, std::string_view text) {
  LineDecoder lines(text);
  lines.CountLinesNotUtf8In(scan.settings.Uncounted.linesNotUtf8);
  std::string buffer;
  while (!scan.yield.Yield()) {
    const std::string_view atHand = lines.NextLines();
    if (const std::size_t plain = scan.scanner.PlainLineBytes(atHand); plain > 0) {
      scan.scanner.GetWordsOfLines(atHand.substr(0, plain));
      lines.SkipLines(plain);
    } else if (ScanLongLine(scan, lines)) {
      // Part by part.
    } else if (const auto line = lines.NextLine()) {
      const std::string_view trimmed = TrimBlanks(*line);
      if (trimmed.empty()) continue;
      const bool caseSignificant = IsSet(scan.choices.caseSignificant);
      scan.scanner.GetWords(PrepareLine(trimmed, caseSignificant, buffer, scan.choices.letters));
    } else {
      return;
    }
  }
}

}  // namespace quillomat
