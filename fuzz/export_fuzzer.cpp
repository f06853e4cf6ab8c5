// Counts words of any letters and exports them. It checks that CSV, TSV, JSON and JSON lines, read
// back as their definitions say, hold the words, files and numbers that were exported, row by row.
// The input is words and names of files with a byte for its length before each.
#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_sink.h"
#include "base/line_decoder.h"
#include "base/well_formed_text.h"
#include "engine/word_store.h"
#include "export/word_export.h"
#include "fuzzing.h"
#include "listing/frequency_ranking.h"
#include "listing/word_table.h"

namespace {

using quillomat::ExportFormat;
using quillomat::WordColumn;
using quillomat::fuzzing::InputReader;
using quillomat::fuzzing::Require;
using Cells = std::vector<std::string>;
using Rows = std::vector<Cells>;

class TextSink final : public quillomat::ByteSink {
 public:
  void Write(std::string_view bytes) override { text.append(bytes); }
  std::string text;
};

/// RFC 4180: cells in quotes may hold anything, a quote twice.
Rows RowsOfCsv(std::string_view text) {
  Rows rows;
  Cells cells;
  std::string cell;
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char ch = text[i];
    if (ch == '"' && quoted && text.substr(i + 1).starts_with('"')) {
      cell.push_back(text[++i]);
    } else if (ch == '"') {
      quoted = !quoted;
    } else if (!quoted && (ch == ',' || text.substr(i).starts_with("\r\n"))) {
      cells.push_back(std::move(cell));
      cell.clear();
      if (ch == ',') continue;
      rows.push_back(std::move(cells));
      cells.clear();
      ++i;
    } else {
      cell.push_back(ch);
    }
  }
  Require(!quoted && cell.empty() && cells.empty(), "CSV ends with a line end");
  return rows;
}

Rows RowsOfTsv(std::string_view text) {
  Rows rows;
  Cells cells;
  std::string cell;
  for (std::size_t i = 0; i < text.size(); ++i) {
    switch (text[i]) {
      case '\\': {
        constexpr std::string_view kLetters = "tnr\\";
        constexpr std::string_view kMeanings = "\t\n\r\\";
        const std::size_t letter = kLetters.find(text.substr(++i).empty() ? '?' : text[i]);
        Require(letter < kLetters.size(), "TSV knows four escapes");
        cell.push_back(kMeanings[letter]);
        break;
      }
      case '\t':
      case '\n':
        cells.push_back(std::move(cell));
        cell.clear();
        if (text[i] == '\t') break;
        rows.push_back(std::move(cells));
        cells.clear();
        break;
      default:
        cell.push_back(text[i]);
    }
  }
  Require(cell.empty() && cells.empty(), "TSV ends with a line end");
  return rows;
}

Cells CellsOfJson(const nlohmann::ordered_json& row) {
  Cells cells;
  for (const auto& value : row) {
    cells.push_back(value.is_string() ? value.get<std::string>() : value.dump());
  }
  return cells;
}

Rows RowsOfJson(std::string_view text) {
  Rows rows;
  const nlohmann::ordered_json document = nlohmann::ordered_json::parse(text);
  for (const auto& row : document.at("rows")) rows.push_back(CellsOfJson(row));
  return rows;
}

Rows RowsOfJsonLines(std::string_view text) {
  Rows rows;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    Require(end != std::string_view::npos, "JSON lines end with a line end");
    rows.push_back(CellsOfJson(nlohmann::ordered_json::parse(text.substr(0, end))));
    text.remove_prefix(end + 1);
  }
  return rows;
}

/// Words in files, as a count of a folder leaves them.
void Fill(std::string_view input, quillomat::WordStore& store) {
  InputReader reader(input);
  store.Files().Reset(true);
  int file = 0;
  while (!reader.AtEnd()) {
    if (reader.Below(4) == 0) {
      store.Files().SetFileBeingScanned("f" + std::to_string(file++) +
                                        std::string(reader.Bytes(12)));
    } else if (const std::string word = quillomat::DecodeLine(reader.Bytes(24));
               file > 0 && !word.empty()) {
      store.AddWord(word);
    }
  }
}

/// What is exported, from the store itself: words, files, and how often the one is in the other. A
/// path may be no UTF-8, and every form has the same signs for bytes that are none.
Rows RowsOfStore(const quillomat::WordStore& store, const std::vector<std::int32_t>& places) {
  Rows rows;
  for (const std::int32_t place : places) {
    const quillomat::FileTally* files = store.FilesOf(place);
    for (std::size_t i = 0; files != nullptr && i < files->FileNumbers.size(); ++i) {
      const auto number = static_cast<std::size_t>(files->FileNumbers[i]);
      rows.push_back({std::string(store.At(place).Word),
                      quillomat::WellFormedText(store.Files().FileList()[number]),
                      std::to_string(files->FileCounts[i])});
    }
  }
  return rows;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillomat::WordStore store;
  Fill({reinterpret_cast<const char*>(data), size}, store);
  const quillomat::WordTotals totals = store.TallyWords();
  const quillomat::FrequencyRanking ranking = quillomat::RankByFrequency(store);
  constexpr std::int32_t kWordsRead = 1000;
  const quillomat::WordTable words({store, ranking, totals}, kWordsRead);
  const quillomat::ExportTable table{words,
                                     words.ByFrequency(),
                                     {WordColumn::kWord, WordColumn::kFile, WordColumn::kFrequency},
                                     {},
                                     {},
                                     {{"a \"setting\"", std::string("\t,\n")}}};
  const auto exported = [&](ExportFormat format) {
    TextSink sink;
    Require(ExportText(table, format, sink, {}), "an export comes to its end");
    return std::move(sink.text);
  };
  const Rows rows = RowsOfStore(store, words.ByFrequency());
  Rows withHead = rows;
  withHead.insert(withHead.begin(), {"word", "file", "frequency"});
  Require(RowsOfCsv(exported(ExportFormat::kCsv)) == withHead, "CSV holds the rows");
  Require(RowsOfTsv(exported(ExportFormat::kTsv)) == withHead, "TSV holds the rows");
  Require(RowsOfJson(exported(ExportFormat::kJson)) == rows, "JSON holds the rows");
  Require(RowsOfJsonLines(exported(ExportFormat::kJsonLines)) == rows, "JSON lines hold the rows");
  return 0;
}
