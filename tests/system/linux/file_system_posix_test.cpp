// Links, permissions, pipes and names of any bytes, which only POSIX systems have in this form.
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/links.h"
#include "system/names_in_folder.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PosixFileSystem : public ::testing::Test {
 protected:
  TemporaryFolder folder_;
};

TEST_F(PosixFileSystem, LinksAreFollowedToWhatTheyLeadTo) {
  const std::string file = folder_.Write("a.txt", "12345");
  fs::create_symlink(file, folder_ / "link");
  fs::create_symlink(folder_ / "gone", folder_ / "dangling");
  EXPECT_TRUE(FileExists(folder_ / "link"));
  EXPECT_EQ(FileLength(folder_ / "link"), 5);
  EXPECT_FALSE(FileExists(folder_ / "dangling"));
}

TEST_F(PosixFileSystem, TwoNamesOfOneFileAreTheSameFile) {
  const std::string file = folder_.Write("a.txt", "");
  const std::string other = folder_.Write("b.txt", "");
  fs::create_symlink(file, folder_ / "soft");
  fs::create_hard_link(file, folder_ / "hard");
  EXPECT_TRUE(IsSameFile(file, folder_ / "soft"));
  EXPECT_TRUE(IsSameFile(file, folder_ / "hard"));
  EXPECT_TRUE(IsSameFile(file, folder_ / "./a.txt"));
  EXPECT_FALSE(IsSameFile(file, other));
}

TEST_F(PosixFileSystem, LinksToWhatIsNotThereYetLeadToOneFile) {
  const std::string shelf = folder_.Make("shelf");
  fs::create_symlink(shelf, folder_ / "here");
  fs::create_symlink("shelf/new.txt", folder_ / "link");
  const std::string path = shelf + "/new.txt";
  EXPECT_TRUE(LeadToOneFile(path, folder_ / "here/new.txt"));
  EXPECT_TRUE(LeadToOneFile(path, folder_ / "link"));
  EXPECT_FALSE(LeadToOneFile(path, folder_ / "here/other.txt"));
}

TEST_F(PosixFileSystem, ListingHoldsFilesAndLinksToFilesOnly) {
  const std::string file = folder_.Write("file", "");
  const std::string subfolder = folder_.Make("sub");
  fs::create_symlink(file, folder_ / "link to file");
  fs::create_symlink(subfolder, folder_ / "link to folder");
  fs::create_symlink(folder_ / "gone", folder_ / "dangling");
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0666), 0);
  const FolderListing listing = ListFolder(folder_.Path());
  EXPECT_THAT(listing.files, ElementsAre("file", "link to file"));
  EXPECT_THAT(listing.subfolders, ElementsAre("sub"));
}

TEST_F(PosixFileSystem, ListingKeepsTheBytesOfNames) {
  (void)folder_.Write("caf\xE9", "");
  EXPECT_THAT(ListFolder(folder_.Path()).files, ElementsAre("caf\xE9"));
}

TEST_F(PosixFileSystem, NamesAreShownAsAPersonLooksForThem) {
  const std::string shelf = folder_.Make("shelf");
  (void)folder_.Write("caf\xE9", "");
  (void)folder_.Write(".hidden", "");
  fs::create_symlink(shelf, folder_ / "link to folder");
  fs::create_symlink(folder_ / "gone", folder_ / "dangling");
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0666), 0);
  std::vector<std::string> seen;
  GoThroughNames(folder_.Path(), [&seen](const NameInFolder& item) {
    seen.push_back(item.name + (item.isFolder ? "/" : ""));
    return true;
  });
  EXPECT_THAT(seen, testing::UnorderedElementsAre("caf\xE9", "link to folder/", "shelf/"));
  seen.clear();
  GoThroughNames(folder_.Path(), [&seen](const NameInFolder& item) {
    seen.push_back(item.name);
    return false;
  });
  EXPECT_EQ(seen.size(), 1U);
  for (const std::string& none : {folder_ / "gone", std::string()}) {
    GoThroughNames(none, [](const NameInFolder& item) {
      ADD_FAILURE() << item.name;
      return true;
    });
  }
}

TEST_F(PosixFileSystem, ListingOfALockedFolderIsPermissionDenied) {
  const std::string locked = folder_.Make("locked");
  fs::permissions(locked, fs::perms::none);
  EXPECT_EQ(AsOrdinaryUser([&] { return ErrorNumberOf([&] { (void)ListFolder(locked); }); }), 70);
}

TEST_F(PosixFileSystem, FilesThatMayNotBeLookedAtAreListed) {
  const std::string shelf = folder_.Make("shelf");
  (void)folder_.Write("shelf/book", "");
  fs::permissions(shelf, fs::perms(0444));
  EXPECT_EQ(AsOrdinaryUser([&] { return static_cast<int>(ListFolder(shelf).files.size()); }), 1);
}

TEST_F(PosixFileSystem, CreateFolderInALockedFolderIsPermissionDenied) {
  fs::permissions(folder_.Path(), fs::perms(0555));
  EXPECT_EQ(AsOrdinaryUser([&] { return ErrorNumberOf([&] { CreateFolder(folder_ / "new"); }); }),
            70);
}

TEST_F(PosixFileSystem, CurrentFolderCanBeMovedToTheRoot) {
  const fs::path before = fs::current_path();
  SetCurrentFolder(RootFolder());
  EXPECT_EQ(fs::current_path(), "/");
  EXPECT_EQ(AbsolutePath("a.txt"), "/a.txt");
  fs::current_path(before);
  EXPECT_EQ(ErrorNumberOf([&] { SetCurrentFolder(folder_ / "gone"); }), 76);
}

TEST_F(PosixFileSystem, ProgramFolderHoldsTheRunningProgram) {
  EXPECT_EQ(ProgramFolder(), fs::canonical("/proc/self/exe").parent_path().string());
}

TEST_F(PosixFileSystem, LetterCaseCountsInNames) {
  (void)folder_.Write("B.txt", "");
  (void)folder_.Write("b.txt", "");
  EXPECT_THAT(ListFolder(folder_.Path()).files, ElementsAre("B.txt", "b.txt"));
  EXPECT_FALSE(IsSameFile(folder_ / "new.txt", folder_ / "NEW.txt"));
}

TEST_F(PosixFileSystem, ADeviceIsTheSameAsItself) {
  EXPECT_TRUE(IsSameFile("/dev/null", "/dev/null"));
}

}  // namespace
}  // namespace quillomat
