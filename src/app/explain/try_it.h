// "Try it" on the panel: a line of the user's own, and what the settings make of it while they are
// changed. The line is a setting like others; what became of it stands in the box below.
#pragma once

#include <cstddef>
#include <string>

#include "app/count/in_force.h"
#include "app/count/word_list_reader.h"
#include "app/explain/lists_to_try.h"
#include "engine/explain/text_explainer.h"
#include "engine/word_filters.h"
#include "text/program_text.h"
#include "ui/params_form.h"

namespace quillomat {

class TryIt {
 public:
  /// All must outlive it.
  TryIt(ParamsForm& frmParams, WordListReader& wordLists, const InForce& inForce,
        const ProgramText& text)
      : frmParams_(frmParams), wordLists_(wordLists), lists_(frmParams, inForce), text_(text) {}

  /// Connects the panel's settings with the box. Called once, when everything else that handles
  /// them is connected.
  void Connect();

  /// Puts the line to its default.
  void Reset();

  /// Shows anew what becomes of the line. It costs nothing while nobody sees the panel.
  void Update();

  /// More of the line is not tried, in characters.
  static constexpr std::size_t kMostTried = 1000;

 private:
  [[nodiscard]] std::string Outcome();

  ParamsForm& frmParams_;
  WordListReader& wordLists_;
  ListsToTry lists_;
  const ProgramText& text_;
};

/// What became of a line that was explained with `filters`, in lines for the user.
[[nodiscard]] std::string OutcomeText(const Explanation& explanation, const FilterChoices& filters,
                                      const ProgramText& text);

}  // namespace quillomat
