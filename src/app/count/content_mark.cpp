#include "app/count/content_mark.h"

#include <algorithm>
#include <functional>
#include <new>
#include <span>

#include "base/run_time_error.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

std::string FirstBytes(const std::string& path, std::int64_t most) {
  std::string bytes(static_cast<std::size_t>(most), '\0');
  std::size_t have = 0;
  InputFile file(path);
  while (have < bytes.size()) {
    const std::size_t fresh = file.Read(std::span(bytes).subspan(have));
    if (fresh == 0) break;
    have += fresh;
  }
  bytes.resize(have);
  return bytes;
}

}  // namespace

std::optional<ContentMark> ContentMarkOf(const std::string& path) {
  const std::optional<std::int64_t> length = FileLength(path);
  if (!length) return std::nullopt;
  try {
    const std::string bytes = FirstBytes(path, std::min(*length, kMostMarkedBytes));
    return ContentMark{*length, std::hash<std::string>()(bytes)};
  } catch (const RunTimeError&) {
    return std::nullopt;
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

}  // namespace quillomat
