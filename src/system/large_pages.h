// Large pages for large blocks of memory. A program that looks at millions of things in no order
// finds most of its time spent by the processor in finding out where a page lies; pages that are
// 512 times as large are that many times fewer.
#pragma once

#include <memory_resource>

namespace quillomat {

/// Asks the system for large pages where a block is worth one, and gives such blocks back to the
/// system when they are freed; where the system has none, and for all other blocks, it is the heap.
/// A program makes it the default resource of std::pmr when it starts, before there is any memory
/// of that kind.
[[nodiscard]] std::pmr::memory_resource& LargePageMemory();

}  // namespace quillomat
