// Where bytes go: a file, standard output, a text in memory. Written from front to back, once.
#pragma once

#include <string_view>

namespace quillomat {

class ByteSink {
 public:
  ByteSink() = default;
  ByteSink(const ByteSink&) = delete;
  ByteSink& operator=(const ByteSink&) = delete;
  ByteSink(ByteSink&&) = delete;
  ByteSink& operator=(ByteSink&&) = delete;
  virtual ~ByteSink() = default;

  /// Takes all of `bytes`, or throws RunTimeError.
  virtual void Write(std::string_view bytes) = 0;
};

}  // namespace quillomat
