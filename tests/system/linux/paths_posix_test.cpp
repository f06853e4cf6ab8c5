#include <filesystem>

#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/paths.h"

namespace quillomat {
namespace {

TEST(Paths, JoinNeverDoublesTheSeparator) {
  EXPECT_EQ(JoinPath("/a/b", "c.txt"), "/a/b/c.txt");
  EXPECT_EQ(JoinPath("/a/b/", "c.txt"), "/a/b/c.txt");
  EXPECT_EQ(JoinPath("/", "c.txt"), "/c.txt");
  EXPECT_EQ(JoinPath("", "c.txt"), "c.txt");
}

TEST(Paths, PartsOfAPath) {
  EXPECT_EQ(FolderPartOf("/a/b/c.txt"), "/a/b");
  EXPECT_EQ(FolderPartOf("/c.txt"), "/");
  EXPECT_EQ(FolderPartOf("c.txt"), "");
  EXPECT_EQ(FolderPartOf("a/c.txt"), "a");
  EXPECT_EQ(FolderPartOf("/a/b/"), "/a/b");
  EXPECT_EQ(FolderPartOf(""), "");
  EXPECT_EQ(FileNamePartOf("/a/b/c.txt"), "c.txt");
  EXPECT_EQ(FileNamePartOf("c.txt"), "c.txt");
  EXPECT_EQ(FileNamePartOf("/a/b/"), "");
}

TEST(Paths, ExtensionFollowsTheLastPointOfTheName) {
  EXPECT_EQ(ExtensionOf("a.txt"), "txt");
  EXPECT_EQ(ExtensionOf("/x.y/a.tar.GZ"), "GZ");
  EXPECT_EQ(ExtensionOf("/x.y/README"), "");
  EXPECT_EQ(ExtensionOf("a."), "");
  EXPECT_EQ(ExtensionOf(".profile"), "profile");
  EXPECT_EQ(ExtensionOf(""), "");
}

TEST(Paths, LetterCaseIsKeptWhereItCounts) {
  EXPECT_EQ(PathSeparator(), '/');
  EXPECT_FALSE(IsPathSeparator('\\'));
  EXPECT_EQ(PathForWalk("/Home/Ä.TXT"), "/Home/Ä.TXT");
}

TEST(Paths, AbsolutePathStartsAtTheRootWithoutDots) {
  const std::string here = std::filesystem::current_path().string();
  EXPECT_EQ(AbsolutePath("a.txt"), here + "/a.txt");
  EXPECT_EQ(AbsolutePath("/a/./b/../c/"), "/a/c");
  EXPECT_EQ(AbsolutePath("/"), "/");
  EXPECT_EQ(AbsolutePath("/.."), "/");
  EXPECT_EQ(AbsolutePath(""), "");
}

TEST(Paths, SamePathComparesExactlyAfterMakingAbsolute) {
  const std::string here = std::filesystem::current_path().string();
  EXPECT_TRUE(SamePath("out.txt", here + "/x/../out.txt"));
  EXPECT_TRUE(SamePath("/a/b/", "/a/b"));
  EXPECT_FALSE(SamePath("/a/B", "/a/b"));
  EXPECT_FALSE(SamePath("", ""));
}

TEST(Paths, InFolderMeansPartByPart) {
  EXPECT_TRUE(IsInFolder("/home/me/out.txt", "/home/me", false));
  EXPECT_TRUE(IsInFolder("/home/me/out.txt", "/home/me/", false));
  EXPECT_FALSE(IsInFolder("/home/me/sub/out.txt", "/home/me", false));
  EXPECT_TRUE(IsInFolder("/home/me/sub/out.txt", "/home/me", true));
  EXPECT_FALSE(IsInFolder("/home/melon/out.txt", "/home/me", true));
  EXPECT_FALSE(IsInFolder("/home/me", "/home/me", true));
  EXPECT_FALSE(IsInFolder("/home/me/../you/out.txt", "/home/me", true));
  EXPECT_TRUE(IsInFolder("/home/you/../me/out.txt", "/home/me", false));
  EXPECT_TRUE(IsInFolder("/out.txt", "/", false));
  EXPECT_TRUE(IsInFolder("/a/out.txt", "/", true));
  EXPECT_FALSE(IsInFolder("", "/", true));
  EXPECT_FALSE(IsInFolder("/a", "", true));
}

TEST(Paths, InFolderKnowsTheCurrentFolder) {
  const std::string here = std::filesystem::current_path().string();
  EXPECT_TRUE(IsInFolder("out.txt", here, false));
  EXPECT_TRUE(IsInFolder("out.txt", ".", false));
  EXPECT_FALSE(IsInFolder("../out.txt", ".", true));
}

}  // namespace
}  // namespace quillomat
