// Which files of a folder are scanned.
#include "app/count/file_extensions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "app/count/sources_fixture.h"

namespace quillomat {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FileExtensionsTest : public SourcesFixture {
 protected:
  FileExtensions& Extensions() { return program.Count().Extensions(); }
  [[nodiscard]] const std::string& Box(std::size_t box) {
    return Main().txbFileExtensions[box].Text();
  }
  [[nodiscard]] bool Scans(const std::string& name) { return Extensions().IsScannable(name); }

  /// So many different extensions with blanks between them: "e100 e101 ...".
  static std::string ManyExtensions(int number) {
    std::string text;
    for (int i = 0; i < number; ++i) text += (i > 0 ? " e" : "e") + std::to_string(100 + i);
    return text;
  }
};

// The boxes.

TEST_F(FileExtensionsTest, BlanksCommasAndSemicolonsSeparateEntries) {
  TypeOnly("txt, htm;html");
  EXPECT_EQ(Box(0), "txt htm html");
  TypeNot(" ;c,;  cpp,, ");
  EXPECT_EQ(Box(1), "c cpp");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(FileExtensionsTest, LeadingStarsDotsAndQuestionMarksAreDropped) {
  TypeOnly("*.txt .htm html ?.xml *.*.php");
  EXPECT_EQ(Box(0), "txt htm html xml php");
  TypeOnly("*.* * . ?");
  EXPECT_EQ(Box(0), "");
  EXPECT_TRUE(Scans("a.anything"));
}

TEST_F(FileExtensionsTest, AnEmptyBoxHasNoEntries) {
  TypeOnly("txt");
  EXPECT_FALSE(Scans("a.htm"));
  TypeOnly("");
  EXPECT_TRUE(Scans("a.htm"));
}

TEST_F(FileExtensionsTest, TheEnterKeyLeavesTheBoxToo) {
  Main().txbFileExtensions[1].SetText("*.c;*.h");
  Main().txbFileExtensions[1].KeyDown.Fire(kEnterKey);
  EXPECT_EQ(Box(1), "c h");
  EXPECT_FALSE(Scans("a.c"));
}

TEST_F(FileExtensionsTest, ABoxTakes100Entries) {
  TypeOnly(ManyExtensions(100));
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(Box(0), ManyExtensions(100));
  EXPECT_TRUE(Scans("a.e199"));
  EXPECT_FALSE(Scans("a.txt"));
}

TEST_F(FileExtensionsTest, MoreThan100EntriesAreTooMany) {
  TypeOnly(ManyExtensions(101));
  ExpectMessage(OnlyMessage(), "Too many file extensions to include.\r\nE.g.: txt htm html xml",
                "Invalid input", MessageIcon::kExclamation);
  TypeOnly("");
  desktop.ForgetQuestions();
  TypeNot(ManyExtensions(101));
  ExpectMessage(OnlyMessage(), "Too many file extensions to exclude.\r\nE.g.: c cpp",
                "Invalid input", MessageIcon::kExclamation);
}

TEST_F(FileExtensionsTest, WordAndPdfFilesAmongTheIncludedAreWarnedOf) {
  for (const std::string text : {"txt doc", "*.pdf", "doc pdf"}) {
    desktop.ForgetQuestions();
    TypeOnly(text);
    ExpectMessage(OnlyMessage(),
                  "MS-word .doc files and .pdf files are not text files\r\n"
                  "and cannot be scanned using this software.",
                  "No doc files", MessageIcon::kExclamation);
  }
}

TEST_F(FileExtensionsTest, LeavingEitherBoxWarnsOfDocFilesAmongTheIncluded) {
  TypeOnly("doc");
  desktop.ForgetQuestions();
  TypeNot("c");
  EXPECT_THAT(desktop.Titles(), ElementsAre("No doc files"));
}

TEST_F(FileExtensionsTest, ExcludedDocFilesAreFine) {
  TypeNot("doc pdf");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
}

// The lists against each other.

TEST_F(FileExtensionsTest, AnExtensionCannotBeBothIncludedAndExcluded) {
  TypeOnly("htm txt");
  TypeNot("c txt");
  ExpectMessage(OnlyMessage(), "File extension 'txt' is both included and excluded.",
                "Invalid input", MessageIcon::kExclamation);
}

TEST_F(FileExtensionsTest, AnEntryWithAWildcardOrADotInsideIsInvalid) {
  for (const std::string entry : {"t?t", "tx*", "tar.gz", "txt."}) {
    for (const std::size_t box : {0U, 1U}) {
      desktop.ForgetQuestions();
      TypeExtensions(box, "htm " + entry);
      ExpectMessage(OnlyMessage(), "File extension '" + entry + "' contains an invalid character.",
                    "Invalid input", MessageIcon::kExclamation);
      TypeExtensions(box, "");
    }
  }
}

TEST_F(FileExtensionsTest, TheFirstFaultEndsTheCheck) {
  TypeOnly("a?a b.b txt");
  desktop.ForgetQuestions();
  TypeNot("c*c txt");
  EXPECT_EQ(OnlyMessage().text, "File extension 'txt' is both included and excluded.");
  desktop.ForgetQuestions();
  TypeNot("c*c");
  EXPECT_EQ(OnlyMessage().text, "File extension 'a?a' contains an invalid character.");
  TypeOnly("txt");
  desktop.ForgetQuestions();
  TypeNot("c*c d.d");
  EXPECT_EQ(OnlyMessage().text, "File extension 'c*c' contains an invalid character.");
}

TEST_F(FileExtensionsTest, ACountWithFaultyExtensionsIsRefusedBeforeAnythingIsRead) {
  CountFile(folder.Write("a.txt", "dog"));
  TypeOnly("txt");
  TypeNot("txt");
  desktop.ForgetQuestions();
  CountFolder(folder.Path());
  ExpectMessage(OnlyMessage(), "File extension 'txt' is both included and excluded.",
                "Invalid input", MessageIcon::kExclamation);
  EXPECT_EQ(StoredWords(), "dog");
  ExpectIdle();
  desktop.ForgetQuestions();
  CountFile(folder / "a.txt");
  EXPECT_EQ(OnlyMessage().title, "Invalid input");
  desktop.ForgetQuestions();
  CountClipboard("cat");
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(StoredWords(), "cat");
}

// Which files are scanned.

TEST_F(FileExtensionsTest, WithoutListsEveryFileIsScannedButWhatIsNeverText) {
  for (const std::string name : {"a.txt", "README", ".profile", "a.", "a.doc", "a.zipped"}) {
    EXPECT_TRUE(Scans(name)) << name;
  }
  for (const std::string extension :
       {"ico", "gif", "jpg", "png", "bmp", "zip", "bin", "xls", "mdb", "pdf",
        "com", "exe", "dll", "cab", "ocx", "vxd", "drv", "sys", "vbx", "386"}) {
    EXPECT_FALSE(Scans("a." + extension)) << extension;
    EXPECT_FALSE(Scans("a.txt." + extension)) << extension;
  }
  EXPECT_FALSE(Scans("PICTURE.JPG"));
  EXPECT_TRUE(Scans("jpg"));
}

TEST_F(FileExtensionsTest, WhatIsNeverTextIsNotScannedEvenIfIncluded) {
  TypeOnly("gif txt");
  EXPECT_FALSE(Scans("a.gif"));
  EXPECT_TRUE(Scans("a.txt"));
}

TEST_F(FileExtensionsTest, WithIncludedExtensionsOnlyTheseAreScanned) {
  TypeOnly("txt htm");
  EXPECT_TRUE(Scans("a.txt"));
  EXPECT_TRUE(Scans("a.TXT"));
  EXPECT_TRUE(Scans("a.b.htm"));
  EXPECT_FALSE(Scans("a.html"));
  EXPECT_FALSE(Scans("a.c"));
  EXPECT_FALSE(Scans("txt"));
}

TEST_F(FileExtensionsTest, WithExcludedExtensionsAllOthersAreScanned) {
  TypeNot("c cpp");
  EXPECT_FALSE(Scans("a.c"));
  EXPECT_FALSE(Scans("a.CPP"));
  EXPECT_TRUE(Scans("a.h"));
  EXPECT_TRUE(Scans("c"));
  EXPECT_FALSE(Scans("a.gif"));
}

TEST_F(FileExtensionsTest, IncludedExtensionsTakePrecedenceOverExcludedOnes) {
  TypeOnly("txt");
  TypeNot("htm");
  EXPECT_TRUE(Scans("a.txt"));
  EXPECT_FALSE(Scans("a.htm"));
  EXPECT_FALSE(Scans("a.c"));
}

TEST_F(FileExtensionsTest, AFolderIsCountedByItsSuitableFiles) {
  static_cast<void>(folder.Write("a.txt", "cat"));
  static_cast<void>(folder.Write("b.htm", "dog"));
  static_cast<void>(folder.Write("c.c", "mouse"));
  TypeOnly("txt");
  TypeNot("htm");
  CountFolder(folder.Path());
  EXPECT_EQ(StoredWords(), "cat");
  TypeOnly("");
  CountFolderWithoutOutputFile(folder.Path());
  EXPECT_EQ(StoredWords(), "cat mouse");
}

}  // namespace
}  // namespace quillomat
