// For the time in which somebody else's code writes files.
#pragma once

#include <memory>

namespace quillomat {

/// While it lives, a write that would end the program by a signal (a pipe without a reader, a file
/// beyond the user's limit) just fails. Only the thread that makes it is concerned, and that thread
/// ends it; nothing stays changed.
class WriteShield {
 public:
  WriteShield();
  WriteShield(const WriteShield&) = delete;
  WriteShield& operator=(const WriteShield&) = delete;
  WriteShield(WriteShield&&) = delete;
  WriteShield& operator=(WriteShield&&) = delete;
  ~WriteShield();

 private:
  struct Signals;
  std::unique_ptr<Signals> signals_;
};

}  // namespace quillomat
