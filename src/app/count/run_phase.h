// What the running program is doing, and what can be used meanwhile: one table for all of it. What
// the commands' captions say follows from the phase, never the other way.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace quillomat {

enum class RunPhase : std::uint8_t {
  kIdle,
  /// A count or a list of files was asked for, and its checks are made.
  kChecking,
  /// Files are counted, walked through or scanned.
  kCounting,
  /// The words of a count are ranked and listed.
  kListing,
  /// They are listed anew, in another order or format.
  kListingAgain,
  /// A words file or a saved state is read.
  kReading,
  /// The user has asked a count or a list to stop, and it has not ended yet.
  kStopping,
  /// The words are exported.
  kExporting,
};

/// What the count command says.
enum class CountCaption : std::uint8_t { kCount, kStop };

/// What can be used in a phase; what no column is about can be used in every one.
struct PhaseRules {
  CountCaption caption = CountCaption::kCount;
  /// The count command stops what is done.
  bool stops = false;
  /// The buttons that choose the source of the text.
  bool sourceOptions = false;
  /// The order and the format of the list.
  bool listOptions = false;
  /// The rows of the sources and of the output file, and the other commands of the main window.
  bool commands = false;
  /// The panel's commands that load settings or words.
  bool wordCommands = false;
};

// clang-format off
inline constexpr std::array<PhaseRules, 8> kPhaseRules = {{
    //                   caption               stops  sourceOptions listOptions commands wordCommands
    /* kIdle         */ {CountCaption::kCount, false, true,         true,       true,    true},
    /* kChecking     */ {CountCaption::kCount, false, false,        false,      true,    false},
    /* kCounting     */ {CountCaption::kStop,  true,  false,        false,      false,   false},
    /* kListing      */ {CountCaption::kStop,  true,  false,        false,      false,   false},
    /* kListingAgain */ {CountCaption::kStop,  true,  true,         false,      true,    false},
    /* kReading      */ {CountCaption::kCount, false, true,         true,       true,    false},
    /* kStopping     */ {CountCaption::kStop,  false, false,        false,      false,   false},
    /* kExporting    */ {CountCaption::kStop,  true,  false,        false,      false,   false},
}};
// clang-format on

[[nodiscard]] constexpr const PhaseRules& RulesOf(RunPhase phase) {
  return kPhaseRules[static_cast<std::size_t>(phase)];
}

}  // namespace quillomat
