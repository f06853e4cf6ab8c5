// The parameters panel: what its commands and boxes do. The values themselves are its controls'.
#pragma once

#include "sources/run_context.h"
#include "sources/word_list_reader.h"

namespace quillomat {

class ParametersPanel {
 public:
  ParametersPanel(const RunContext& context, WordListReader& wordLists)
      : context_(context), wordLists_(wordLists) {}

  /// Connects the panel's controls with what they do. Called once.
  void Connect();

  /// Puts every parameter to its default.
  void SetDefaultValues();

 private:
  void SetDefaultCheckBoxes();
  void ConnectWordLists();

  const RunContext& context_;
  WordListReader& wordLists_;
};

}  // namespace quillomat
