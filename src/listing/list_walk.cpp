#include "listing/list_walk.h"

#include <cstddef>
#include <vector>

#include "base/text_helpers.h"

namespace quillomat {

void EmitHeader(const LineFormatter& formatter, ListSink& sink) {
  if (formatter.Options().format == DisplayFormat::kWordCommas) return;
  std::string line;
  formatter.FormatWordLine(line, 0);
  sink.TakeHeader(line);
}

bool ListAlphabetical(const CountedWords& words, const LineFormatter& formatter, ListSink& sink) {
  for (std::int32_t index = 1; index <= words.store.NumDifferentWords(); ++index) {
    if (!words.store.IsIncluded(index)) continue;
    formatter.FormatWordLine(sink.LineRoom(), index);
    if (!sink.TakeLineInRoom(index)) return false;
  }
  return true;
}

bool ListByFrequency(const CountedWords& words, const LineFormatter& formatter, ListSink& sink) {
  constexpr std::size_t kFetchedAhead = 16;
  const std::vector<std::int32_t>& byRank = words.ranking.byRank;
  for (std::size_t i = 0; i < byRank.size(); ++i) {
    // Words that follow each other in this order lie anywhere in the memory.
    if (i + kFetchedAhead < byRank.size()) words.store.PrefetchAt(byRank[i + kFetchedAhead]);
    const std::int32_t index = byRank[i];
    formatter.FormatWordLine(sink.LineRoom(), index);
    if (!sink.TakeLineInRoom(index)) return false;
  }
  return true;
}

std::string ScanHeaderText(std::int32_t files, std::int32_t folders,
                           std::string_view digitGroupSeparator) {
  std::string text = GroupDigits(files, digitGroupSeparator);
  text.append(files > 1 ? " files (in " : " file (in ");
  text.append(GroupDigits(folders, digitGroupSeparator));
  text.append(folders > 1 ? " folders)" : " folder)");
  text.append(files == 1 ? " was" : " were").append(" scanned.");
  return text;
}

std::string NoWordsMessage(const NoWordsChoices& choices) {
  if (choices.numDifferentWords == 0) {
    return "No words satisfying the conditions were found.";
  }
  std::string text = "No words with more than ";
  text.append(std::to_string(choices.shortWordSizeIndex + 1)).append(" letter");
  if (choices.shortWordSizeIndex >= 1) text.append("s");
  text.append(kCrLf).append("occur at least ");
  if (!choices.ignoreInfrequentWords) return text.append("once.");
  if (choices.thresholdFrequencyIndex == 0) return text.append("twice.");
  return text.append(std::to_string(choices.thresholdFrequencyIndex + 1)).append(" times.");
}

}  // namespace quillomat
