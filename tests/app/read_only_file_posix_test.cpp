// A file that may not be written, chosen in a dialog for output.
#include <filesystem>
#include <gmock/gmock.h>

#include "support/permissions.h"
#include "support/program_fixture.h"

namespace quillomat {
namespace {

using ReadOnlyFileTest = ProgramFixture;

TEST_F(ReadOnlyFileTest, IsRefusedForOutputAndAnotherAskedFor) {
  namespace fs = std::filesystem;
  const std::string locked = folder.Write("locked.txt", "mine");
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(locked, fs::perms::owner_read);
  const int failures = AsOrdinaryUser([&] {
    for (int language = 0; language < 2; ++language) {
      desktop.AnswerFile(locked);
      desktop.AnswerFile(folder / "free.txt");
      Main().cmdFile[1].PerformClick();
      EXPECT_EQ(Main().txbFile[1].Text(), folder / "free.txt");
      Main().cmdLanguage.PerformClick();
    }
    std::vector<std::string> texts;
    for (const MessageBox& box : desktop.Messages()) texts.push_back(box.text);
    EXPECT_THAT(texts,
                testing::ElementsAre(
                    locked + "\r\nThis file is read-only. Choose another one.",
                    locked + "\r\nDiese Datei ist schreibgeschützt. Wählen Sie eine andere."));
    EXPECT_EQ(desktop.FileDialogs().size(), 4U);
    return HasFailure() ? 1 : 0;
  });
  EXPECT_EQ(failures, 0);
  fs::permissions(locked, fs::perms::owner_all);
}

}  // namespace
}  // namespace quillomat
