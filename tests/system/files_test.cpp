#include <vector>

#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/input_file.h"
#include "system/output_file.h"

namespace quillomat {
namespace {

using InputFileTest = TestInAFolder;
using OutputFileTest = TestInAFolder;

TEST_F(InputFileTest, ReadsAllBytesWhateverTheBlock) {
  std::string contents("a\0b\r\n\xFF", 6);
  for (int i = 0; i < 12; ++i) contents += contents;
  const std::string path = folder_.Write("in", contents);
  for (const std::size_t blockBytes : {1U, 7U, 4096U, 1U << 20U}) {
    InputFile file(path);
    EXPECT_EQ(file.Length(), static_cast<std::int64_t>(contents.size()));
    EXPECT_EQ(ReadWhole(file, blockBytes), contents);
    EXPECT_EQ(ReadWhole(file, blockBytes), "");
  }
}

TEST_F(InputFileTest, WhatIsSeenAheadStaysToBeRead) {
  const std::string contents(50'000, 'x');
  const std::string path = folder_.Write("in", "start" + contents);
  for (const std::size_t blockBytes : {1U, 7U, 65'536U}) {
    InputFile file(path);
    EXPECT_EQ(file.Ahead(5), "start");
    EXPECT_EQ(file.Ahead(3), "sta");
    EXPECT_EQ(file.Ahead(20'000), "start" + contents.substr(0, 19'995));
    std::array<char, 2> two{};
    EXPECT_EQ(file.Read(two), 2U);
    EXPECT_EQ(file.Ahead(4), "artx");
    EXPECT_EQ(ReadWhole(file, blockBytes), "art" + contents);
    EXPECT_EQ(file.Ahead(4), "");
  }
}

TEST_F(InputFileTest, TheRestOfAFileCanBeReadAtAnyPlace) {
  InputFile file(folder_.Write("placed", "one two three"));
  EXPECT_EQ(file.Ahead(5), "one t");
  EXPECT_EQ(file.Rest().value().begin, 0);
  EXPECT_EQ(file.Rest().value().end, 13);
  std::array<char, 5> three{};
  EXPECT_EQ(file.Rest().value().bytes.ReadAt(8, three), 5U);
  EXPECT_EQ(std::string_view(three.data(), three.size()), "three");
  EXPECT_EQ(file.Rest().value().bytes.ReadAt(12, three), 1U);
  EXPECT_EQ(file.Rest().value().bytes.ReadAt(13, three), 0U);
  // Which is no matter to who reads it in turn.
  file.Skip(4);
  EXPECT_EQ(file.Rest().value().begin, 4);
  EXPECT_EQ(file.Ahead(3), "two");
  file.Skip(7);
  EXPECT_EQ(file.Rest().value().begin, 11);
  EXPECT_EQ(file.Ahead(9), "ee");
  InputFile empty(folder_.Write("nothing placed", ""));
  EXPECT_FALSE(empty.Rest());
}

TEST_F(InputFileTest, NoMoreIsSeenAheadThanThereIs) {
  InputFile file(folder_.Write("in", "one"));
  EXPECT_EQ(file.Ahead(100), "one");
  EXPECT_EQ(file.Ahead(100), "one");
  EXPECT_EQ(ReadWhole(file, 100), "one");
  InputFile empty(folder_.Write("empty", ""));
  EXPECT_EQ(empty.Ahead(100), "");
}

TEST_F(InputFileTest, EmptyFileIsAtItsEnd) {
  InputFile file(folder_.Write("empty", ""));
  EXPECT_EQ(file.Length(), 0);
  EXPECT_EQ(ReadWhole(file, 16), "");
}

TEST_F(InputFileTest, TellsWhyAFileCannotBeOpened) {
  const std::string file = folder_.Write("file", "");
  const auto opening = [](const std::string& path) {
    return ErrorNumberOf([&] { const InputFile opened(path); });
  };
  EXPECT_EQ(opening(folder_ / "gone"), 53);
  EXPECT_EQ(opening("gone"), 53);
  EXPECT_EQ(opening(""), 53);
  EXPECT_EQ(opening(file + std::string("\0x", 2)), 53);
  EXPECT_EQ(opening(folder_ / "no/file"), 76);
  EXPECT_EQ(opening(file + "/x"), 76);
  EXPECT_EQ(opening(folder_.Path()), 75);
  EXPECT_EQ(opening(folder_ / std::string(300, 'x')), 75);
}

TEST_F(InputFileTest, AFileThatMayNotBeReadIsPermissionDenied) {
  const std::string file = folder_.Write("secret", "x");
  const ClosedFile closed(file);
  EXPECT_EQ(AsOrdinaryUser([&] { return ErrorNumberOf([&] { const InputFile opened(file); }); }),
            70);
}

TEST_F(OutputFileTest, WritesAllBytesInOrder) {
  const std::string path = folder_ / "out";
  std::string expected;
  {
    OutputFile file(path);
    for (const std::size_t bytes : {0U, 1U, 100U, 65535U, 65536U, 200'000U, 3U}) {
      const std::string block(bytes, static_cast<char>('a' + bytes % 26));
      file.Write(block);
      expected += block;
    }
    file.Close();
    file.Close();
  }
  EXPECT_EQ(ContentsOf(path), expected);
}

TEST_F(OutputFileTest, TheOldFileStandsUntilTheNewOneIsClosed) {
  const std::string path = folder_.Write("out", "something long");
  OutputFile file(path);
  file.Write(std::string(200'000, 'x'));
  EXPECT_EQ(ContentsOf(path), "something long");
  file.Close();
  EXPECT_EQ(ContentsOf(path), std::string(200'000, 'x'));
  EXPECT_EQ(ListFolder(folder_.Path()).files, std::vector<std::string>{"out"});
}

TEST_F(OutputFileTest, TellsWhyAFileCannotBeOpened) {
  const std::string file = folder_.Write("file", "");
  const auto opening = [](const std::string& path) {
    return ErrorNumberOf([&] { const OutputFile opened(path); });
  };
  EXPECT_EQ(opening(folder_ / "no/file"), 76);
  EXPECT_EQ(opening(file + "/x"), 76);
  EXPECT_EQ(opening(folder_.Path()), 75);
  EXPECT_EQ(opening(""), 76);
}

TEST_F(OutputFileTest, TheCheckTellsTheSameAndLeavesAllAsItIs) {
  const std::string file = folder_.Write("file", "old");
  const auto checking = [](const std::string& path) {
    return ErrorNumberOf([&] { CheckWritable(path); });
  };
  EXPECT_EQ(checking(file), 0);
  EXPECT_EQ(checking(folder_ / "new"), 0);
  EXPECT_EQ(checking(folder_ / "no/file"), 76);
  EXPECT_EQ(checking(file + "/x"), 76);
  EXPECT_EQ(checking(folder_.Path()), 75);
  EXPECT_EQ(checking(""), 76);
  EXPECT_EQ(ContentsOf(file), "old");
  EXPECT_EQ(ListFolder(folder_.Path()).files, std::vector<std::string>{"file"});
}

TEST_F(OutputFileTest, AFileThatIsNeverClosedIsAsItWas) {
  const std::string path = folder_.Write("out", "old");
  {
    OutputFile file(path);
    file.Write(std::string(70'000, 'x'));
    OutputFile fresh(folder_ / "new");
    fresh.Write(std::string(70'000, 'x'));
  }
  EXPECT_EQ(ContentsOf(path), "old");
  EXPECT_EQ(ListFolder(folder_.Path()).files, std::vector<std::string>{"out"});
}

TEST_F(OutputFileTest, AVeryLongNameIsNoHindrance) {
  const std::string path = folder_ / std::string(250, 'x');
  OutputFile file(path);
  file.Write("new");
  file.Close();
  EXPECT_EQ(ContentsOf(path), "new");
}

TEST_F(OutputFileTest, ATargetThatBecomesAFolderMeanwhileIsToldOf) {
  OutputFile file(folder_ / "out");
  file.Write("new");
  (void)folder_.Make("out");
  EXPECT_EQ(ErrorNumberOf([&] { file.Close(); }), 75);
  EXPECT_TRUE(ListFolder(folder_.Path()).files.empty());
}

}  // namespace
}  // namespace quillomat
