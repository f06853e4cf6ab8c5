#include "system/key_file.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/byte_order_mark.h"
#include "base/letter_case.h"
#include "base/limited_source.h"
#include "base/run_time_error.h"
#include "system/file_system.h"
#include "system/input_file.h"

namespace quillomat {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kCommentSigns = "#;";

struct Entry {
  std::string_view name;
  std::string_view value;  // as it stands in the file
};

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::optional<Entry> EntryOf(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == line.npos) return std::nullopt;
  const std::string_view name = Trim(line.substr(0, equals));
  if (name.empty() || kCommentSigns.find(name.front()) != kCommentSigns.npos) return std::nullopt;
  return Entry{name, Trim(line.substr(equals + 1))};
}

bool IsEntryNamed(std::string_view line, std::string_view name) {
  const std::optional<Entry> entry = EntryOf(line);
  return entry && EqualIgnoringCase(entry->name, name);
}

bool IsName(std::string_view name) {
  const std::string line = std::string(name) + "=";
  const std::optional<Entry> entry = EntryOf(line);
  return entry && entry->name == name && name.find_first_of("\r\n") == name.npos;
}

std::string Escaped(std::string_view value) {
  std::string escaped;
  for (std::size_t i = 0; i < value.size(); ++i) {
    const bool atAnEnd = i == 0 || i + 1 == value.size();
    switch (value[i]) {
      case '\\':
        escaped.append("\\\\");
        break;
      case '\r':
        escaped.append("\\r");
        break;
      case '\n':
        escaped.append("\\n");
        break;
      case '\t':
        escaped.append("\\t");
        break;
      case ' ':
        escaped.append(atAnEnd ? "\\s" : " ");
        break;
      default:
        escaped.push_back(value[i]);
    }
  }
  return escaped;
}

/// A backslash before any other character is taken as it stands.
std::string Unescaped(std::string_view text) {
  constexpr std::string_view kLetters = "\\rnts";
  constexpr std::string_view kMeanings = "\\\r\n\t ";
  std::string value;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t letter =
        text[i] == '\\' && i + 1 < text.size() ? kLetters.find(text[i + 1]) : kLetters.npos;
    if (letter == kLetters.npos) {
      value.push_back(text[i]);
    } else {
      value.push_back(kMeanings[letter]);
      ++i;
    }
  }
  return value;
}

/// Throws RunTimeError for a file that is none of ours, such as one without an end.
std::string ReadWhole(const std::string& path) {
  constexpr SourceLimits kLimits{.bytes = 1'000'000};
  InputFile input(path);
  LimitedSource file(input, kLimits);
  std::string contents;
  std::array<char, 4096> block{};
  while (const std::size_t bytes = file.Read(block)) contents.append(block.data(), bytes);
  return std::string(WithoutUtf8Mark(contents));
}

std::vector<std::string> LinesOf(const std::string& contents) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < contents.size();) {
    const std::size_t end = std::min(contents.find('\n', start), contents.size());
    std::string line = contents.substr(start, end - start);
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(std::move(line));
    start = end + 1;
  }
  return lines;
}

/// What cannot be read holds nothing.
std::vector<std::string> ReadableLines(const std::string& path) {
  try {
    return LinesOf(ReadWhole(path));
  } catch (const RunTimeError&) {
    return {};
  }
}

}  // namespace

bool KeyFile::Exists() const {
  return FileExists(path_);
}

RegistryKeyResult KeyFile::CreateOrOpen() const {
  try {
    if (Exists()) {
      const InputFile readable(path_);
      return {RegistryKeyOutcome::kExisted, {}};
    }
    ReplaceContents(path_, {});
    return {RegistryKeyOutcome::kCreated, {}};
  } catch (const RunTimeError& error) {
    return {RegistryKeyOutcome::kFailed, error.Description()};
  }
}

std::optional<std::string> KeyFile::Read(std::string_view name) const {
  for (const std::string& line : ReadableLines(path_)) {
    if (IsEntryNamed(line, name)) return Unescaped(EntryOf(line)->value);
  }
  return std::nullopt;
}

bool KeyFile::IsEmpty() const {
  for (const std::string& line : ReadableLines(path_)) {
    if (EntryOf(line)) return false;
  }
  return true;
}

bool KeyFile::Write(std::string_view name, std::string_view value) const {
  if (!IsName(name)) return false;
  try {
    std::vector<std::string> lines =
        Exists() ? LinesOf(ReadWhole(path_)) : std::vector<std::string>();
    const auto line = std::ranges::find_if(
        lines, [&](const std::string& candidate) { return IsEntryNamed(candidate, name); });
    std::string fresh = std::string(name) + '=' + Escaped(value);
    if (line == lines.end()) {
      lines.push_back(std::move(fresh));
    } else {
      *line = std::move(fresh);
    }
    std::string contents;
    for (const std::string& each : lines) contents.append(each).push_back('\n');
    ReplaceContents(path_, contents);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

}  // namespace quillomat
