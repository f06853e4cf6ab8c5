// The program's standard input, as bytes: from where it stands, as they come.
#pragma once

#include <chrono>
#include <cstddef>
#include <span>

#include "base/byte_source.h"
#include "engine/word_scanner.h"
#include "sources/read_sources.h"
#include "system/input_file.h"

namespace quillomat {

class StandardInput final : public ByteSource {
 public:
  /// While nothing comes it asks `yield`, which outlives it, whether to go on.
  explicit StandardInput(ScanYield& yield)
      : file_(InputFile::StandardInput()), source_(file_, yield) {}

  std::size_t Read(std::span<char> buffer) override { return source_.Read(buffer); }
  [[nodiscard]] bool IsReady(std::chrono::milliseconds longest) const override {
    return source_.IsReady(longest);
  }

 private:
  InputFile file_;
  PatientSource source_;
};

}  // namespace quillomat
