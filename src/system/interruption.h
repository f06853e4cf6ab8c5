// What happens when somebody ends the program from outside: Ctrl+C, a request to end (SIGTERM), a
// terminal or a console window that is closed.
//
// While an Interruption lives, the program ends at once and leaves no unfinished file behind: files
// on their way into the place of another are removed (see output_file.h), so that what stood there
// stands there still. The exit status tells the reason. A signal that was ignored when the program
// started, as under nohup, stays ignored. A kill that cannot be caught leaves an unfinished file,
// but never under the name that was asked for. A library that ends the program with exit, as the
// toolkit does when the screen has gone, leaves none either.
//
// Who would rather finish something first asks for First::kIsNoted and looks at InterruptionStatus
// from time to time, or has an InterruptionWatch wait for it; the second interruption ends the
// program at once all the same.
//
// Who has finished some files and is at work on others leaves a word of it, which standard error
// gets when the program is ended.
#pragma once

#include <string>

namespace quillomat {

inline constexpr int kInterruptedStatus = 130;
inline constexpr int kAskedToEndStatus = 143;
/// The terminal was closed.
inline constexpr int kHungUpStatus = 129;

/// One at a time, from the start of the program on.
class Interruption {
 public:
  enum class First { kEndsTheProgram, kIsNoted };

  explicit Interruption(First first = First::kEndsTheProgram);
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;
  Interruption(Interruption&&) = delete;
  Interruption& operator=(Interruption&&) = delete;
  /// The system does again what it did before.
  ~Interruption();
};

/// What is to be finished first is finished: from now on the first interruption ends the program,
/// too.
void EndAtFirstInterruption() noexcept;

/// What standard error gets, as it is, when an interruption ends the program; "" for nothing. For a
/// few texts in the life of the program, as none of them is given up.
void SetLastWords(const std::string& text);

/// The exit status that the interruption asks for; 0 as long as there was none. Costs next to
/// nothing.
[[nodiscard]] int InterruptionStatus() noexcept;

}  // namespace quillomat
