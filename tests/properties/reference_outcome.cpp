#include <cstdint>
#include <map>
#include <memory>
#include <sstream>
#include <vector>

#include "listing/order_figures.h"
#include "properties/count_outcome.h"
#include "reference/literal_engine.h"

namespace quillomat::properties {

using reference::LiteralEngine;
using reference::ToUtf8;

namespace {

void Scan(LiteralEngine& engine, const CaseText& text) {
  engine.choices.txbFile0 = text.path;
  engine.SetCommentMarkers(text.markers);
  engine.ForceCommentMarkers = text.markers == "HTML" || text.markers == "C";
  if (!text.whole) {
    for (const std::string& line : text.lines) engine.ScanLine(line);
    return;
  }
  std::string all;
  for (const std::string& line : text.lines) all += line + "\r\n";
  engine.ScanText(all);
}

/// By the segmenter's cuts.
reference::WordFinder FinderOf(Segmenter segmenter) {
  const SegmenterMaker make = MakerOf(segmenter);
  const std::shared_ptr<RunSegmenter> made = make == nullptr ? nullptr : make();
  if (made == nullptr) return {};
  return [made](const reference::Characters& run) {
    const std::string utf8 = ToUtf8(run);
    std::vector<std::size_t> cuts;
    static_cast<void>(made->FindCuts(utf8, cuts));  // those of the tests never fail
    for (std::size_t& cut : cuts) cut = reference::FromUtf8(utf8.substr(0, cut)).size() + 1;
    return cuts;
  };
}

/// The growth is thinned as the program does it, which is tested elsewhere.
void DescribeOrder(const LiteralEngine& engine, Told told, std::ostream& out) {
  if (told == Told::kNoOrder) return;
  std::map<reference::Characters, std::uint32_t> numbers;
  std::vector<std::uint32_t> order;
  out << (told == Told::kOrder ? "order" : "growth");
  for (const reference::Characters& key : engine.WordOrder) {
    const auto next = static_cast<std::uint32_t>(numbers.size());
    order.push_back(numbers.try_emplace(key, next).first->second);
    if (told == Told::kOrder) out << ' ' << ToUtf8(key);
  }
  OrderFigureCounter figures;
  figures.OnWords(order);
  for (const GrowthPoint& point : figures.Figures().growth) {
    if (told == Told::kGrowth) out << ' ' << point.differentWords;
  }
  out << '\n';
}

void DescribeWords(const LiteralEngine& engine, std::ostream& out) {
  for (std::size_t i = 1; i <= static_cast<std::size_t>(engine.NumDifferentWords); ++i) {
    const reference::WordRec& entry = engine.WordStore[i];
    out << ToUtf8(entry.Word) << " key " << ToUtf8(entry.SortKey) << " count " << entry.Count
        << (entry.Included ? " listed" : " left out") << " files " << ToUtf8(entry.FileNumbers)
        << " " << ToUtf8(entry.FileCounts) << '\n';
  }
}

void Describe(const CountCase& countCase, Told told, LiteralEngine& engine, std::ostream& out) {
  engine.choices = countCase.choices;
  engine.findWords = FinderOf(countCase.segmenter);
  for (int kind = 0; kind < 2; ++kind) {
    out << "typed: " << engine.GetExtraWords(kind) << '\n';
    const auto& lines = countCase.wordsFiles[static_cast<std::size_t>(kind)];
    if (lines.empty()) continue;
    out << "list:";
    for (const std::string& word : engine.ReadListLines(lines)) out << ' ' << word;
    engine.ReadWords(kind, lines);
    out << "\nflags:";
    for (const bool flag : engine.ListCharFlags) out << ' ' << flag;
    out << '\n';
    engine.choices = countCase.choices;  // what the reading ticked is compared by the flags
  }
  engine.BeginRun();
  for (const CaseText& text : countCase.texts) Scan(engine, text);
  engine.FinishRun();
  out << "read " << engine.WordsRead << " open " << engine.OpenComment << " foreign "
      << engine.ForeignLetters << '\n';
  DescribeOrder(engine, told, out);
  out << "included " << engine.NumIncludedWords << " excluded " << engine.NumExcludedWords
      << " total " << engine.TotalIncludedCount << " max " << engine.MaxCount << " longest "
      << engine.MaxWordLength << '\n';
  DescribeWords(engine, out);
  const reference::ListingRequest request{countCase.order, countCase.format, countCase.numFiles,
                                          countCase.numFolders};
  if (engine.NumIncludedWords == 0) {
    out << ToUtf8(engine.NoWordsMessage());
    return;
  }
  const reference::TextboxListing box = engine.ListToTextbox(request);
  out << "box" << (box.textboxFull ? " full" : "") << ":\n" << box.text;
  out << "\nfile:\n" << engine.ListToFile(request, "\n");
}

}  // namespace

std::string OutcomeOfReference(const CountCase& countCase, Told told) {
  std::ostringstream out;
  LiteralEngine engine;
  try {
    Describe(countCase, told, engine, out);
  } catch (const reference::Overflow&) {
    out << kOverflow;
  }
  return out.str();
}

}  // namespace quillomat::properties
