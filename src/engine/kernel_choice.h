// Which vector kernel finds the tokens (token_classes.h): the best that the processor can run, or,
// for tests and measurements, the one that the environment variable QUILLOMAT_KERNEL names. It is
// read once.
//
// A program looks at KernelFault() before it counts and ends where that says why: a test must never
// run another kernel than it asked for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// The kernels that this processor can run, the plainest first: "portable" takes byte by byte;
/// "baseline" is what every processor of its kind can do, where that is vectors at all.
[[nodiscard]] std::vector<std::string_view> KernelNames();

/// The kernel in use; the best one where QUILLOMAT_KERNEL names none that can be used.
[[nodiscard]] std::string_view KernelName();

/// Why the kernel that was asked for cannot be had, in a sentence that names those that can; empty
/// when nothing is wrong.
[[nodiscard]] std::string KernelFault();

}  // namespace quillomat
