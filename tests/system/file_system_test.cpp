#include "system/file_system.h"

#include <filesystem>
#include <gmock/gmock.h>

#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/links.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kPathWithNul("tmp\0xx", 6);

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

TEST_F(FileSystem, LengthOfAFolderIsNone) {
  const std::string file = folder_.Write("a.txt", "12345");
  EXPECT_EQ(FileLength(file), 5);
  EXPECT_EQ(FileLength(folder_.Path()), std::nullopt);
}

TEST_F(FileSystem, FilesThatAreNotThereAreComparedByName) {
  const std::string file = folder_.Write("a.txt", "");
  EXPECT_TRUE(IsSameFile(folder_ / "new.txt", folder_ / "x/../new.txt"));
  EXPECT_FALSE(IsSameFile(file, folder_ / "new.txt"));
  EXPECT_FALSE(IsSameFile("", ""));
}

TEST_F(FileSystem, TwoSpellingsOfAFileThatIsNotThereLeadToOne) {
  (void)folder_.Make("sub");
  EXPECT_TRUE(LeadToOneFile(folder_ / "new.txt", folder_ / "sub/../new.txt"));
  EXPECT_TRUE(LeadToOneFile(folder_ / "no/new.txt", folder_ / "no/new.txt"));
  EXPECT_FALSE(LeadToOneFile(folder_ / "new.txt", folder_ / "sub/new.txt"));
  EXPECT_FALSE(LeadToOneFile(folder_ / "new.txt", folder_ / "other.txt"));
  EXPECT_FALSE(LeadToOneFile("", ""));
}

TEST_F(FileSystem, ListingIsInOrderOfNamesWithoutLetterCase) {
  for (const char* name :
       {"b.txt", "C.txt", "a.txt", "B2.txt", "\xC3\x89.txt", "\xC3\xA8.txt", "_"}) {
    (void)folder_.Write(name, "");
  }
  (void)folder_.Make("Zoo");
  (void)folder_.Make("ant");
  const FolderListing listing = ListFolder(folder_.Path());
  EXPECT_THAT(listing.files, ElementsAre("_", "a.txt", "b.txt", "B2.txt", "C.txt", "\xC3\xA8.txt",
                                         "\xC3\x89.txt"));
  EXPECT_THAT(listing.subfolders, ElementsAre("ant", "Zoo"));
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

TEST_F(FileSystem, ReplaceFileLeavesNothingElseBehind) {
  const std::string file = folder_.Write("file", "old");
  ReplaceContents(file, "new contents");
  EXPECT_EQ(ContentsOf(file), "new contents");
  EXPECT_THAT(ListFolder(folder_.Path()).files, ElementsAre("file"));
}

TEST_F(FileSystem, DataFolderIsTheOneOfTheEnvironment) {
  const ScopedVariable data("QUILLOMAT_DATA", folder_.Path());
  EXPECT_EQ(DataFolder(), folder_.Path());
}

TEST_F(FileSystem, RelativeDataFolderCountsFromTheProgramsFolder) {
  const ScopedVariable data("QUILLOMAT_DATA", "texts");
  EXPECT_EQ(DataFolder(), JoinPath(ProgramFolder(), "texts"));
}

TEST_F(FileSystem, DataFolderIsTheProgramsOwnWhenTheDataAreThere) {
  const ScopedVariable data("QUILLOMAT_DATA", std::nullopt);
  const fs::path text = TestPath(ProgramFolder()) / "qlav_text.dat";
  const bool wasThere = fs::exists(text);
  if (!wasThere) std::ofstream(text) << "";
  EXPECT_EQ(DataFolder(), ProgramFolder());
  if (!wasThere) fs::remove(text);
}

}  // namespace
}  // namespace quillomat
