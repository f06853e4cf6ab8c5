// Which character set the bytes of a text are likely to be in.
#pragma once

#include <cstddef>
#include <string_view>

#include "base/character_set.h"

namespace quillomat {

/// So many bytes at the start of a text are enough for a guess.
inline constexpr std::size_t kGuessBytes = std::size_t{64} * 1024;

/// Whether all of `head` is text in UTF-8. One of kGuessBytes may end within a character; a shorter
/// one is the whole text.
[[nodiscard]] bool LooksLikeUtf8(std::string_view head);

/// The set that the text that starts with `head` is to be converted from, where the user wants
/// `choice`. A byte-order mark says more than any choice. kAsFound where nothing is to be converted
/// or nothing can be guessed; never kGuess.
[[nodiscard]] CharacterSet CharacterSetOf(std::string_view head, CharacterSet choice);

/// The same of a list that may come with the program, or from elsewhere than the texts: what looks
/// like UTF-8 is read as it is.
[[nodiscard]] CharacterSet CharacterSetOfWords(std::string_view head, CharacterSet choice);

/// Where the first byte beyond ASCII stands; npos if there is none.
[[nodiscard]] std::size_t FirstBeyondAscii(std::string_view bytes);

/// Whether a text whose first byte beyond ASCII stands at `place` (npos: nowhere) is to be guessed
/// from there on. CharacterSetOf has seen ASCII alone then, which is alike in all sets but UTF-16.
[[nodiscard]] bool IsGuessedLate(std::size_t place);

/// That guess: `bytes` are those from that place on, kGuessBytes of them or all that there are.
[[nodiscard]] CharacterSet LateGuess(std::string_view bytes);

/// The same for `text`, which is whole: kAsFound where it is not guessed late.
[[nodiscard]] CharacterSet LateGuessOfWhole(std::string_view text);

}  // namespace quillomat
