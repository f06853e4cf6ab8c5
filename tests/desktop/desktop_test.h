// What the tests of this folder share.
#pragma once

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "base/run_time_error.h"

namespace quillomat {

/// The number of the RunTimeError that the action throws; 0 when it throws none.
template <class Action>
int ErrorNumberOf(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

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

/// Sets an environment variable, or takes it away, for the time of a test.
class ScopedVariable {
 public:
  ScopedVariable(std::string name, const std::optional<std::string>& value)
      : name_(std::move(name)) {
    if (const char* before = std::getenv(name_.c_str())) before_ = before;
    Set(value);
  }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;
  ScopedVariable(ScopedVariable&&) = delete;
  ScopedVariable& operator=(ScopedVariable&&) = delete;
  ~ScopedVariable() { Set(before_); }

 private:
  void Set(const std::optional<std::string>& value) const {
    if (value) {
      setenv(name_.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name_.c_str());
    }
  }

  std::string name_;
  std::optional<std::string> before_;
};

}  // namespace quillomat
