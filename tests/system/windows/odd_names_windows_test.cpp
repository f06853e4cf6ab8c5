// Names that Windows programs commonly stumble over: letters of all alphabets, very long paths,
// servers, names that end in a blank or a dot, devices.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/input_file.h"
#include "system/output_file.h"
#include "system/windows/system_path.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class OddNames : public ::testing::Test {
 protected:
  static void WriteThrough(const std::string& path, std::string_view text) {
    OutputFile file(path);
    file.Write(text);
    file.Close();
  }

  [[nodiscard]] static std::string ReadThrough(const std::string& path) {
    InputFile file(path);
    std::string text(64, '\0');
    text.resize(file.Read(text));
    return text;
  }

  /// A file that only another kind of program could have made: the name is taken as it is.
  [[nodiscard]] std::string WriteVerbatim(const std::string& name, std::string_view text) const {
    const std::string path = folder_ / name;
    std::ofstream(fs::path(SystemPath(path)), std::ios::binary) << text;
    return path;
  }

  [[nodiscard]] static int Opening(const std::string& path) {
    return ErrorNumberOf([&] { const InputFile file(path); });
  }
  [[nodiscard]] static int Making(const std::string& path) {
    return ErrorNumberOf([&] { WriteThrough(path, "x"); });
  }

  TemporaryFolder folder_;
};

TEST_F(OddNames, LettersOfAllAlphabetsAreLetters) {
  for (const char* name : {"naïve café.txt", "Ωmega.txt", "слово.txt", "日本語.txt", "📖.txt"}) {
    const std::string path = folder_ / name;
    WriteThrough(path, name);
    EXPECT_TRUE(FileExists(path)) << name;
    EXPECT_EQ(FileLength(path), static_cast<std::int64_t>(std::string(name).size())) << name;
    EXPECT_EQ(ReadThrough(path), name);
    EXPECT_TRUE(IsSameFile(path, path)) << name;
    EXPECT_THAT(ListFolder(folder_.Path()).files, ElementsAre(name));
    fs::remove(TestPath(path));
  }
}

TEST_F(OddNames, PathsMayBeLongerThan260Characters) {
  std::string path = folder_.Path();
  for (int depth = 0; depth < 8; ++depth) {
    path = JoinPath(path, std::string(60, static_cast<char>('a' + depth)));
    CreateFolder(path);
  }
  EXPECT_TRUE(FolderExists(path));
  const std::string file = JoinPath(path, "book.txt");
  ASSERT_GT(file.size(), 500U);
  WriteThrough(file, "deep");
  EXPECT_EQ(ReadThrough(file), "deep");
  EXPECT_EQ(FileLength(file), 4);
  EXPECT_THAT(ListFolder(path).files, ElementsAre("book.txt"));
  EXPECT_TRUE(IsSameFile(file, JoinPath(path, R"(..\)" + std::string(60, 'h') + R"(\book.txt)")));
  ReplaceContents(file, "deeper");
  EXPECT_EQ(ReadThrough(file), "deeper");
}

TEST_F(OddNames, ANameThatNoDiskTakesIsRefused) {
  EXPECT_EQ(Opening(folder_ / std::string(300, 'x')), 75);
  EXPECT_EQ(Making(folder_ / std::string(300, 'x')), 75);
}

TEST_F(OddNames, AFileMayEndInABlankOrADot) {
  const std::string plain = folder_.Write("name", "plain");
  const std::string dot = WriteVerbatim("name.", "dot");
  const std::string blank = WriteVerbatim("name ", "blank");
  EXPECT_THAT(ListFolder(folder_.Path()).files, UnorderedElementsAre("name", "name.", "name "));
  EXPECT_EQ(ReadThrough(plain), "plain");
  EXPECT_EQ(ReadThrough(dot), "dot");
  EXPECT_EQ(ReadThrough(blank), "blank");
  EXPECT_FALSE(IsSameFile(plain, dot));
  for (const std::string& path : {dot, blank}) fs::remove(fs::path(SystemPath(path)));
  EXPECT_EQ(Opening(dot), 53) << "it is no other name of the file without the dot";
}

TEST_F(OddNames, NoNameThatEndsInABlankOrADotIsMade) {
  EXPECT_EQ(Making(folder_ / "list.txt."), 75);
  EXPECT_EQ(Making(folder_ / "list.txt "), 75);
  EXPECT_EQ(ErrorNumberOf([&] { CreateFolder(folder_ / "folder."); }), 75);
  EXPECT_TRUE(ListFolder(folder_.Path()).files.empty());
  EXPECT_TRUE(ListFolder(folder_.Path()).subfolders.empty());
}

TEST_F(OddNames, NoFileIsGivenADevicesName) {
  for (const char* name : {"nul", "NUL.txt", "con", "aux .txt", "COM1", "lpt9.csv"}) {
    EXPECT_EQ(Making(folder_ / name), 75) << name;
  }
  EXPECT_EQ(Making(folder_ / "nullify.txt"), 0);
  EXPECT_EQ(Making(folder_ / "com.txt"), 0);
}

TEST_F(OddNames, TheNullDeviceTakesEverythingAndHoldsNothing) {
  EXPECT_EQ(Making("NUL"), 0);
  EXPECT_TRUE(FileExists("nul"));
  InputFile nothing("NUL");
  EXPECT_EQ(nothing.Length(), 0);
}

TEST_F(OddNames, SystemPathsAreVerbatim) {
  EXPECT_EQ(SystemPath(R"(C:\a\..\b. )"), LR"(\\?\C:\b. )");
  EXPECT_EQ(SystemPath("C:/a/b"), LR"(\\?\C:\a\b)");
  EXPECT_EQ(SystemPath(R"(\\server\share\a)"), LR"(\\?\UNC\server\share\a)");
  EXPECT_EQ(SystemPath(R"(\\?\C:\a)"), LR"(\\?\C:\a)");
  EXPECT_EQ(SystemPath(R"(\\.\pipe\a)"), LR"(\\.\pipe\a)");
  EXPECT_EQ(SystemPath("nul"), L"nul");
}

TEST_F(OddNames, VerbatimPathsAreTakenFromTheUserToo) {
  const std::string file = folder_.Write("a.txt", "text");
  EXPECT_EQ(ReadThrough(R"(\\?\)" + file), "text");
  EXPECT_TRUE(IsSameFile(R"(\\?\)" + file, file));
  EXPECT_THAT(ListFolder(R"(\\?\)" + folder_.Path()).files, ElementsAre("a.txt"));
}

TEST_F(OddNames, AServerThatIsNotThereIsNotFound) {
  const std::string file = R"(\\no-such-server.invalid\share\a.txt)";
  EXPECT_FALSE(FileExists(file));
  EXPECT_EQ(Opening(file), 76);
  EXPECT_EQ(Making(file), 76);
  EXPECT_EQ(ErrorNumberOf([] { (void)ListFolder(R"(\\no-such-server.invalid\share)"); }), 76);
}

TEST_F(OddNames, ADriveThatIsNotThereIsNotFound) {
  EXPECT_EQ(Opening(R"(Q:\a.txt)"), 76);
  EXPECT_EQ(Making(R"(Q:\a.txt)"), 76);
}

TEST_F(OddNames, LetterCaseIsNothingInNames) {
  const std::string file = folder_.Write("Book.txt", "text");
  EXPECT_EQ(ReadThrough(folder_ / "bOOK.TXT"), "text");
  EXPECT_TRUE(IsSameFile(file, folder_ / "BOOK.TXT"));
  EXPECT_TRUE(IsSameFile(folder_ / "new.txt", folder_ / "NEW.txt"));
}

TEST_F(OddNames, AFileThatIsMarkedReadOnlyIsNotWritten) {
  const std::string file = folder_.Write("a.txt", "old");
  fs::permissions(TestPath(file), fs::perms(0444));
  EXPECT_EQ(Making(file), 70);
  EXPECT_EQ(ReadThrough(file), "old");
  fs::permissions(TestPath(file), fs::perms(0666));
}

TEST_F(OddNames, TheCurrentFolderCanBeMovedToTheRoot) {
  const fs::path before = fs::current_path();
  SetCurrentFolder(RootFolder());
  EXPECT_EQ(fs::current_path(), before.root_path());
  fs::current_path(before);
  EXPECT_EQ(ErrorNumberOf([&] { SetCurrentFolder(folder_ / "gone"); }), 76);
}

TEST_F(OddNames, TheProgramKnowsItsFolder) {
  EXPECT_TRUE(FileExists(JoinPath(ProgramFolder(), "quillomat_system_tests.exe")));
}

}  // namespace
}  // namespace quillomat
