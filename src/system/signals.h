// The little that stands between the system's signals and those who mind them (unfinished_files.h,
// interruption_watch.h). For the files of this folder.
#pragma once

namespace quillomat {

/// Signals that end the program wait, as far as this thread is concerned. Not to be nested, and not
/// for a thread that holds them back of its own: afterwards they come, whatever was before.
void HoldSignalsBack() noexcept;
void LetSignalsCome() noexcept;

/// As far as a signal handler may do these: to wait a moment, and to remove a file, or a folder
/// with the files in it.
void WaitAMoment() noexcept;
void RemoveInHandler(const char* path) noexcept;

/// An interruption has been noted: who waits for one is woken. May be called by a signal handler.
void WakeWatch() noexcept;

}  // namespace quillomat
