// A finished count and its lists: words are put into the store, by number or from text, and shown
// as they would go into a file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "listing/file_list_sink.h"
#include "listing/frequency_ranking.h"
#include "listing/list_line.h"
#include "listing/list_walk.h"
#include "support/engine_fixture.h"

namespace quillomat {

/// Remembers what it is given, and ends the walk at a word if asked to.
class RememberingSink final : public ListSink {
 public:
  void TakeHeader(std::string_view line) override { headers.emplace_back(line); }
  bool TakeWord(std::int32_t index, std::string_view line) override {
    indexes.push_back(index);
    lines.emplace_back(line);
    return lines.size() != stopAt;
  }

  std::vector<std::string> headers;
  std::vector<std::int32_t> indexes;
  std::vector<std::string> lines;
  /// 0 for never.
  std::size_t stopAt = 0;
};

class ListingFixture : public EngineFixture {
 protected:
  void Add(std::string_view word, int times = 1) {
    for (int i = 0; i < times; ++i) store.AddWord(word);
  }

  /// Adds a word that occurs in a file; files are tracked from then on.
  void AddInFile(std::string_view path, std::string_view word, int times = 1) {
    if (!store.Files().IsOn()) store.Files().Reset(true);
    store.Files().SetFileBeingScanned(path);
    Add(word, times);
  }

  /// "the" 12 times, "cat" and "sat" 3 times, "well-known" once.
  void AddSample() {
    Add("the", 12);
    Add("sat", 3);
    Add("cat", 3);
    Add("well-known");
  }

  /// Ends the count: sums and ranks.
  void Finish() {
    totals = store.TallyWords();
    ranking = RankByFrequency(store);
  }

  [[nodiscard]] CountedWords Counted() const { return {store, ranking, totals}; }

  void Walk(WordOrder order, ListSink& sink) {
    const LineFormatter formatter(Counted(), options);
    EmitHeader(formatter, sink);
    if (order == WordOrder::kAlphabetical) {
      ListAlphabetical(Counted(), formatter, sink);
    } else {
      ListByFrequency(Counted(), formatter, sink);
    }
  }

  /// The list as a file holds it, with "\n" for a line break.
  [[nodiscard]] std::string FileList(WordOrder order) {
    options.lineBreak = "\n";
    std::string contents;
    FileListSink sink([&contents](std::string_view bytes) { contents.append(bytes); },
                      [] { return false; }, options, store.NumDifferentWords());
    Walk(order, sink);
    sink.Flush();
    return contents;
  }

  /// The line of the word at an alphabetical place; 0 for the header.
  [[nodiscard]] std::string LineOf(std::int32_t index) const {
    std::string line;
    LineFormatter(Counted(), options).FormatWordLine(line, index);
    return line;
  }

  WordTotals totals;
  FrequencyRanking ranking;
  LineOptions options;
};

}  // namespace quillomat
