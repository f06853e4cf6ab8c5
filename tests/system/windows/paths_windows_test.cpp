// The spelling of paths where "\" separates, drives and servers begin, and letter case is nothing.
#include <filesystem>

#include "system/desktop_test.h"
#include "system/paths.h"

namespace quillomat {
namespace {

TEST(Paths, JoinNeverDoublesTheSeparator) {
  EXPECT_EQ(JoinPath(R"(C:\a\b)", "c.txt"), R"(C:\a\b\c.txt)");
  EXPECT_EQ(JoinPath(R"(C:\a\b\)", "c.txt"), R"(C:\a\b\c.txt)");
  EXPECT_EQ(JoinPath("C:/a/", "c.txt"), "C:/a/c.txt");
  EXPECT_EQ(JoinPath("C:", "c.txt"), R"(C:\c.txt)");
  EXPECT_EQ(JoinPath("", "c.txt"), "c.txt");
}

TEST(Paths, PartsOfAPath) {
  EXPECT_EQ(FolderPartOf(R"(C:\a\b\c.txt)"), R"(C:\a\b)");
  EXPECT_EQ(FolderPartOf(R"(C:\c.txt)"), R"(C:\)");
  EXPECT_EQ(FolderPartOf(R"(\\server\share\c.txt)"), R"(\\server\share\)");
  EXPECT_EQ(FolderPartOf(R"(\\server\share\a\c.txt)"), R"(\\server\share\a)");
  EXPECT_EQ(FolderPartOf("C:/a/c.txt"), "C:/a");
  EXPECT_EQ(FolderPartOf("c.txt"), "");
  EXPECT_EQ(FileNamePartOf(R"(C:\a\c.txt)"), "c.txt");
  EXPECT_EQ(FileNamePartOf("C:/a/c.txt"), "c.txt");
  EXPECT_EQ(FileNamePartOf(R"(C:\a\)"), "");
}

TEST(Paths, ExtensionFollowsTheLastPointOfTheName) {
  EXPECT_EQ(ExtensionOf(R"(C:\x.y\a.tar.GZ)"), "GZ");
  EXPECT_EQ(ExtensionOf(R"(C:\x.y\README)"), "");
}

TEST(Paths, WalksAreInLowerCase) {
  EXPECT_EQ(PathSeparator(), '\\');
  EXPECT_TRUE(IsPathSeparator('/'));
  EXPECT_EQ(PathForWalk(R"(C:\Home\Ä.TXT)"), R"(c:\home\ä.txt)");
}

TEST(Paths, AbsolutePathStartsAtTheDriveOrServerWithoutDots) {
  const std::string here = std::filesystem::current_path().string();
  EXPECT_EQ(AbsolutePath("a.txt"), JoinPath(here, "a.txt"));
  EXPECT_EQ(AbsolutePath(R"(C:\a\.\b\..\c\)"), R"(C:\a\c)");
  EXPECT_EQ(AbsolutePath("C:/a/b"), R"(C:\a\b)");
  EXPECT_EQ(AbsolutePath(R"(C:\)"), R"(C:\)");
  EXPECT_EQ(AbsolutePath(R"(C:\..)"), R"(C:\)");
  EXPECT_EQ(AbsolutePath(R"(\a)"), here.substr(0, 2) + R"(\a)");
  EXPECT_EQ(AbsolutePath(here.substr(0, 2) + "a.txt"), JoinPath(here, "a.txt"));
  EXPECT_EQ(AbsolutePath(R"(\\server\share\a\..\b)"), R"(\\server\share\b)");
  EXPECT_EQ(AbsolutePath("//server/share/b"), R"(\\server\share\b)");
  EXPECT_EQ(AbsolutePath(R"(\\server\share\..\..)"), R"(\\server\share\)");
  EXPECT_EQ(AbsolutePath(R"(\\?\C:\a\..\b)"), R"(\\?\C:\b)");
  EXPECT_EQ(AbsolutePath(""), "");
}

TEST(Paths, AbsolutePathKeepsBlanksAndDotsAtTheEndOfNames) {
  EXPECT_EQ(AbsolutePath(R"(C:\a \b.\c. )"), R"(C:\a \b.\c. )");
}

TEST(Paths, SamePathIsSameWithoutLetterCase) {
  const std::string here = std::filesystem::current_path().string();
  EXPECT_TRUE(SamePath("OUT.txt", here + R"(\x\..\out.TXT)"));
  EXPECT_TRUE(SamePath(R"(C:\a\B\)", "c:/A/b"));
  EXPECT_TRUE(SamePath(R"(C:\ÄÉ)", R"(C:\äé)"));
  EXPECT_TRUE(SamePath(R"(C:\ДОМ)", R"(C:\дом)"));
  EXPECT_FALSE(SamePath(R"(C:\a)", R"(D:\a)"));
  EXPECT_FALSE(SamePath(R"(C:\a)", R"(C:\a.)"));
  EXPECT_FALSE(SamePath("", ""));
}

TEST(Paths, InFolderMeansPartByPartWithoutLetterCase) {
  EXPECT_TRUE(IsInFolder(R"(C:\Home\Me\out.txt)", R"(c:\home\me)", false));
  EXPECT_TRUE(IsInFolder(R"(C:\home\me\out.txt)", "C:/home/me/", false));
  EXPECT_FALSE(IsInFolder(R"(C:\home\me\sub\out.txt)", R"(C:\home\me)", false));
  EXPECT_TRUE(IsInFolder(R"(C:\home\me\sub\out.txt)", R"(C:\home\me)", true));
  EXPECT_FALSE(IsInFolder(R"(C:\home\melon\out.txt)", R"(C:\home\me)", true));
  EXPECT_TRUE(IsInFolder(R"(C:\out.txt)", R"(C:\)", false));
  EXPECT_FALSE(IsInFolder(R"(D:\out.txt)", R"(C:\)", true));
  EXPECT_TRUE(IsInFolder(R"(\\server\share\a\b.txt)", R"(\\SERVER\share)", true));
}

}  // namespace
}  // namespace quillomat
