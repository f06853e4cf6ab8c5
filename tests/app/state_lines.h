// State files as tests write them: 45 lines, of which each may be made a bad one.
#pragma once

#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace quillomat {

using StateLines = std::vector<std::string>;

/// The state of a first start.
inline StateLines InitialLines() {
  return {R"("")",   R"("")", R"("")", R"("")", R"("/*")", R"("*/")", R"("")", R"("")", R"("")",
          R"("//")", R"("")", "1",     "3",     "0",       "0",       "0",     "1",     "1",
          "1",       "0",     "0",     "1",     "0",       "0",       "0",     "0",     "0",
          "0",       "0",     "0",     "0",     "0",       "0",       "1",     "0",     "1",
          "1",       "0",     "0",     "0",     "0",       "0",       R"("")", R"("")", "2"};
}

inline std::string Quoted(const std::string& text) {
  return "\"" + text + "\"";
}

/// A state in which every value is another than at a first start. Its files are made in `folder`;
/// their line ends are nowhere worth a warning.
inline StateLines ChangedLines(const TemporaryFolder& folder) {
  return {Quoted(folder.Make("texts")),
          Quoted("ox cow"),
          Quoted(folder.Write("in.txt", "cat\n")),
          Quoted("txt htm"),
          Quoted("#"),
          Quoted("!#"),
          Quoted("hen"),
          Quoted(folder / "out.txt"),
          Quoted("bak"),
          Quoted("--["),
          Quoted("]--"),
          "2",
          "5",
          "7",  // the panel's combo boxes
          "1",
          "1",
          "0",
          "0",
          "0",
          "1",
          "1",  // what is ignored, letter case, final s
          "0",
          "1",
          "1",
          "1",
          "1",
          "1",
          "1",
          "1",
          "1",
          "1",
          "1",  // what stands in a word
          "1",
          "0",
          "1",
          "0",
          "0",  // commas, logarithm, markers, warn, save
          "1",
          "1",
          "1",  // the main window's check boxes
          "1",
          "8",  // its combo boxes
          Quoted(folder.Write("ignore.txt", "dog\r\n")),
          Quoted(folder.Write("only.txt", "cat\r\nrat\r\n")),
          "1"};
}

inline std::string FileOfLines(const StateLines& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\r\n");
  return text;
}

// The lines of each kind, counted from 0.
inline constexpr std::size_t kComboLines[] = {11, 12, 13, 40, 41};
inline constexpr std::size_t kFirstCheckBoxLine = 14;
inline constexpr std::size_t kLastCheckBoxLine = 39;
inline constexpr std::size_t kSourceLine = 44;

}  // namespace quillomat
