#include "system/native_file.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "system/native_path.h"
#include "system/system_error.h"

namespace quillomat {
namespace {

[[noreturn]] void ThrowErrno(int errnoValue, FileAction action, const std::string& path = {}) {
  const int value = errnoValue == EDQUOT ? ENOSPC : errnoValue;
  throw ToRunTimeError(std::error_code(value, std::generic_category()), action, path);
}

struct Opened {
  int descriptor = -1;
  mode_t mode = 0;
};

/// Opens without waiting for the other end of a pipe; reads and writes do wait.
Opened Open(const std::string& path, int flags, FileAction action) {
  if (NamesNothing(path)) ThrowErrno(ENOENT, action, path);
  int descriptor = -1;
  do {
    descriptor = open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666);
  } while (descriptor < 0 && errno == EINTR);
  if (descriptor < 0) ThrowErrno(errno, action, path);
  struct stat status {};
  static_cast<void>(fstat(descriptor, &status));
  // To a regular file the flag means nothing, and most files are such.
  if (!S_ISREG(status.st_mode)) {
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
  }
  return {descriptor, status.st_mode};
}

void WaitUntilWritable(int descriptor) {
  pollfd waiting{.fd = descriptor, .events = POLLOUT, .revents = 0};
  poll(&waiting, 1, -1);
}

/// While it lives, a write that would end the program by a signal (a pipe without a reader, a file
/// beyond the user's limit) just fails. Only this thread is concerned, and nothing stays changed.
class SignalShield {
 public:
  SignalShield() {
    sigemptyset(&signals_);
    sigaddset(&signals_, SIGPIPE);
    sigaddset(&signals_, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signals_, &before_);
  }
  SignalShield(const SignalShield&) = delete;
  SignalShield& operator=(const SignalShield&) = delete;
  SignalShield(SignalShield&&) = delete;
  SignalShield& operator=(SignalShield&&) = delete;
  ~SignalShield() {
    const timespec atOnce{};
    while (sigtimedwait(&signals_, nullptr, &atOnce) >= 0 || errno == EINTR) {
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }

 private:
  sigset_t signals_{};
  sigset_t before_{};
};

}  // namespace

NativeFile NativeFile::OpenForReading(const std::string& path) {
  const Opened opened = Open(path, O_RDONLY, FileAction::kOpenToRead);
  NativeFile file(opened.descriptor);
  if (S_ISDIR(opened.mode)) ThrowErrno(EISDIR, FileAction::kOpenToRead, path);
  return file;
}

NativeFile NativeFile::OpenForWriting(const std::string& path) {
  return NativeFile(Open(path, O_WRONLY | O_CREAT | O_TRUNC, FileAction::kOpenToWrite).descriptor);
}

NativeFile NativeFile::StandardOutput() {
  const int descriptor = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
  if (descriptor < 0) ThrowErrno(errno, FileAction::kTransfer);
  return NativeFile(descriptor);
}

std::int64_t NativeFile::Length() const {
  struct stat status {};
  if (fstat(static_cast<int>(handle_), &status) != 0) ThrowErrno(errno, FileAction::kTransfer);
  return S_ISREG(status.st_mode) ? std::int64_t{status.st_size} : 0;
}

std::size_t NativeFile::Read(std::span<char> buffer) const {
  ssize_t bytesRead = -1;
  do {
    bytesRead = read(static_cast<int>(handle_), buffer.data(), buffer.size());
  } while (bytesRead < 0 && errno == EINTR);
  if (bytesRead < 0) ThrowErrno(errno, FileAction::kTransfer);
  return static_cast<std::size_t>(bytesRead);
}

void NativeFile::Write(std::string_view bytes) const {
  const SignalShield shield;
  const int descriptor = static_cast<int>(handle_);
  while (!bytes.empty()) {
    const ssize_t bytesWritten = write(descriptor, bytes.data(), bytes.size());
    if (bytesWritten >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(bytesWritten));
    } else if (errno == EAGAIN) {
      WaitUntilWritable(descriptor);
    } else if (errno != EINTR) {
      ThrowErrno(errno, FileAction::kTransfer);
    }
  }
}

void NativeFile::Empty() const noexcept {
  // What cannot be cut (a pipe, a device) holds nothing that could look like a whole file.
  [[maybe_unused]] const int result = ftruncate(static_cast<int>(handle_), 0);
}

void NativeFile::Close() {
  const int descriptor = static_cast<int>(std::exchange(handle_, kClosed));
  // An interrupted close has released the descriptor all the same; trying again could hit another.
  if (close(descriptor) != 0 && errno != EINTR) ThrowErrno(errno, FileAction::kTransfer);
}

}  // namespace quillomat
