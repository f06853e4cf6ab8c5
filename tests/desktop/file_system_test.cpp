#include "desktop/file_system.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "desktop/desktop_test.h"
#include "support/temporary_folder.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kPathWithNul("/tmp\0x", 6);

class FileSystem : public ::testing::Test {
 protected:
  TemporaryFolder folder_;
};

TEST_F(FileSystem, AFolderIsNoFileAndAFileNoFolder) {
  const std::string file = folder_.Write("a.txt", "text");
  EXPECT_TRUE(FileExists(file));
  EXPECT_FALSE(FolderExists(file));
  EXPECT_TRUE(FolderExists(folder_.Path()));
  EXPECT_TRUE(FolderExists(folder_.Path() + "/"));
  EXPECT_FALSE(FileExists(folder_.Path()));
}

TEST_F(FileSystem, WhatIsNotThereDoesNotExist) {
  const std::string file = folder_.Write("a.txt", "");
  for (const std::string& path : {folder_ / "b.txt", file + "/", file + "/x", std::string(),
                                  folder_.Path() + std::string("\0.", 2), kPathWithNul}) {
    EXPECT_FALSE(FileExists(path)) << path;
    EXPECT_FALSE(FolderExists(path)) << path;
    EXPECT_EQ(FileLength(path), std::nullopt) << path;
  }
}

TEST_F(FileSystem, LinksAreFollowedToWhatTheyLeadTo) {
  const std::string file = folder_.Write("a.txt", "12345");
  fs::create_symlink(file, folder_ / "link");
  fs::create_symlink(folder_ / "gone", folder_ / "dangling");
  EXPECT_TRUE(FileExists(folder_ / "link"));
  EXPECT_EQ(FileLength(folder_ / "link"), 5);
  EXPECT_FALSE(FileExists(folder_ / "dangling"));
}

TEST_F(FileSystem, LengthOrTheReasonWhyThereIsNone) {
  const std::string file = folder_.Write("a.txt", "12345");
  EXPECT_EQ(FileLength(file), 5);
  EXPECT_EQ(FileLength(folder_.Path()), std::nullopt);
  EXPECT_EQ(FileLengthOrThrow(file), 5);
  EXPECT_EQ(ErrorNumberOf([&] { (void)FileLengthOrThrow(folder_ / "b"); }), 53);
  EXPECT_EQ(ErrorNumberOf([&] { (void)FileLengthOrThrow(folder_ / "no/b"); }), 76);
  EXPECT_EQ(ErrorNumberOf([&] { (void)FileLengthOrThrow(folder_.Path()); }), 75);
  EXPECT_EQ(ErrorNumberOf([&] { (void)FileLengthOrThrow(""); }), 53);
}

TEST_F(FileSystem, TwoNamesOfOneFileAreTheSameFile) {
  const std::string file = folder_.Write("a.txt", "");
  const std::string other = folder_.Write("b.txt", "");
  fs::create_symlink(file, folder_ / "soft");
  fs::create_hard_link(file, folder_ / "hard");
  EXPECT_TRUE(IsSameFile(file, folder_ / "soft"));
  EXPECT_TRUE(IsSameFile(file, folder_ / "hard"));
  EXPECT_TRUE(IsSameFile(file, folder_ / "./a.txt"));
  EXPECT_FALSE(IsSameFile(file, other));
}

TEST_F(FileSystem, FilesThatAreNotThereAreComparedByName) {
  const std::string file = folder_.Write("a.txt", "");
  EXPECT_TRUE(IsSameFile(folder_ / "new.txt", folder_ / "x/../new.txt"));
  EXPECT_FALSE(IsSameFile(folder_ / "new.txt", folder_ / "NEW.txt"));
  EXPECT_FALSE(IsSameFile(file, folder_ / "new.txt"));
  EXPECT_FALSE(IsSameFile("", ""));
  EXPECT_TRUE(IsSameFile("/dev/null", "/dev/null"));
}

TEST_F(FileSystem, ListingIsInOrderOfNamesWithoutLetterCase) {
  for (const char* name :
       {"b.txt", "C.txt", "a.txt", "B.txt", "\xC3\x89.txt", "\xC3\xA8.txt", "_"}) {
    (void)folder_.Write(name, "");
  }
  (void)folder_.Make("Zoo");
  (void)folder_.Make("ant");
  const FolderListing listing = ListFolder(folder_.Path());
  EXPECT_THAT(listing.files,
              ElementsAre("_", "a.txt", "B.txt", "b.txt", "C.txt", "\xC3\xA8.txt", "\xC3\x89.txt"));
  EXPECT_THAT(listing.subfolders, ElementsAre("ant", "Zoo"));
}

TEST_F(FileSystem, ListingHoldsFilesAndLinksToFilesOnly) {
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

TEST_F(FileSystem, ListingKeepsTheBytesOfNames) {
  (void)folder_.Write("caf\xE9", "");
  EXPECT_THAT(ListFolder(folder_.Path()).files, ElementsAre("caf\xE9"));
}

TEST_F(FileSystem, ListingOfAnEmptyFolderIsEmpty) {
  const FolderListing listing = ListFolder(folder_.Path() + "/");
  EXPECT_THAT(listing.files, IsEmpty());
  EXPECT_THAT(listing.subfolders, IsEmpty());
}

TEST_F(FileSystem, ListingOfNoFolderIsPathNotFound) {
  const std::string file = folder_.Write("file", "");
  EXPECT_EQ(ErrorNumberOf([&] { (void)ListFolder(folder_ / "gone"); }), 76);
  EXPECT_EQ(ErrorNumberOf([&] { (void)ListFolder(file); }), 76);
  EXPECT_EQ(ErrorNumberOf([&] { (void)ListFolder(""); }), 76);
  EXPECT_EQ(ErrorNumberOf([&] { (void)ListFolder(kPathWithNul); }), 76);
}

TEST_F(FileSystem, ListingOfALockedFolderIsPermissionDenied) {
  const std::string locked = folder_.Make("locked");
  fs::permissions(locked, fs::perms::none);
  EXPECT_EQ(AsOrdinaryUser([&] { return ErrorNumberOf([&] { (void)ListFolder(locked); }); }), 70);
}

TEST_F(FileSystem, FilesThatMayNotBeLookedAtAreListed) {
  const std::string shelf = folder_.Make("shelf");
  (void)folder_.Write("shelf/book", "");
  fs::permissions(shelf, fs::perms(0444));
  EXPECT_EQ(AsOrdinaryUser([&] { return static_cast<int>(ListFolder(shelf).files.size()); }), 1);
}

TEST_F(FileSystem, CreateFolderMakesOneLevel) {
  CreateFolder(folder_ / "new");
  EXPECT_TRUE(FolderExists(folder_ / "new"));
  CreateFolder(folder_ / "new");
  EXPECT_EQ(ErrorNumberOf([&] { CreateFolder(folder_ / "no/deeper"); }), 76);
  EXPECT_FALSE(FolderExists(folder_ / "no"));
}

TEST_F(FileSystem, CreateFolderDoesNotPassAFileOffAsAFolder) {
  const std::string file = folder_.Write("file", "");
  EXPECT_EQ(ErrorNumberOf([&] { CreateFolder(file); }), 75);
  EXPECT_EQ(ErrorNumberOf([&] { CreateFolder(""); }), 76);
}

TEST_F(FileSystem, CreateFolderInALockedFolderIsPermissionDenied) {
  fs::permissions(folder_.Path(), fs::perms(0555));
  EXPECT_EQ(AsOrdinaryUser([&] { return ErrorNumberOf([&] { CreateFolder(folder_ / "new"); }); }),
            70);
}

TEST_F(FileSystem, CurrentFolderCanBeMovedToTheRoot) {
  const fs::path before = fs::current_path();
  SetCurrentFolder(RootFolder());
  EXPECT_EQ(fs::current_path(), "/");
  EXPECT_EQ(AbsolutePath("a.txt"), "/a.txt");
  fs::current_path(before);
  EXPECT_EQ(ErrorNumberOf([&] { SetCurrentFolder(folder_ / "gone"); }), 76);
}

TEST_F(FileSystem, ReplaceFileLeavesNothingElseBehind) {
  const std::string file = folder_.Write("file", "old");
  fs::permissions(file, fs::perms(0640));
  ReplaceFile(file, "new contents");
  EXPECT_EQ(ContentsOf(file), "new contents");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
  EXPECT_THAT(ListFolder(folder_.Path()).files, ElementsAre("file"));
}

TEST_F(FileSystem, ReplaceFileKeepsALinkALink) {
  const std::string file = folder_.Write("file", "old");
  fs::create_symlink(file, folder_ / "link");
  ReplaceFile(folder_ / "link", "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
  EXPECT_EQ(ContentsOf(file), "new");
}

TEST_F(FileSystem, ReplaceFileThatFailsLeavesTheOldContents) {
  const std::string shelf = folder_.Make("shelf");
  const std::string book = folder_.Write("shelf/book", "old");
  fs::permissions(shelf, fs::perms(0555));
  EXPECT_EQ(AsOrdinaryUser([&] { return ErrorNumberOf([&] { ReplaceFile(book, "new"); }); }), 70);
  EXPECT_EQ(ContentsOf(book), "old");
  EXPECT_EQ(ErrorNumberOf([&] { ReplaceFile(shelf, "new"); }), 75);
  EXPECT_THAT(ListFolder(folder_.Path()).files, IsEmpty());
}

TEST_F(FileSystem, ProgramFolderHoldsTheRunningProgram) {
  EXPECT_EQ(ProgramFolder(), fs::canonical("/proc/self/exe").parent_path().string());
}

TEST_F(FileSystem, DataFolderIsTheOneOfTheEnvironment) {
  const ScopedVariable data("QUILLOMAT_DATA", folder_.Path());
  EXPECT_EQ(DataFolder(), folder_.Path());
}

TEST_F(FileSystem, DataFolderIsTheProgramsOwnWhenTheDataAreThere) {
  const ScopedVariable data("QUILLOMAT_DATA", std::nullopt);
  const fs::path text = fs::path(ProgramFolder()) / "qlav_text.dat";
  const bool wasThere = fs::exists(text);
  if (!wasThere) std::ofstream(text) << "";
  EXPECT_EQ(DataFolder(), ProgramFolder());
  if (!wasThere) fs::remove(text);
}

}  // namespace
}  // namespace quillomat
