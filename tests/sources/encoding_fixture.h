// Counts of files in an encoding.
#pragma once

#include <string>
#include <string_view>

#include "sources/counter_fixture.h"

namespace quillomat {

/// "Каждое утро река тихо несёт воду мимо дома." in KOI8-R, and its words in alphabetical order.
inline constexpr std::string_view kRussianKoi8 =
    "\xEB\xC1\xD6\xC4\xCF\xC5 \xD5\xD4\xD2\xCF \xD2\xC5\xCB\xC1 \xD4\xC9\xC8\xCF "
    "\xCE\xC5\xD3\xA3\xD4 \xD7\xCF\xC4\xD5 \xCD\xC9\xCD\xCF \xC4\xCF\xCD\xC1.\n";
inline constexpr std::string_view kRussianWords = "воду дома каждое мимо несёт река тихо утро";

inline std::string TimesOver(std::string_view text, int times) {
  std::string repeated;
  for (int i = 0; i < times; ++i) repeated += text;
  return repeated;
}

class Encodings : public CounterFixture {
 protected:
  Encodings() {
    request.scan.letters = LetterRule::kAll;
    request.keepReports = true;
  }

  CountResult CountFile(std::string_view contents, CharacterSet encoding) {
    request.encoding = encoding;
    return Run(TextOfFile{folder.Write("a.txt", contents)});
  }
  static CharacterSet SourceSetOf(const CountResult& result) {
    return result.reports.at(0).convertedFrom;
  }
};

}  // namespace quillomat
