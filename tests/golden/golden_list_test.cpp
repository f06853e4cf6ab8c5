// The lists of the bundled samples, to the letter, in every format and both orders, as they go to
// an output file. With QUILLOMAT_UPDATE_GOLDEN set the lists are written anew instead; read the
// changes before you commit them.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <tuple>

#include "app/program.h"
#include "base/text_helpers.h"
#include "listing/display_format.h"
#include "support/scripted_desktop.h"
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

/// The list as it stands in an output file, with line feeds.
std::string ListOf(const ListChoice& choice) {
  const TemporaryFolder folder;
  ScriptedDesktop desktop;
  Program program(desktop);
  if (!program.Start({.userSettings = false, .window = false})) return "the program did not start";
  // The folder's name goes into the lists of files: it must be the same on every machine.
  std::filesystem::current_path(QUILLOMAT_DATA_FOLDER);
  if (NeedsFileTallies(static_cast<DisplayFormat>(choice.format))) {
    program.frmMain.txbFolder.SetText("samples");
    program.frmMain.optFolder.SetValue(true);
    program.frmParams.txbWordsToIgnoreOrCount[1].SetText("the de la harbour hafen port");
    program.wordLists.OnExtraWordsLostFocus(WordListKind::kCountOnly);
  } else {
    program.frmMain.txbFile[0].SetText("samples/harbour_en.txt");
    program.frmMain.optInFile.SetValue(true);
  }
  program.frmMain.txbFile[1].SetText(folder / "list.txt");
  program.frmMain.cboDisplayFormat.SetListIndex(choice.format);
  program.frmMain.cboWordOrder.SetListIndex(choice.order);
  program.frmParams.chkOutputWithCommas.SetChecked(choice.commas);
  program.frmMain.cmdCountWords.PerformClick();
  // Line ends and the separators of paths are the platform's; all else is the same everywhere.
  return ReplaceAll(TextOf(folder / "list.txt"), std::string(1, PathSeparator()), "/");
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
