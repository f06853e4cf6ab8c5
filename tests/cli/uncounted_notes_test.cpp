// What a run tells of what its text has and was not counted, or was read as it was guessed.
#include "cli/uncounted_notes.h"

#include <gmock/gmock.h>
#include <string>
#include <string_view>
#include <vector>

#include "cli/terminal_fixture.h"

namespace quillomat {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using UncountedNotes = TerminalFixture;

TEST_F(UncountedNotes, LettersThatAreNotCountedAreTold) {
  const std::string path = folder.Write("a.txt", "слово word");
  EXPECT_EQ(Run({path}), 0);
  EXPECT_EQ(err,
            "Note: 5 letters of other alphabets were not counted; --letters all counts them.\n");
  EXPECT_EQ(Run({folder.Write("b.txt", "word \xC5\x93")}), 0);
  EXPECT_EQ(err, "Note: 1 letter of another alphabet was not counted; --letters all counts it.\n");
  EXPECT_EQ(Run({path, "--letters", "all"}), 0);
  EXPECT_EQ(err, "");
}

TEST_F(UncountedNotes, LettersThatAreNotCountedAreToldWhereNoWordIsListed) {
  const std::string path = folder.Write("a.txt", "слово");
  for (const char* how : {"--file", "--text", "--window-text"}) {
    EXPECT_EQ(Run({how, path}), 1);
    EXPECT_THAT(err, HasSubstr("Note: 5 letters of other alphabets were not counted")) << how;
  }
  input = "\xF1\xEB\xEE\xE2\xEE";
  EXPECT_EQ(Run({"--text", "-", "--encoding", "windows-1251"}), 1);
  EXPECT_THAT(err, HasSubstr("Note: 5 letters of other alphabets"));
}

TEST_F(UncountedNotes, LinesThatWereNotUtf8AreTold) {
  const std::string path = folder.Write("a.txt", "caf\xE9\nth\xE9\ncat\n");
  const std::string note =
      "Note: 2 lines were not UTF-8 and were read as Windows-1252; --encoding names another "
      "encoding.\n";
  for (const char* how : {"--file", "--text", "--window-text"}) {
    const bool window = std::string(how) == "--window-text";
    EXPECT_EQ(
        Run(window ? std::vector<std::string>{path, how} : std::vector<std::string>{how, path}), 0);
    EXPECT_EQ(err, note) << how;
  }
  EXPECT_EQ(Run({folder.Write("b.txt", "caf\xE9\n")}), 0);
  EXPECT_EQ(err,
            "Note: 1 line was not UTF-8 and was read as Windows-1252; --encoding names another "
            "encoding.\n");
  EXPECT_EQ(Run({path, "--encoding", "Latin1"}), 0);
  EXPECT_EQ(err, "");
}

TEST_F(UncountedNotes, BytesThatCouldNotBeDecodedAreTold) {
  input = "cat\x81 dog";
  const std::string path = folder.Write("a.txt", input);
  for (const std::vector<std::string>& how :
       {std::vector<std::string>{path}, {"-"}, {"--text", path}, {path, "--window-text"}}) {
    std::vector<std::string> arguments = how;
    arguments.insert(arguments.end(), {"--encoding", "cp1252"});
    EXPECT_EQ(Run(arguments), 0);
    EXPECT_EQ(err, "Note: 1 byte could not be decoded; --encoding names another encoding.\n");
  }
  EXPECT_EQ(Run({folder.Write("b.txt", "cat\xFF\xFE"), "--encoding", "utf8"}), 0);
  EXPECT_EQ(err, "Note: 2 bytes could not be decoded; --encoding names another encoding.\n");
}

TEST_F(UncountedNotes, WhatWasGuessedIsTold) {
  std::string koi8;
  for (int i = 0; i < 5; ++i) {
    koi8 += "\xEB\xC1\xD6\xC4\xCF\xC5 \xD5\xD4\xD2\xCF \xD2\xC5\xCB\xC1 \xD4\xC9\xC8\xCF\n";
  }
  const std::string note = "Note: read as KOI8-U, as guessed; --encoding names another encoding.\n";
  const std::string path = folder.Write("koi8.txt", koi8);
  const std::string noText = folder.Write("no.txt", koi8 + '\x01');
  std::string wide;
  for (const char ch : std::string_view("a cat and a dog")) wide.append({ch, '\0'});
  const std::string utf16 = folder.Write("utf16.txt", wide);
  input = koi8;
  for (const std::vector<std::string>& how : {std::vector<std::string>{path},
                                              {"-"},
                                              {"--text", path},
                                              {path, "--window-text"},
                                              {path, utf16, folder.Write("utf8.txt", "слово")}}) {
    std::vector<std::string> arguments = how;
    arguments.insert(arguments.end(), {"--encoding", "guess", "--letters", "all"});
    EXPECT_EQ(Run(arguments), 0);
    EXPECT_EQ(err, note) << how.front();
  }
  EXPECT_EQ(Run({path, "--encoding", "koi8-u", "--letters", "all"}), 0);
  EXPECT_EQ(err, "");
  EXPECT_EQ(Run({utf16, noText, "--encoding", "guess"}), 0);
  EXPECT_THAT(err, AllOf(HasSubstr("no.txt"), Not(HasSubstr("read as"))));
}

TEST_F(UncountedNotes, NothingIsToldOfTheGuessAtATextThatIsTooLong) {
  std::string koi8;  // 119,000 characters
  for (int i = 0; i < 7'000; ++i)
    koi8 += "\xEB\xC1\xD6\xC4\xCF\xC5 \xD5\xD4\xD2\xCF \xD2\xC5\xCB\xC1\n";
  EXPECT_EQ(Run({"--text", folder.Write("long.txt", koi8), "--encoding", "guess"}), 1);
  EXPECT_THAT(err, AllOf(HasSubstr("a text of any size"), Not(HasSubstr("read as"))));
}

TEST_F(UncountedNotes, FirstOfSeveralFilesWithBytesThatCouldNotBeDecodedIsNamed) {
  const std::string first = folder.Write("a.txt", "cat");
  const std::string second = folder.Write("b.txt", "cat\xFF\xFE");
  const std::string third = folder.Write("c.txt", "cat\xFF");
  EXPECT_EQ(Run({first, second, third, "--encoding", "utf8"}), 0);
  EXPECT_EQ(err, "Note: 3 bytes could not be decoded, the first of them in " + second +
                     " (--report tells of all files); --encoding names another encoding.\n");
  EXPECT_EQ(Run({"--folder", folder.Path(), "--encoding", "utf8", "--window-text"}), 0);
  EXPECT_THAT(err, HasSubstr("b.txt (--report tells of all files)"));
  EXPECT_EQ(Run({first, third, "--encoding", "utf8"}), 0);
  EXPECT_EQ(err, "Note: 1 byte could not be decoded: in " + third +
                     "; --encoding names another encoding.\n");
}

TEST_F(UncountedNotes, EncodingIsToldBeforeLettersThatItMayHaveMade) {
  EXPECT_EQ(Run({folder.Write("a.txt", "\x8C\x9F\ncat\n")}), 0);
  EXPECT_LT(err.find("not UTF-8"), err.find("other alphabets"));
}

}  // namespace
}  // namespace quillomat
