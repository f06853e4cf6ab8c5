#include "system/shell.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

#include "system/file_system.h"

namespace quillomat {
namespace {

/// "https://...", "mailto:...": a scheme of letters, digits and "+-.", before any separator.
bool IsAddress(const std::string& text) {
  const std::size_t colon = text.find(':');
  if (colon == 0 || colon == std::string::npos) return false;
  return text.find_first_not_of(
             "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-.") == colon;
}

/// What is handed over must not look like an option.
std::string AsArgument(const std::string& documentOrAddress) {
  return documentOrAddress.starts_with('-') ? "./" + documentOrAddress : documentOrAddress;
}

/// How the viewer starts: a session of its own, and no signal setting of ours.
class SpawnAttributes {
 public:
  SpawnAttributes() {
    posix_spawnattr_init(&attributes_);
    sigset_t none{};
    sigemptyset(&none);
    sigset_t toDefault{};
    sigemptyset(&toDefault);
    sigaddset(&toDefault, SIGPIPE);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &toDefault);
    posix_spawnattr_setflags(&attributes_,
                             POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSID);
  }
  SpawnAttributes(const SpawnAttributes&) = delete;
  SpawnAttributes& operator=(const SpawnAttributes&) = delete;
  SpawnAttributes(SpawnAttributes&&) = delete;
  SpawnAttributes& operator=(SpawnAttributes&&) = delete;
  ~SpawnAttributes() { posix_spawnattr_destroy(&attributes_); }

  [[nodiscard]] const posix_spawnattr_t* Get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

/// An application that was shown for so long has been opened, however it ends.
constexpr std::chrono::minutes kLongestLaunch{1};

/// Waits for the process's end, so that the system can forget it. Whether it failed at once.
bool HasFailed(pid_t process) {
  const auto start = std::chrono::steady_clock::now();
  int status = 0;
  while (waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) return false;  // it is not known how it ended
  }
  const bool failed = WIFEXITED(status) && WEXITSTATUS(status) != 0;
  return failed && std::chrono::steady_clock::now() - start < kLongestLaunch;
}

/// Takes note of the process's end whenever that comes. Touches nothing of ours but `onFailure`,
/// and may outlive everything but the program.
void WatchEnd(pid_t process, std::function<void()> onFailure) {
  try {
    std::thread([process, onFailure = std::move(onFailure)] {
      if (HasFailed(process) && onFailure) onFailure();
    }).detach();
  } catch (const std::system_error&) {  // NOLINT(bugprone-empty-catch): forgotten with us, then
  }
}

}  // namespace

bool OpenWithShell(const std::string& documentOrAddress, std::function<void()> onFailure) {
  const bool isThere = FileExists(documentOrAddress) || FolderExists(documentOrAddress);
  if (!isThere && !IsAddress(documentOrAddress)) return false;
  std::string program = "xdg-open";
  std::string argument = AsArgument(documentOrAddress);
  const std::array<char*, 3> arguments{program.data(), argument.data(), nullptr};
  const SpawnAttributes attributes;
  pid_t process = 0;
  if (posix_spawnp(&process, program.c_str(), nullptr, attributes.Get(), arguments.data(),
                   environ) != 0) {
    return false;
  }
  WatchEnd(process, std::move(onFailure));
  return true;
}

}  // namespace quillomat
