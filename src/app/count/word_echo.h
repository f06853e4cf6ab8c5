// Shows the user that a scan gets on: the number of different words so far, and each new word in
// the output text box until that has enough.
#pragma once

#include <cstdint>
#include <string_view>

#include "app/list/output_box.h"
#include "app/messages.h"
#include "engine/scan_settings.h"
#include "engine/word_store.h"
#include "ui/main_form.h"

namespace quillomat {

class WordEcho final : public NewWordListener {
 public:
  /// All must outlive it. `settings` are those of the scan.
  WordEcho(MainForm& frmMain, OutputBox& output, const Messages& messages,
           const ScanSettings& settings)
      : frmMain_(frmMain), output_(output), messages_(messages), settings_(settings) {}
  WordEcho(const WordEcho&) = delete;
  WordEcho& operator=(const WordEcho&) = delete;
  WordEcho(WordEcho&&) = delete;
  WordEcho& operator=(WordEcho&&) = delete;
  /// The words are on display for as long as it lives.
  ~WordEcho() override { output_.SetDisplayingWords(false); }

  void OnNewWord(std::string_view word, std::int32_t numDifferentWords) override;

 private:
  void ShowNumber(std::int32_t numDifferentWords);
  void Echo(std::string_view word, bool first);

  MainForm& frmMain_;
  OutputBox& output_;
  const Messages& messages_;
  const ScanSettings& settings_;
};

}  // namespace quillomat
