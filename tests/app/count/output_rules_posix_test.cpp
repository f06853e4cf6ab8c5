// Symbolic links to what is read, which any user of a POSIX system may make.
#include <filesystem>
#include <gmock/gmock.h>

#include "app/count/output_rules_fixture.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using PosixOutputRules = OutputRules;

void Link(const std::string& target, const std::string& link) {
  std::filesystem::create_symlink(TestPath(target), TestPath(link));
}

TEST_F(PosixOutputRules, ALinkToACountedFileIsRefused) {
  const std::string text = folder.Write("g/a.txt", "dog");
  Link(text, folder / "la.txt");
  ExpectRefusedInFolder(folder / "la.txt");
}

TEST_F(PosixOutputRules, AFileThatIsCountedThroughALinkIsRefused) {
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  Link(folder.Write("outside.txt", "cat"), folder / "g/link.txt");
  ExpectRefusedInFolder(folder / "outside.txt");
  EXPECT_EQ(ContentsOf(folder / "outside.txt"), "cat");
}

TEST_F(PosixOutputRules, AFolderIsTheSameByALink) {
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  Link(folder / "g", folder / "lg");
  ExpectRefusedInFolder(folder / "lg/new.txt");
  ListTo(folder / "g/new.txt");
  desktop.ForgetQuestions();
  CountFolder(folder / "lg");
  EXPECT_THAT(desktop.Titles(), ElementsAre("Invalid output file"));
}

TEST_F(PosixOutputRules, AFileBesideTheFolderIsWritten) {
  static_cast<void>(folder.Write("g/a.txt", "dog"));
  static_cast<void>(folder.Write("g/sub/b.txt", "cat"));
  Link(folder.Write("old.txt", "old"), folder / "list.txt");
  ListTo(folder / "list.txt");
  CountFolder(folder / "g");
  EXPECT_THAT(desktop.Titles(), IsEmpty());
  EXPECT_TRUE(Has(ContentsOf(folder / "old.txt"), "dog"));
}

}  // namespace
}  // namespace quillomat
