// A small count to be exported, and a sink that keeps what it gets.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/byte_sink.h"
#include "engine/word_store.h"
#include "export/word_export.h"
#include "listing/frequency_ranking.h"
#include "listing/word_table.h"

namespace quillomat {

class TextSink final : public ByteSink {
 public:
  void Write(std::string_view bytes) override { text.append(bytes); }
  std::string text;
};

class ExportFixture : public testing::Test {
 protected:
  /// Counts each word so many times. 1,000 words are said to have been read.
  void Count(const std::vector<std::pair<std::string, int>>& words) {
    for (const auto& [word, times] : words) {
      for (int i = 0; i < times; ++i) store_.AddWord(word);
    }
    Rank();
  }
  /// Counts "whale" once.
  void CountInFile(const std::string& path) {
    store_.Files().Reset(true);
    store_.Files().SetFileBeingScanned(path);
    store_.AddWord("whale");
    Rank();
  }
  void Rank() {
    totals_ = store_.TallyWords();
    ranking_ = RankByFrequency(store_);
    table_.emplace(CountedWords{store_, ranking_, totals_}, kWordsRead);
  }

  [[nodiscard]] ExportTable Table(std::vector<WordColumn> columns) const {
    return {*table_,      table_->ByFrequency(), std::move(columns),
            totalsFacts_, statistics_,           settings_};
  }
  [[nodiscard]] std::string Export(ExportFormat format, std::vector<WordColumn> columns) const {
    TextSink sink;
    EXPECT_TRUE(ExportText(Table(std::move(columns)), format, sink, {}));
    return sink.text;
  }

  static constexpr std::int32_t kWordsRead = 1000;
  WordStore store_;
  WordTotals totals_;
  FrequencyRanking ranking_;
  std::optional<WordTable> table_;
  std::vector<ExportFact> totalsFacts_;
  std::vector<ExportFact> statistics_;
  std::vector<ExportFact> settings_;
};

}  // namespace quillomat
