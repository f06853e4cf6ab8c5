// The two orders and the fourteen formats in which words are listed. The numbers are the places of
// the items in the combo boxes and are kept in state files, so they never change.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace quillomat {

enum class WordOrder { kByFrequency = 0, kAlphabetical = 1 };

inline constexpr std::array<std::string_view, 2> kWordOrderNames = {"by frequency", "alphabetical"};

enum class DisplayFormat {
  kRankFrequencyWord = 0,
  kRankWordFrequency = 1,
  kRankFrequency = 2,
  kRankWord = 3,
  kFrequencyRank = 4,
  kFrequencyWord = 5,
  kWordRank = 6,
  kWordFrequency = 7,
  kWord = 8,
  kWordCommas = 9,
  kZipfData = 10,
  kWordFreqNoFiles = 11,
  kWordFileList = 12,
  kWordFileListFreq = 13,
};

inline constexpr std::array<std::string_view, 14> kDisplayFormatNames = {"rank frequency word",
                                                                         "rank word frequency",
                                                                         "rank frequency",
                                                                         "rank word",
                                                                         "frequency rank",
                                                                         "frequency word",
                                                                         "word rank",
                                                                         "word frequency",
                                                                         "word",
                                                                         "word (+commas)",
                                                                         "Zipf data",
                                                                         "word freq no.files",
                                                                         "word file-list",
                                                                         "word file-list (+freq)"};

/// The formats that tell about files: they need count-only words from a folder.
[[nodiscard]] constexpr bool NeedsFileTallies(DisplayFormat format) {
  return format >= DisplayFormat::kWordFreqNoFiles;
}

}  // namespace quillomat
