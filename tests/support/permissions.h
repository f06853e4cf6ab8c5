// What a user may not do, wherever the tests run: as root, as an ordinary user, on Windows.
#pragma once

#include <filesystem>
#include <string>

#include "support/temporary_folder.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <share.h>
#else
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace quillomat {

#ifdef _WIN32

/// Runs the action: a file that is marked read-only is that to every user of Windows.
template <class Action>
int AsOrdinaryUser(Action action) {
  return action();
}

/// A file that may not be opened while this lives. Permissions of a file are another matter on
/// Windows; what everybody meets there is a file that another program keeps to itself.
class ClosedFile {
 public:
  explicit ClosedFile(const std::string& path)
      : descriptor_(_wsopen(TestPath(path).c_str(), _O_RDWR, _SH_DENYRW)) {}
  ClosedFile(const ClosedFile&) = delete;
  ClosedFile& operator=(const ClosedFile&) = delete;
  ClosedFile(ClosedFile&&) = delete;
  ClosedFile& operator=(ClosedFile&&) = delete;
  ~ClosedFile() { _close(descriptor_); }

 private:
  int descriptor_;
};

#else

/// Runs the action in a process of its own, as a user whom permissions concern (root reads all),
/// and returns what it returns; -1 when the process does not end by itself.
template <class Action>
int AsOrdinaryUser(Action action) {
  constexpr id_t kNobody = 65534;
  const pid_t child = fork();
  if (child == 0) {
    if (getuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) _exit(255);
    _exit(action());
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A file that an ordinary user may not open from now on.
class ClosedFile {
 public:
  explicit ClosedFile(const std::string& path) {
    std::filesystem::permissions(path, std::filesystem::perms::none);
  }
};

#endif

}  // namespace quillomat
