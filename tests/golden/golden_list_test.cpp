// The lists of the bundled samples, to the letter, in every format and both orders, as they go to
// an output file. With QUILLOMAT_UPDATE_GOLDEN set the lists are written anew instead; read the
// changes before you commit them.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <tuple>

#include "base/text_helpers.h"
#include "listing/display_format.h"
#include "listing/file_list_sink.h"
#include "listing/list_walk.h"
#include "sources/counter.h"
#include "support/temporary_folder.h"

namespace quillomat {
namespace {

constexpr int kFormats = static_cast<int>(kDisplayFormatNames.size());

struct ListChoice {
  int format = 0;
  int order = 0;
  bool commas = false;

  [[nodiscard]] std::string FileName() const {
    const std::string number = (format < 10 ? "0" : "") + std::to_string(format);
    return number + (order == 0 ? "-by-frequency" : "-alphabetical") +
           (commas ? "-with-commas" : "") + ".txt";
  }
};

/// As the panel stands when the program starts.
CountRequest DefaultRequest() {
  CountRequest request;
  request.scan.allowWordsWith[static_cast<std::size_t>(AllowFlag::kHyphen)] = CheckState::kChecked;
  request.filters.shortWordSizeIndex = 1;
  request.filters.ignoreRepetitions = CheckState::kChecked;
  request.filters.ignoreRomNum40 = CheckState::kChecked;
  request.filters.ignoreNoVowelOrY = CheckState::kChecked;
  return request;
}

CountResult CountSamples(bool wholeFolder) {
  // The folder's name goes into the lists of files: it must be the same on every machine.
  std::filesystem::current_path(QUILLOMAT_DATA_FOLDER);
  CountRequest request = DefaultRequest();
  if (wholeFolder) {
    request.source = TextOfFolder{"samples", false, {}};
    request.lists.ExtraCountOnlyList =
        WordList(ParseTypedWords("the de la harbour hafen port").items);
  } else {
    request.source = TextOfFile{"samples/harbour_en.txt"};
  }
  CountResult result = Counter(request).Run();
  EXPECT_EQ(result.end, CountEnd::kComplete);
  result.Rank(request.filters);
  return result;
}

/// The list as it stands in an output file, with line feeds.
std::string ListOf(const ListChoice& choice) {
  LineOptions options;
  options.format = static_cast<DisplayFormat>(choice.format);
  options.withCommas = choice.commas;
  options.useLog10 = true;
  options.lineBreak = "\n";
  const bool wholeFolder = NeedsFileTallies(options.format);
  if (wholeFolder) options.folder = "samples";
  const CountResult result = CountSamples(wholeFolder);
  const LineFormatter formatter(result.Counted(), options);
  std::string list;
  FileListSink sink([&list](std::string_view bytes) { list += bytes; }, [] { return false; },
                    options, result.store.NumDifferentWords());
  EmitHeader(formatter, sink);
  choice.order == 1 ? ListAlphabetical(result.Counted(), formatter, sink)
                    : ListByFrequency(result.Counted(), formatter, sink);
  sink.Flush();
  // The separators of paths are the platform's; all else is the same everywhere.
  return ReplaceAll(list, std::string(1, PathSeparator()), "/");
}

class GoldenList : public testing::TestWithParam<std::tuple<int, int, bool>> {};

TEST_P(GoldenList, IsAsItWas) {
  const auto& [format, order, commas] = GetParam();
  const ListChoice choice{format, order, commas};
  const std::string path = std::string(QUILLOMAT_GOLDEN_FOLDER) + "/" + choice.FileName();
  const std::string list = ListOf(choice);
  if (std::getenv("QUILLOMAT_UPDATE_GOLDEN") != nullptr) {
    std::filesystem::create_directories(QUILLOMAT_GOLDEN_FOLDER);
    std::ofstream(path, std::ios::binary) << list;
  }
  EXPECT_FALSE(list.empty());
  EXPECT_EQ(list, ContentsOf(path)) << path;
}

INSTANTIATE_TEST_SUITE_P(EveryFormatAndOrder, GoldenList,
                         testing::Combine(testing::Range(0, kFormats), testing::Values(0, 1),
                                          testing::Values(false)));
INSTANTIATE_TEST_SUITE_P(EveryFormatWithCommas, GoldenList,
                         testing::Combine(testing::Range(0, kFormats), testing::Values(0),
                                          testing::Values(true)));

}  // namespace
}  // namespace quillomat
