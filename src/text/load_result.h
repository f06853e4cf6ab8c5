// What becomes of loading the program text, as one number: above 0 for success, else the reason of
// the failure and, where a line of the file is to blame, that line.
#pragma once

#include <string>

namespace quillomat::load_result {

inline constexpr int kNoTextRead = 0;
inline constexpr int kCannotOpen = -1;
inline constexpr int kParticularMemory = -2;  // no memory to keep a text
inline constexpr int kTooMuch = -3;
inline constexpr int kNotRecovered = -4;
inline constexpr int kEmpty = -6;
inline constexpr int kCannotRead = -7;
inline constexpr int kGeneralMemory = -8;  // no memory for anything else

/// The last line that MissingAt and TooLongAt can tell; a fault behind it is kNotRecovered.
inline constexpr int kLastLineTold = 500;

/// A numbered entry without its text. Lines count from 1.
[[nodiscard]] int MissingAt(int line);
/// A text that is longer than a text may be.
[[nodiscard]] int TooLongAt(int line);
/// A number that has its text already. Every line can be told.
[[nodiscard]] int DuplicateAt(int line);

}  // namespace quillomat::load_result

namespace quillomat {

/// What the user is told about a `result` that is not above 0. `path` is that of the file.
[[nodiscard]] std::string LoadErrorMessage(int result, const std::string& path);

}  // namespace quillomat
