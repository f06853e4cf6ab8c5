// Finds words with ICU's word boundaries, whatever library the functions come from.
#pragma once

#include <cstdint>
#include <memory>

#include "base/run_segmenter.h"

namespace quillomat {

/// The functions of ICU's C interface (ubrk.h) that are needed. Errors are positive.
struct IcuFunctions {
  /// ubrk_open: null, or an iterator that has to be closed.
  void* (*open)(int kind, const char* locale, const char16_t* text, std::int32_t units, int* error);
  /// ubrk_setText: the text has to live until the next one is set.
  void (*setText)(void* iterator, const char16_t* text, std::int32_t units, int* error);
  /// ubrk_next: -1 behind the last boundary, which is the end of the text.
  std::int32_t (*next)(void* iterator);
  /// ubrk_close.
  void (*close)(void* iterator);
};

/// Null if ICU cannot find words. The functions must stay where they are.
[[nodiscard]] std::unique_ptr<RunSegmenter> MakeIcuSegmenter(const IcuFunctions& functions);

}  // namespace quillomat
