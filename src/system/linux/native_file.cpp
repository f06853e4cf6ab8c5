#include "system/native_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "system/linux/signal_shield.h"
#include "system/native_path.h"
#include "system/paths.h"
#include "system/system_error.h"

namespace quillomat {
namespace {

/// Before the user's mask.
constexpr mode_t kUsualMode = 0666;
constexpr mode_t kPermissionBits = 07777;

[[noreturn]] void ThrowErrno(int errnoValue, FileAction action, const std::string& path = {}) {
  const int value = errnoValue == EDQUOT ? ENOSPC : errnoValue;
  throw ToRunTimeError(std::error_code(value, std::generic_category()), action, path);
}

/// -1 and errno when it cannot be opened.
int TryToOpen(const std::string& path, int flags, mode_t mode) {
  int descriptor = -1;
  do {
    descriptor = open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode);
  } while (descriptor < 0 && errno == EINTR);
  return descriptor;
}

struct Opened {
  int descriptor = -1;
  mode_t mode = 0;
};

int SecondDescriptor(int stream) {
  const int descriptor = fcntl(stream, F_DUPFD_CLOEXEC, 0);
  if (descriptor < 0) ThrowErrno(errno, FileAction::kTransfer);
  return descriptor;
}

/// Opens without waiting for the other end of a pipe; reads and writes do wait.
Opened Open(const std::string& path, int flags, FileAction action) {
  if (NamesNothing(path)) ThrowErrno(ENOENT, action, path);
  const int descriptor = TryToOpen(path, flags, kUsualMode);
  if (descriptor < 0) ThrowErrno(errno, action, path);
  struct stat status {};
  static_cast<void>(fstat(descriptor, &status));
  // To a regular file the flag means nothing, and most files are such.
  if (!S_ISREG(status.st_mode)) {
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
  }
  return {descriptor, status.st_mode};
}

/// -1 and errno when it cannot be read.
ssize_t TryToRead(int descriptor, std::span<char> buffer) {
  ssize_t bytesRead = -1;
  do {
    bytesRead = read(descriptor, buffer.data(), buffer.size());
  } while (bytesRead < 0 && errno == EINTR);
  return bytesRead;
}

void WaitUntilWritable(int descriptor) {
  pollfd waiting{.fd = descriptor, .events = POLLOUT, .revents = 0};
  poll(&waiting, 1, -1);
}

/// Whether an error in making one file says that another would not fare better.
bool IsOfTheDisk(int errnoValue) {
  constexpr std::array<int, 7> kOfTheDisk = {ENOSPC, EDQUOT, EIO, ENOMEM, EMFILE, ENFILE, ENOBUFS};
  return std::ranges::find(kOfTheDisk, errnoValue) != kOfTheDisk.end();
}

/// Of what went wrong while a new file was to be made: an error after which the old one had better
/// not be written in place either, since that empties it first.
void ThrowIfOfTheDisk(int errnoValue, const std::string& path) {
  if (IsOfTheDisk(errnoValue)) ThrowErrno(errnoValue, FileAction::kOpenToWrite, path);
}

/// Removes a file that was just made, unless it is kept.
class MadeFile {
 public:
  explicit MadeFile(const std::string& path) : path_(path) {}
  MadeFile(const MadeFile&) = delete;
  MadeFile& operator=(const MadeFile&) = delete;
  MadeFile(MadeFile&&) = delete;
  MadeFile& operator=(MadeFile&&) = delete;
  ~MadeFile() {
    if (!kept_) unlink(path_.c_str());
  }

  void Keep() { kept_ = true; }

 private:
  const std::string& path_;
  bool kept_ = false;
};

/// Whether files in the folder may be moved by their owner only, and that is somebody else.
bool IsHeldByItsFolder(const std::string& path, const struct stat& status) {
  struct stat folder {};
  const std::string folderPath = FolderPartOf(path);
  if (stat(folderPath.empty() ? "." : folderPath.c_str(), &folder) != 0) return false;
  const uid_t user = geteuid();
  return (folder.st_mode & S_ISVTX) != 0 && user != 0 && user != folder.st_uid &&
         user != status.st_uid;
}

/// The list of who else has access, and other notes that the system keeps with a file. False when
/// the former cannot be kept: without it the permissions would mean something else.
bool KeepAttributes(int from, int to) {
  constexpr std::size_t kMostNameBytes = 65'536;
  std::string names(kMostNameBytes, '\0');
  const ssize_t nameBytes = flistxattr(from, names.data(), names.size());
  names.resize(nameBytes < 0 ? 0 : static_cast<std::size_t>(nameBytes));
  std::string value(kMostNameBytes, '\0');
  for (std::size_t start = 0; start < names.size(); start = names.find('\0', start) + 1) {
    const char* const name = names.c_str() + start;
    const ssize_t bytes = fgetxattr(from, name, value.data(), value.size());
    const bool kept =
        bytes >= 0 && fsetxattr(to, name, value.data(), static_cast<std::size_t>(bytes), 0) == 0;
    if (!kept && std::string_view(name) == "system.posix_acl_access") return false;
  }
  return true;
}

/// The owner is kept where the system allows it; the group must be, as its permissions are.
bool MakeLike(int model, const struct stat& status, int descriptor) {
  const bool ownerKept = fchown(descriptor, status.st_uid, status.st_gid) == 0;
  if (!ownerKept && fchown(descriptor, static_cast<uid_t>(-1), status.st_gid) != 0) return false;
  const mode_t kept = ownerKept ? kPermissionBits : kPermissionBits & ~(S_ISUID | S_ISGID);
  return fchmod(descriptor, status.st_mode & kept) == 0 && KeepAttributes(model, descriptor);
}

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

NativeFile NativeFile::OpenForChanges(const std::string& path) {
  return NativeFile(Open(path, O_WRONLY, FileAction::kOpenToWrite).descriptor);
}

std::optional<NativeFile> NativeFile::CreateInPlaceOf(const std::string& target,
                                                      const std::string& path) {
  struct stat status {};
  const bool isThere = stat(target.c_str(), &status) == 0;
  if (!isThere && errno != ENOENT) {
    ThrowIfOfTheDisk(errno, target);
    return std::nullopt;
  }
  // A pipe must not be opened just to look at it: its reader would take the closing for the end.
  if (isThere && (!S_ISREG(status.st_mode) || IsHeldByItsFolder(target, status))) {
    return std::nullopt;
  }
  const NativeFile model(isThere ? TryToOpen(target, O_WRONLY, 0) : kClosed);
  if (isThere && !model.IsOpen()) {
    ThrowIfOfTheDisk(errno, target);
    return std::nullopt;
  }
  // Nobody else shall look into it before it has its permissions.
  const mode_t mode = isThere ? S_IRUSR | S_IWUSR : kUsualMode;
  const int descriptor = TryToOpen(path, O_WRONLY | O_CREAT | O_EXCL, mode);
  if (descriptor < 0) {
    ThrowIfOfTheDisk(errno, path);
    return std::nullopt;
  }
  NativeFile file(descriptor);
  MadeFile made(path);
  if (isThere && !MakeLike(static_cast<int>(model.handle_), status, descriptor)) {
    ThrowIfOfTheDisk(errno, path);
    return std::nullopt;
  }
  made.Keep();
  return file;
}

NativeFile NativeFile::StandardOutput() {
  return NativeFile(SecondDescriptor(STDOUT_FILENO));
}

NativeFile NativeFile::StandardInput() {
  return NativeFile(SecondDescriptor(STDIN_FILENO));
}

std::int64_t NativeFile::Length() const {
  struct stat status {};
  if (fstat(static_cast<int>(handle_), &status) != 0) ThrowErrno(errno, FileAction::kTransfer);
  return S_ISREG(status.st_mode) ? std::int64_t{status.st_size} : 0;
}

bool NativeFile::IsStored() const {
  struct stat status {};
  return fstat(static_cast<int>(handle_), &status) == 0 && status.st_blocks > 0;
}

std::optional<FileIdentity> NativeFile::Identity() const {
  struct stat status {};
  if (fstat(static_cast<int>(handle_), &status) != 0) return std::nullopt;
  return FileIdentity{status.st_dev, status.st_ino};
}

bool NativeFile::IsReady(std::chrono::milliseconds longest) const {
  pollfd waiting{.fd = static_cast<int>(handle_), .events = POLLIN, .revents = 0};
  // What goes wrong here, Read will tell; an interrupted wait is one that was too short.
  return poll(&waiting, 1, static_cast<int>(longest.count())) != 0 && waiting.revents != 0;
}

std::size_t NativeFile::Read(std::span<char> buffer) const {
  const ssize_t bytesRead = TryToRead(static_cast<int>(handle_), buffer);
  if (bytesRead < 0) ThrowErrno(errno, FileAction::kTransfer);
  return static_cast<std::size_t>(bytesRead);
}

std::size_t NativeFile::ReadAt(std::int64_t place, std::span<char> buffer) const {
  ssize_t bytesRead = -1;
  do {
    bytesRead = pread(static_cast<int>(handle_), buffer.data(), buffer.size(), place);
  } while (bytesRead < 0 && errno == EINTR);
  if (bytesRead < 0) ThrowErrno(errno, FileAction::kTransfer);
  return static_cast<std::size_t>(bytesRead);
}

std::optional<std::size_t> NativeFile::ReadAtHand(std::span<char> buffer) const {
  const int descriptor = static_cast<int>(handle_);
  const int flags = fcntl(descriptor, F_GETFL);
  fcntl(descriptor, F_SETFL, flags | O_NONBLOCK);
  const ssize_t bytesRead = TryToRead(descriptor, buffer);
  const int error = errno;
  fcntl(descriptor, F_SETFL, flags);
  if (bytesRead >= 0) return static_cast<std::size_t>(bytesRead);
  if (error != EAGAIN) ThrowErrno(error, FileAction::kTransfer);
  return std::nullopt;
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
    } else if (errno == EPIPE) {
      throw ReaderGone();
    } else if (errno != EINTR) {
      ThrowErrno(errno, FileAction::kTransfer);
    }
  }
}

void NativeFile::Flush() const {
  int result = -1;
  do {
    result = fsync(static_cast<int>(handle_));
  } while (result != 0 && errno == EINTR);
  // A pipe or a device has nothing to be flushed to.
  if (result != 0 && errno != EINVAL && errno != ENOTSUP && errno != EROFS) {
    ThrowErrno(errno, FileAction::kTransfer);
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
