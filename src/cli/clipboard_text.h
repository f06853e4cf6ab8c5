// The text that a run takes in place of the clipboard's: that of --text, and of --explain.
#pragma once

#include "base/byte_source.h"
#include "base/character_set.h"
#include "cli/terminal_desktop.h"
#include "engine/uncounted.h"
#include "sources/guessed_sets.h"

namespace quillomat {

/// What is known of it.
struct ClipboardText {
  /// The clipboard holds the start, which is longer than it may be.
  bool isTooLong = false;
  /// Of its bytes.
  Uncounted uncounted;
  GuessedSets guessed;
};

/// No more is read than makes certain that the clipboard would not take it: input may be endless.
/// Throws RunTimeError when it cannot be read.
[[nodiscard]] ClipboardText TakeAsClipboard(ByteSource& input, CharacterSet encoding,
                                            TerminalDesktop& desktop);

}  // namespace quillomat
