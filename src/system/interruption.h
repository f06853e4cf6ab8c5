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
// program at once all the same. Signals that come together are one.
//
// Of the files that stand under their names by then, standard error can be told.
#pragma once

#include <functional>
#include <span>
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

/// From now on, standard error gets what `line` makes of the paths of the files that were written
/// (see output_file.h) when an interruption ends the program; nothing where there are none. They
/// come as they were asked for and in that order, and no file is among them that is not yet in its
/// place, or missing that is (but the last, if it was written in place). `line` is asked for each
/// file, and what it makes is kept to the end. From then on one thread writes all files. Nothing in
/// place of a function ends it.
void TellOfWrittenFiles(std::function<std::string(std::span<const std::string> paths)> line);

/// The exit status that the interruption asks for; 0 as long as there was none. Costs next to
/// nothing.
[[nodiscard]] int InterruptionStatus() noexcept;

}  // namespace quillomat
