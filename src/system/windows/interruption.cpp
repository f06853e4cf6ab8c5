#include "system/interruption.h"

#include <atomic>
#include <string_view>
#include <windows.h>

#include "system/last_words.h"
#include "system/native_disk.h"
#include "system/signals.h"
#include "system/unfinished_files.h"

namespace quillomat {
namespace {

// Not constant: the system calls the handler without an object.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<bool> firstIsNoted{false};
std::atomic<int> statusNoted{0};
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

constexpr DWORD kMillisecondsForLastWords = 200;

DWORD WINAPI EndSoon(void* status) {
  Sleep(kMillisecondsForLastWords);
  TerminateProcess(GetCurrentProcess(), *static_cast<UINT*>(status));
  return 0;
}

/// Nobody can be told that it failed. A pipe that is full waits for its reader: another thread sees
/// to it that the program ends with that status all the same. `status` is there until then.
void SayLastWords(UINT& status) {
  const std::string_view words = LastWords();
  if (words.empty()) return;
  if (CreateThread(nullptr, 0, EndSoon, &status, 0, nullptr) == nullptr) return;
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_ERROR_HANDLE), words.data(), static_cast<DWORD>(words.size()),
            &written, nullptr);
}

/// The system calls it on a thread of its own.
BOOL WINAPI OnConsoleEvent(DWORD event) {
  const bool byHand = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
  const int status = byHand ? kInterruptedStatus : kAskedToEndStatus;
  int none = 0;
  if (statusNoted.compare_exchange_strong(none, status) && firstIsNoted && byHand) {
    WakeWatch();
    return TRUE;
  }
  RemoveUnfinishedFiles();
  auto exitStatus = static_cast<UINT>(status);
  SayLastWords(exitStatus);
  TerminateProcess(GetCurrentProcess(), exitStatus);
  return TRUE;
}

}  // namespace

Interruption::Interruption(First first) {
  firstIsNoted = first == First::kIsNoted;
  statusNoted = 0;
  RemoveUnfinishedFilesAtExit();
  SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
}

Interruption::~Interruption() {
  SetConsoleCtrlHandler(OnConsoleEvent, FALSE);
}

void EndAtFirstInterruption() noexcept {
  firstIsNoted = false;
}

int InterruptionStatus() noexcept {
  return statusNoted;
}

// Whoever ends the program waits by itself for what is being made.
void HoldSignalsBack() noexcept {}
void LetSignalsCome() noexcept {}

void WaitAMoment() noexcept {
  Sleep(1);
}

// The thread is an ordinary one, so that it may do what others may.
void RemoveInHandler(const char* path) noexcept {
  RemoveFile(path);
  RemoveFolder(path);
}

}  // namespace quillomat
