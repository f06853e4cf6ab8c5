// What the tests of the counter share: a request with the panel's defaults, an observer that writes
// down what it is told, and the words of a result on one line.
#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "sources/counter.h"
#include "support/temporary_folder.h"

namespace quillomat {

/// Writes down the events of a count, and stops it when asked to.
class RecordingObserver final : public CountObserver {
 public:
  bool Yield() override {
    ++yields;
    return stopped;
  }
  [[nodiscard]] std::uint32_t CallsLeft() const override { return 1; }
  bool YieldFor(std::uint32_t /*calls*/) override { return Yield(); }

  void OnNewWord(std::string_view word, std::int32_t numDifferentWords) override {
    newWords.append(newWords.empty() ? "" : " ").append(word);
    if (numDifferentWords == stopAtWord) stopped = true;
  }
  void OnChecked() override { Note("checked"); }
  void OnFileCounted(std::int32_t files, std::int32_t folders) override {
    Note("counted " + std::to_string(files) + " in " + std::to_string(folders));
    if (files == stopAtCounted) stopped = true;
  }
  bool GoOn(std::int32_t files, std::int32_t folders, std::string& outputPath) override {
    Note("go on with " + std::to_string(files) + " in " + std::to_string(folders) + "?");
    if (!choosesOutput.empty()) outputPath = choosesOutput;
    return goesOn;
  }
  void OnScanBegins() override { Note("scan"); }
  void OnFileMet(const std::string& path, const CountProgress& /*told*/) override {
    Note("met " + FileNamePartOf(path));
  }
  void OnFileBegins(const FileBegins& file) override {
    Note("begins " + FileNamePartOf(file.path));
    if (onFileBegins) onFileBegins(file);
  }
  void OnProgress(const CountProgress& told) override { progress.push_back(told); }
  void OnFileEnds(const FileReport& report, const CountProgress& told) override {
    Note("ends " + FileNamePartOf(report.path));
    afterFiles.push_back(told);
    if (FileNamePartOf(report.path) == stopBehind) stopped = true;
  }
  void OnSkipped(const SkippedFile& skipped) override {
    Note("skipped " + FileNamePartOf(skipped.path));
  }

  std::vector<std::string> events;
  std::string newWords;
  std::vector<CountProgress> progress;
  std::vector<CountProgress> afterFiles;
  std::function<void(const FileBegins&)> onFileBegins;
  int yields = 0;
  bool stopped = false;
  bool goesOn = true;
  std::string choosesOutput;
  std::string stopBehind;
  std::int32_t stopAtWord = 0;
  std::int32_t stopAtCounted = 0;

 private:
  void Note(std::string event) { events.push_back(std::move(event)); }
};

class CounterFixture : public testing::Test {
 protected:
  CounterFixture() {
    request.scan.allowWordsWith[static_cast<std::size_t>(AllowFlag::kHyphen)] =
        CheckState::kChecked;
  }

  CountResult Run() { return Counter(request, observer).Run(); }
  CountResult Run(CountSource source) {
    request.source = std::move(source);
    return Run();
  }

  void CountOnly(std::vector<std::string> words) {
    request.lists.ExtraCountOnlyList = WordList(std::move(words));
  }

  /// In alphabetical order, "cat*2 dog".
  [[nodiscard]] static std::string WordsOf(const CountResult& result) {
    std::string words;
    for (std::int32_t i = 1; i <= result.store.NumDifferentWords(); ++i) {
      const WordRec record = result.store.At(i);
      if (!words.empty()) words += ' ';
      words += record.Word;
      if (record.Count > 1) words += "*" + std::to_string(record.Count);
    }
    return words;
  }

  static void ExpectRefused(const CountResult& result, Refusal refusal) {
    EXPECT_EQ(result.end, CountEnd::kRefused);
    EXPECT_EQ(result.refusal, refusal);
    EXPECT_EQ(result.store.NumDifferentWords(), 0);
  }

  TemporaryFolder folder;
  CountRequest request;
  RecordingObserver observer;
};

}  // namespace quillomat
