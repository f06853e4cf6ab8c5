#include "system/interruption.h"

#include <array>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <string_view>
#include <sys/types.h>
#include <unistd.h>

#include "system/last_words.h"
#include "system/signals.h"
#include "system/unfinished_files.h"

namespace quillomat {
namespace {

constexpr std::array<int, 3> kSignals = {SIGHUP, SIGINT, SIGTERM};
constexpr int kStatusOfSignals = 128;
/// One request may come as several signals: a terminal that closes sends one from its shell and one
/// from the kernel, `timeout` one to the process and one to its group.
constexpr std::int64_t kMillisecondsOfOneRequest = 200;

// Not constant: all that a signal handler can get at are variables of the process.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
std::atomic<bool> firstIsNoted{false};
std::atomic<int> statusNoted{0};
std::atomic<std::int64_t> millisecondsOfFirst{0};
std::array<struct sigaction, kSignals.size()> handledBefore{};
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

/// Nobody can be told that it failed. A pipe that is full would wait for its reader, and with it
/// all other signals: then nothing is said.
void SayLastWords() noexcept {
  const std::string_view words = LastWords().substr(0, PIPE_BUF);
  pollfd room{.fd = STDERR_FILENO, .events = POLLOUT, .revents = 0};
  if (poll(&room, 1, 0) != 1 || (room.revents & POLLOUT) == 0) return;
  [[maybe_unused]] const ssize_t said = write(STDERR_FILENO, words.data(), words.size());
}

/// Of a clock that nobody sets.
std::int64_t Milliseconds() noexcept {
  constexpr std::int64_t kInASecond = 1000;
  constexpr std::int64_t kNanoseconds = 1'000'000;
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return std::int64_t{now.tv_sec} * kInASecond + now.tv_nsec / kNanoseconds;
}

/// Whether an interruption that was noted needs nothing more.
bool IsNoted(int status) noexcept {
  int none = 0;
  if (statusNoted.compare_exchange_strong(none, status)) {
    millisecondsOfFirst = Milliseconds();
    if (firstIsNoted) WakeWatch();
    return firstIsNoted;
  }
  const std::int64_t first = millisecondsOfFirst;
  return first == 0 || Milliseconds() - first < kMillisecondsOfOneRequest;
}

void OnSignal(int signal) {
  const int status = kStatusOfSignals + signal;
  if (IsNoted(status)) return;
  RemoveUnfinishedFiles();
  SayLastWords();
  _exit(status);
}

/// By the system's own call: what the library reads folders with allocates.
void EmptyFolder(int folder) noexcept {
  constexpr std::size_t kBlockBytes = 4096;
  alignas(dirent64) std::array<char, kBlockBytes> block{};
  for (ssize_t bytes = 0; (bytes = getdents64(folder, block.data(), block.size())) > 0;) {
    for (ssize_t at = 0; at < bytes;) {
      const auto* const entry = reinterpret_cast<const dirent64*>(block.data() + at);
      unlinkat(folder, entry->d_name, 0);
      at += entry->d_reclen;
    }
  }
}

sigset_t SignalsThatEnd() {
  sigset_t signals{};
  sigemptyset(&signals);
  for (const int signal : kSignals) sigaddset(&signals, signal);
  return signals;
}

}  // namespace

Interruption::Interruption(First first) {
  firstIsNoted = first == First::kIsNoted;
  statusNoted = 0;
  millisecondsOfFirst = 0;
  RemoveUnfinishedFilesAtExit();
  struct sigaction action {};
  action.sa_handler = OnSignal;
  // While one is handled the others wait: two handlers would wait for each other's threads. So do
  // those that would end the program before it has said its last words.
  action.sa_mask = SignalsThatEnd();
  for (const int ofWriting : {SIGPIPE, SIGXFSZ}) sigaddset(&action.sa_mask, ofWriting);
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &handledBefore[i]);
    if (handledBefore[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &action, nullptr);
  }
}

Interruption::~Interruption() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], &handledBefore[i], nullptr);
  }
}

void EndAtFirstInterruption() noexcept {
  firstIsNoted = false;
}

int InterruptionStatus() noexcept {
  return statusNoted;
}

void HoldSignalsBack() noexcept {
  const sigset_t signals = SignalsThatEnd();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void LetSignalsCome() noexcept {
  const sigset_t signals = SignalsThatEnd();
  pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

void WaitAMoment() noexcept {
  poll(nullptr, 0, 1);
}

void RemoveInHandler(const char* path) noexcept {
  if (unlink(path) == 0) return;
  const int folder = open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  EmptyFolder(folder);
  rmdir(path);
}

}  // namespace quillomat
