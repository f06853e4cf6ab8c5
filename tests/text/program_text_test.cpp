#include "text/program_text.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <new>
#include <utility>

#include "base/run_time_error.h"
#include "base/utf8.h"
#include "support/scripted_desktop.h"
#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "text/load_result.h"

namespace quillomat {
namespace {

int ResultOf(std::string_view contents) {
  ProgramText text;
  TextSource source(contents);
  return text.Load(source);
}

std::string MessageFor(std::string_view contents) {
  return LoadErrorMessage(ResultOf(contents), "unused");
}

/// The text 7 in English of a file that has just this text.
std::string TextOf(std::string_view written) {
  const std::string contents = "7 EN " + std::string(written) + "\n7 DE x\n";
  ProgramText text;
  TextSource source(contents);
  EXPECT_EQ(text.Load(source), 2);
  return text.GetText(7);
}

/// The text in UTF-16, low bytes first.
std::string Utf16(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) {
    bytes.push_back(static_cast<char>(unit & 0xFFU));
    bytes.push_back(static_cast<char>(unit >> 8U));
  }
  return bytes;
}

/// Gives some bytes, and then fails.
template <class Failure>
class FailingSource final : public ByteSource {
 public:
  explicit FailingSource(Failure failure) : failure_(std::move(failure)) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = start_.Read(buffer);
    if (bytes == 0) throw Failure(failure_);
    return bytes;
  }

 private:
  Failure failure_;
  TextSource start_{"1 EN One\n1 DE Eins\n"};
};

/// Never ends.
class EndlessSource final : public ByteSource {
 public:
  std::size_t Read(std::span<char> buffer) override {
    std::ranges::fill(buffer, '#');
    bytesGiven += buffer.size();
    return buffer.size();
  }

  std::size_t bytesGiven = 0;
};

// What a good file gives.

TEST(ProgramText, TextsAreFetchedInTheCurrentLanguage) {
  ProgramText text;
  TextSource source("21 EN Count\n21 DE Zählen\n");
  EXPECT_EQ(text.Load(source), 2);
  EXPECT_EQ(text.CurrentLanguage(), Language::kEnglish);
  EXPECT_EQ(text.GetText(21), "Count");
  text.SetLanguage(Language::kGerman);
  EXPECT_EQ(text.GetText(21), "Zählen");
}

TEST(ProgramText, UnknownNumberHasAnEmptyText) {
  ProgramText text;
  EXPECT_EQ(text.GetText(1), "");
  TextSource source("1 EN One\n1 DE Eins\n");
  EXPECT_EQ(text.Load(source), 2);
  for (const int number : {-1, 0, 2, 32767, 32768}) EXPECT_EQ(text.GetText(number), "") << number;
}

TEST(ProgramText, CommentsAndEmptyLinesAreSkipped) {
  EXPECT_EQ(ResultOf("# a comment\n\n \t \n  # another\n1 EN One\n# between\n1 DE Eins"), 2);
}

TEST(ProgramText, OrderOfLinesIsFree) {
  EXPECT_EQ(ResultOf("2 DE Zwei\n1 EN One\n1 DE Eins\n2 EN Two\n"), 4);
}

TEST(ProgramText, NumbersGoFromOneTo32767) {
  EXPECT_EQ(ResultOf("1 EN a\n1 DE b\n32767 EN c\n32767 DE d\n"), 4);
  EXPECT_EQ(ResultOf("0 EN a\n0 DE b\n"), load_result::kNotRecovered);
  EXPECT_EQ(ResultOf("32768 EN a\n32768 DE b\n"), load_result::kNotRecovered);
  EXPECT_EQ(ResultOf("-1 EN a\n-1 DE b\n"), load_result::kNotRecovered);
  EXPECT_EQ(ResultOf("99999999999 EN a\n99999999999 DE b\n"), load_result::kNotRecovered);
}

TEST(ProgramText, BlanksInsideATextAreKept) {
  EXPECT_EQ(TextOf("  two  blanks\t#here \t"), "two  blanks\t#here");
}

TEST(ProgramText, EscapesAreResolved) {
  EXPECT_EQ(TextOf("one\\ntwo"), "one\r\ntwo");
  EXPECT_EQ(TextOf("\\sframe\\s"), " frame ");
  EXPECT_EQ(TextOf("\\s"), " ");
  EXPECT_EQ(TextOf("back\\\\slash"), "back\\slash");
  EXPECT_EQ(TextOf("back\\\\nslash"), "back\\nslash");
  EXPECT_EQ(TextOf("C:\\Temp"), "C:\\Temp");
  EXPECT_EQ(TextOf("at the end \\"), "at the end \\");
}

TEST(ProgramText, LanguageMayBeInSmallLetters) {
  EXPECT_EQ(ResultOf("1 en One\n1 de Eins\n"), 2);
}

TEST(ProgramText, TabsSeparateAsBlanksDo) {
  EXPECT_EQ(ResultOf("\t1\tEN\tOne\n 1  DE  Eins\n"), 2);
}

TEST(ProgramText, AnyEditorsFileIsUnderstood) {
  const std::string utf16 = Utf16(u"\uFEFF1 EN One\n1 DE F\u00FCnf\n");
  const std::array<std::string_view, 5> files = {
      "1 EN One\n1 DE F\xC3\xBCnf\n",
      "\xEF\xBB\xBF"
      "1 EN One\r\n1 DE F\xC3\xBCnf\r\n",
      "1 EN One\r1 DE F\xC3\xBCnf",
      "1 EN One\n1 DE F\xFCnf\n",
      utf16,
  };
  for (const std::string_view file : files) {
    ProgramText text;
    TextSource source(file);
    EXPECT_EQ(text.Load(source), 2) << file;
    text.SetLanguage(Language::kGerman);
    EXPECT_EQ(text.GetText(1), "Fünf") << file;
  }
}

// What a faulty file gives.

TEST(ProgramText, FileWithoutALineIsEmpty) {
  EXPECT_EQ(MessageFor(""), "File is empty.");
  EXPECT_EQ(MessageFor("\xEF\xBB\xBF"), "File is empty.");
}

TEST(ProgramText, FileWithoutATextGivesNone) {
  EXPECT_EQ(MessageFor("# nothing but comments\n\n"), "No program text was read.");
  EXPECT_EQ(MessageFor("\n"), "No program text was read.");
}

TEST(ProgramText, DuplicateIsReportedWithItsLine) {
  std::string contents;
  for (int number = 1; number <= 5; ++number) {
    contents += std::to_string(number) + " EN a\n" + std::to_string(number) + " DE b\n";
  }
  contents += "# line 11\n5 EN again\n";
  EXPECT_EQ(ResultOf(contents), -1512);
  EXPECT_EQ(MessageFor(contents), "Duplicate in program text at line 12.");
}

TEST(ProgramText, DuplicateBehindLine500IsReportedWithItsLine) {
  EXPECT_EQ(MessageFor("1 EN a\n1 DE b\n" + std::string(998, '\n') + "1 EN a\n"),
            "Duplicate in program text at line 1001.");
}

TEST(ProgramText, DuplicateWithoutATextIsADuplicate) {
  EXPECT_EQ(MessageFor("1 EN a\n1 DE b\n1 DE\n"), "Duplicate in program text at line 3.");
}

TEST(ProgramText, NumberWithoutItsTextIsReportedWithItsLine) {
  EXPECT_EQ(MessageFor("1 EN a\n1 DE b\n2\n"), "Missing string at line 3.");
  EXPECT_EQ(MessageFor("\n1 EN\n1 DE b\n"), "Missing string at line 2.");
  EXPECT_EQ(MessageFor("1 EN  \t \n"), "Missing string at line 1.");
  EXPECT_EQ(MessageFor("1 EN a\n1 FR b\n"), "Missing string at line 2.");
}

TEST(ProgramText, NumberThatLacksALanguageIsReportedWithItsLine) {
  EXPECT_EQ(MessageFor("1 EN a\n1 DE b\n2 EN c\n3 EN d\n3 DE e\n"), "Missing string at line 3.");
  EXPECT_EQ(MessageFor("9 DE c\n1 DE a\n2 EN b\n"), "Missing string at line 1.");
}

TEST(ProgramText, FaultBehindLine500IsNotToldAtAWrongLine) {
  const std::string before(499, '\n');
  EXPECT_EQ(MessageFor(before + "1 EN\n"), "Missing string at line 500.");
  EXPECT_EQ(MessageFor(before + "\n1 EN\n"), "Text not recovered.");
  const std::string tooLong(1025, 'x');
  EXPECT_EQ(MessageFor(before + "1 EN " + tooLong), "String too long at line 500.");
  EXPECT_EQ(MessageFor(before + "\n1 EN " + tooLong), "Text not recovered.");
}

TEST(ProgramText, TextHasAtMost1024Characters) {
  std::string umlauts;
  for (int i = 0; i < 1024; ++i) umlauts += "ä";
  EXPECT_EQ(TextOf(umlauts), umlauts);
  EXPECT_EQ(MessageFor("# one\n1 EN " + umlauts + "ä\n"), "String too long at line 2.");
}

TEST(ProgramText, LengthCountsWhatEscapesStandFor) {
  const std::string text(1022, 'x');
  EXPECT_EQ(CharacterCount(TextOf(text + "\\n")), 1024U);
  EXPECT_EQ(CharacterCount(TextOf("x" + text + "\\\\")), 1024U);
  EXPECT_EQ(MessageFor("1 EN x" + text + "\\n\n"), "String too long at line 1.");
}

TEST(ProgramText, TextOfNoNumberIsNotRecovered) {
  EXPECT_EQ(MessageFor("1 EN a\n1 DE b\nand so on\n"), "Text not recovered.");
  EXPECT_EQ(MessageFor("1EN a\n"), "Text not recovered.");
  EXPECT_EQ(MessageFor(std::string_view("\0\1\2\3", 4)), "Text not recovered.");
}

TEST(ProgramText, FirstFaultCounts) {
  EXPECT_EQ(MessageFor("1 EN\nand so on\n"), "Missing string at line 1.");
  EXPECT_EQ(MessageFor("2 EN a\nand so on\n"), "Text not recovered.");
}

TEST(ProgramText, FileHasAtMostAMebibyte) {
  const std::string texts = "1 EN a\n1 DE b\n#";
  const std::string full = texts + std::string(kLargestProgramText - texts.size(), '#');
  EXPECT_EQ(ResultOf(full), 2);
  EXPECT_EQ(MessageFor(full + "#"), "Too much program text.");
}

TEST(ProgramText, EndlessFileIsReadNoFurtherThanItsLimit) {
  EndlessSource source;
  ProgramText text;
  EXPECT_EQ(text.Load(source), load_result::kTooMuch);
  EXPECT_LT(source.bytesGiven, 2 * kLargestProgramText);
}

TEST(ProgramText, FailingDiskIsAnErrorWhileReading) {
  FailingSource source{RunTimeError(RunTimeErrorNumber::kDeviceIo)};
  ProgramText text;
  EXPECT_EQ(LoadErrorMessage(text.Load(source), ""), "Error reading file.");
  EXPECT_EQ(text.GetText(1), "");
}

TEST(ProgramText, NoMemoryToReadTheFile) {
  FailingSource source{std::bad_alloc()};
  ProgramText text;
  EXPECT_EQ(LoadErrorMessage(text.Load(source), ""), "General memory allocation error.");
}

TEST(ProgramText, NoMemoryToKeepAText) {
  std::array<char, 4096> room{};
  std::pmr::monotonic_buffer_resource memory(room.data(), room.size(),
                                             std::pmr::null_memory_resource());
  ProgramText text(&memory);
  TextSource small("1 EN a\n1 DE b\n");
  EXPECT_EQ(text.Load(small), 2);
  const std::string contents = "1 EN " + std::string(1024, 'x') + "\n1 DE " +
                               std::string(1024, 'x') + "\n2 EN " + std::string(1024, 'x') +
                               "\n2 DE " + std::string(1024, 'x') + "\n";
  TextSource large(contents);
  EXPECT_EQ(LoadErrorMessage(text.Load(large), ""), "Particular memory allocation error.");
  EXPECT_EQ(text.GetText(1), "a");
}

TEST(ProgramText, FailureLeavesTheTextsFromBefore) {
  ProgramText text;
  TextSource good("1 EN One\n1 DE Eins\n");
  EXPECT_EQ(text.Load(good), 2);
  TextSource faulty("1 EN Another\n1 EN again\n");
  EXPECT_LT(text.Load(faulty), 0);
  EXPECT_EQ(text.GetText(1), "One");
}

TEST(ProgramText, LoadingAgainReplacesAllTexts) {
  ProgramText text;
  TextSource first("1 EN One\n1 DE Eins\n");
  EXPECT_EQ(text.Load(first), 2);
  TextSource second("2 EN Two\n2 DE Zwei\n");
  EXPECT_EQ(text.Load(second), 2);
  EXPECT_EQ(text.GetText(1), "");
  EXPECT_EQ(text.GetText(2), "Two");
}

// At start-up.

class LoadProgramTextTest : public testing::Test {
 protected:
  TemporaryFolder folder;
  ScopedVariable dataFolder{"QUILLOMAT_DATA", folder.Path()};
  ScriptedDesktop desktop;
  ProgramText text;

  void ExpectOneCriticalMessage(const std::string& message) {
    const MessageBox expected{message, "", MessageIcon::kCritical, MessageButtons::kOk,
                              MessageSeverity::kError};
    EXPECT_EQ(desktop.Messages(), std::vector<MessageBox>{expected});
  }
};

TEST_F(LoadProgramTextTest, GoodFileIsLoadedWithoutAWord) {
  (void)folder.Write("qlav_text.dat", "1 EN One\n1 DE Eins\n");
  EXPECT_TRUE(text.LoadProgramText("qlav_text.dat", desktop));
  EXPECT_EQ(text.GetText(1), "One");
  EXPECT_TRUE(desktop.Messages().empty());
}

TEST_F(LoadProgramTextTest, MissingFileEndsTheProgram) {
  EXPECT_FALSE(text.LoadProgramText("qlav_text.dat", desktop));
  ExpectOneCriticalMessage("Cannot open file containing program text.\r\n" +
                           folder / "qlav_text.dat");
}

TEST_F(LoadProgramTextTest, FolderOfThatNameEndsTheProgram) {
  (void)folder.Make("qlav_text.dat");
  EXPECT_FALSE(text.LoadProgramText("qlav_text.dat", desktop));
  ExpectOneCriticalMessage("Cannot open file containing program text.\r\n" +
                           folder / "qlav_text.dat");
}

TEST_F(LoadProgramTextTest, PathIsShownInFullAndWithoutDoubledSeparator) {
  const ScopedVariable withSeparator("QUILLOMAT_DATA", folder.Path() + "/");
  EXPECT_FALSE(text.LoadProgramText("qlav_text.dat", desktop));
  ExpectOneCriticalMessage("Cannot open file containing program text.\r\n" +
                           folder / "qlav_text.dat");
}

TEST_F(LoadProgramTextTest, RelativeDataFolderCountsFromTheProgramsAndIsShownFromTheRoot) {
  const ScopedVariable relative("QUILLOMAT_DATA", "no such folder");
  EXPECT_FALSE(text.LoadProgramText("qlav_text.dat", desktop));
  ExpectOneCriticalMessage("Cannot open file containing program text.\r\n" +
                           JoinPath(JoinPath(ProgramFolder(), "no such folder"), "qlav_text.dat"));
}

TEST_F(LoadProgramTextTest, DuplicateOnLine12EndsTheProgram) {
  std::string contents = "1 EN One\r\n1 DE Eins\r\n";
  for (int line = 3; line <= 11; ++line) contents += "# another line\r\n";
  (void)folder.Write("qlav_text.dat", contents + "1 EN Another\r\n");
  EXPECT_FALSE(text.LoadProgramText("qlav_text.dat", desktop));
  ExpectOneCriticalMessage("Duplicate in program text at line 12.");
}

TEST_F(LoadProgramTextTest, EmptyFileEndsTheProgram) {
  (void)folder.Write("qlav_text.dat", "");
  EXPECT_FALSE(text.LoadProgramText("qlav_text.dat", desktop));
  ExpectOneCriticalMessage("File is empty.");
}

}  // namespace
}  // namespace quillomat
