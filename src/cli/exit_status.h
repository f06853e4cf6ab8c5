// The exit statuses of quillomat-cli.
#pragma once

namespace quillomat {

inline constexpr int kListMade = 0;
/// The count was refused, or it failed.
inline constexpr int kRunFailed = 1;
inline constexpr int kWrongCommandLine = 2;

}  // namespace quillomat
