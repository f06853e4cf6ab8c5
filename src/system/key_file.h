// A small text file of "name=value" lines that stands for a registry key.
//
// Reading is tolerant: blanks around names and values, blank lines, comments (# or ;) and lines
// that are nothing of the kind do no harm and survive a write. Of several lines with one name the
// first counts. Names are compared without letter case. In a value, \r, \n and \t stand for a line
// break and a tab, \s for a blank at an end, \\ for a backslash. Writing replaces the file at once,
// so that a reader never sees half of it. A file of more than a million bytes is none of ours: it
// cannot be read, and is left alone.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "system/registry_result.h"

namespace quillomat {

class KeyFile {
 public:
  explicit KeyFile(std::string path) : path_(std::move(path)) {}

  [[nodiscard]] const std::string& Path() const { return path_; }

  [[nodiscard]] bool Exists() const;

  /// Makes an empty file if there is none. Its folder must exist.
  [[nodiscard]] RegistryKeyResult CreateOrOpen() const;

  /// The value of that name; nothing when the name or the file is missing or cannot be read.
  [[nodiscard]] std::optional<std::string> Read(std::string_view name) const;

  /// Whether the file holds no value at all, or cannot be read.
  [[nodiscard]] bool IsEmpty() const;

  /// Sets one value and keeps the others. False when the file cannot be written, or when `name` is
  /// none: empty, or with a "=", a line break, a comment sign at its start or a blank at an end.
  [[nodiscard]] bool Write(std::string_view name, std::string_view value) const;

 private:
  std::string path_;
};

}  // namespace quillomat
