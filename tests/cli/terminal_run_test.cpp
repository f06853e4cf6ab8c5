#include "cli/terminal_run.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <sstream>

#include "cli/skipped_lines.h"
#include "cli/standard_output.h"
#include "cli/terminal_fixture.h"
#include "support/scripted_desktop.h"
#include "text/program_text.h"

namespace quillomat {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class TerminalRunTest : public TerminalFixture {
 protected:
  /// More than one look at the clock, and at the wish to stop.
  static std::string LongText() {
    std::string text;
    for (int i = 0; i < 20'000; ++i) text.append("cat dog bird\n");
    return text;
  }
};

TEST_F(TerminalRunTest, StandardInputIsCountedLikeAFile) {
  input = "cat dog\nThe caf\xC3\xA9 -- a well-known cat\n" + LongText();
  const std::string path = folder.Write("book.txt", input);
  ASSERT_EQ(Run({"--file", path}), 0) << err;
  const std::string list = out;
  EXPECT_THAT(list, HasSubstr("20002  cat"));
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"-"}, {"--file", "-"}, {path}}) {
    EXPECT_EQ(Run(arguments), 0) << err;
    EXPECT_EQ(out, list) << arguments.front();
    EXPECT_EQ(err, "");
  }
}

TEST_F(TerminalRunTest, TextsAreReadInTheEncodingThatIsNamed) {
  input = "\xC4\xC5\xCC\xCF";
  const std::string path = folder.Write("a.txt", input);
  for (const std::vector<std::string>& how :
       {std::vector<std::string>{path}, {"-"}, {"--text", path}}) {
    std::vector<std::string> arguments = how;
    arguments.insert(arguments.end(), {"--encoding", "koi8-r", "--letters", "all", "--format=8"});
    EXPECT_EQ(Run(arguments), 0);
    EXPECT_THAT(out, HasSubstr("дело\n"));
    EXPECT_EQ(err, "");
  }
  EXPECT_EQ(Run({path, "--encoding", "klingon"}), 2);
  EXPECT_THAT(err, HasSubstr("--encoding klingon: takes"));
  EXPECT_THAT(err, HasSubstr("as-found, guess, UTF-8, UTF-16, Windows-1250"));
  EXPECT_THAT(err, HasSubstr("UTF-16BE, UTF-16LE\n"));
}

TEST_F(TerminalRunTest, FilesFoldersAndStandardInputAreCountedTogether) {
  input = "cat";
  static_cast<void>(folder.Write("many/b.txt", "cat dog"));
  const std::string path = folder.Write("a.txt", "bird");
  EXPECT_EQ(Run({path, folder / "many", "-", "--format", "word frequency"}), 0) << err;
  EXPECT_EQ(out, "  Word     Freq\n  cat         2\n  bird        1\n  dog         1\n");
}

TEST_F(TerminalRunTest, PathsServeTheFormatsThatNameFiles) {
  input = "cat";
  const std::string path = folder.Write("a.txt", "cat cat");
  EXPECT_EQ(Run({path, "-", "--only-words", "cat", "--format", "13"}), 0) << err;
  EXPECT_EQ(out, "\ncat\n    2 " + path + "\n    1 -\n\n");
  EXPECT_EQ(Run({path, "--only-words", "cat", "--format", "11"}), 0) << err;
  EXPECT_EQ(Run({path, "--format", "13"}), 1);
  EXPECT_THAT(err, HasSubstr("Invalid display format: "));
  EXPECT_EQ(Run({"--file", path, "--only-words", "cat", "--format", "13"}), 1);
  EXPECT_THAT(err, EndsWith("quillomat-cli: here formats 11 to 13 go with --folder, and with any "
                            "PATH, if --only or --only-words is given\n"));
  EXPECT_EQ(Run({path, "--only-words", "cat", "--format", "11", "--window-text"}), 1);
  EXPECT_THAT(err, EndsWith("quillomat-cli: here formats 11 to 13 go with --folder, and without "
                            "--window-text with any PATH, if --only or --only-words is given\n"));
}

TEST_F(TerminalRunTest, PathsServeTheColumnsThatNameFiles) {
  const std::vector<std::string> texts = {folder.Write("a.txt", "cat cat"),
                                          folder.Write("b.txt", "cat dog")};
  const std::string table = folder / "table.csv";
  EXPECT_EQ(Run({texts[0], texts[1], "--only-words", "cat", "--export", table, "--columns",
                 "word,files"}),
            0)
      << err;
  EXPECT_EQ(ContentsOf(table), "word,files\r\ncat,2\r\n");
  EXPECT_EQ(Run({texts[0], texts[1], "--export", table, "--overwrite", "--columns", "word,files"}),
            1);
  EXPECT_THAT(err, HasSubstr("known of folders and of paths with count-only words"));
}

TEST_F(TerminalRunTest, ExportsTellTheNumberOfFilesWhereSeveralAreCounted) {
  const std::vector<std::string> texts = {folder.Write("texts/a.txt", "cat cat"),
                                          folder.Write("texts/b.txt", "cat dog")};
  const auto headOf = [this](std::vector<std::string> arguments) {
    arguments.insert(arguments.end(), {"--only-words", "cat", "--export", "-"});
    EXPECT_EQ(Run(arguments), 0) << err;
    return out.substr(0, out.find_first_of("\r\n"));
  };
  const std::string usual = "rank,word,frequency,percent,per-million,cumulative,length";
  EXPECT_EQ(headOf({folder / "texts"}), usual + ",files");
  EXPECT_EQ(headOf({texts[0], texts[1]}), usual + ",files");
  EXPECT_EQ(headOf({texts[0]}), usual);
}

TEST_F(TerminalRunTest, ExportsNameTheTextSoThatItCanBeCountedAgain) {
  const std::string one = folder.Write("a, b.txt", "cat");
  const std::string other = folder.Write("c.txt", "cat");
  static_cast<void>(folder.Make("x"));
  const auto settingsOf = [this](std::vector<std::string> arguments) {
    arguments.insert(arguments.end(), {"--export", "-", "--export-format", "json"});
    EXPECT_EQ(Run(arguments), 0) << err;
    return out.substr(0, out.find('\n', out.find("settings")));
  };
  input = "cat";
  EXPECT_THAT(settingsOf({folder / "x/../a, b.txt", "-", other}),
              testing::AllOf(HasSubstr(R"("paths":[")"), HasSubstr(R"(a, b.txt","-",")"),
                             HasSubstr(R"(c.txt"])"), testing::Not(HasSubstr(".."))));
  EXPECT_THAT(settingsOf({"-"}), HasSubstr(R"("paths":["-"])"));
  EXPECT_THAT(settingsOf({"--text", one}), HasSubstr(R"(a, b.txt",)"));
  EXPECT_THAT(settingsOf({"--text", "-"}), HasSubstr(R"("text":"-")"));
  EXPECT_THAT(settingsOf({"--folder", folder.Path()}), HasSubstr(R"("folder":")"));
}

TEST_F(TerminalRunTest, CountOnlyWordsThatGiveNoneAreTold) {
  const std::string text = folder.Write("a.txt", "cat dog");
  const std::string words = folder.Write("words.txt", "// none\r\n");
  EXPECT_EQ(Run({text, "--only", words, "--export", "-", "--export-format", "json"}), 0) << err;
  EXPECT_THAT(err,
              EndsWith("Note: " + words +
                       " gives no count-only word that can be counted; all words are counted.\n"));
  EXPECT_THAT(out, HasSubstr("\"dog\""));
  EXPECT_THAT(out, testing::Not(HasSubstr("\"only\"")));
  EXPECT_EQ(Run({text, "--only-words", "..."}), 0) << err;
  EXPECT_EQ(err,
            "Note: --only-words gives no count-only word that can be counted; all words are "
            "counted.\n");
  EXPECT_EQ(Run({text, "--only", words, "--only-words", "cat"}), 0) << err;
  EXPECT_THAT(err, testing::Not(HasSubstr("Note")));
}

TEST_F(TerminalRunTest, CountOnlyWordsThatNoTextHoldsAreTold) {
  const std::string text = folder.Write("a.txt", "cat can't !! & dog");
  for (const char* words : {"!!", "&", "can't"}) {
    EXPECT_EQ(Run({text, "--only-words", words}), 1);
    EXPECT_THAT(err, StartsWith("Note: under these settings no text holds any of the count-only "
                                "words as they are typed; none is counted.\n"))
        << words;
  }
  EXPECT_EQ(Run({text, "--only-words", "!! cat"}), 0) << err;
  EXPECT_EQ(err, "");
  const std::string words = folder.Write("words.txt", "dog\r\n");
  EXPECT_EQ(Run({text, "--only-words", "!!", "--only", words}), 0) << err;
  EXPECT_THAT(err, Not(HasSubstr("Note")));
  EXPECT_EQ(Run({text, "--only-words", "can't", "--apostrophes"}), 0) << err;
  EXPECT_EQ(err, "");
}

TEST_F(TerminalRunTest, AWordsFileOfAStateThatIsAwayIsNamed) {
  const std::string text = folder.Write("a.txt", "cat dog");
  const std::string words = folder.Write("words.txt", "cat\r\n");
  for (const char* option : {"--only", "--ignore"}) {
    const std::string away = folder.Write("away.txt", "cat\r\n");
    const std::string state = folder / option;
    ASSERT_EQ(Run({text, option, away, "--save-state", state}), 0) << err;
    std::filesystem::remove(away);
    EXPECT_EQ(Run({text, "--state", state}), 1);
    const std::string box =
        option == std::string("--ignore") ? "txbWordsFile(0)" : "txbWordsFile(1)";
    EXPECT_EQ(err, "quillomat-cli: the words file " + away +
                       ", which the settings name, does not exist; " + option +
                       " FILE names another, --set '" + box + "=' none\n");
    EXPECT_EQ(Run({text, "--state", state, option, words}), 0) << err;
    EXPECT_EQ(Run({text, "--state", state, "--set", box + "="}), 0) << err;
  }
}

TEST_F(TerminalRunTest, FilesAreListedThoughAWordsFileOfTheStateIsAway) {
  const std::string text = folder.Write("texts/a.txt", "cat dog");
  const std::string away = folder.Write("away.txt", "cat\r\n");
  const std::string state = folder / "state";
  const std::string again = folder / "again";
  ASSERT_EQ(Run({text, "--only", away, "--save-state", state}), 0) << err;
  std::filesystem::remove(away);
  const std::string texts = folder / "texts";
  EXPECT_EQ(Run({"--folder", texts, "--list-files", "--state", state, "--save-state", again}), 0)
      << err;
  EXPECT_THAT(out, HasSubstr("a.txt"));
  EXPECT_THAT(ContentsOf(again), HasSubstr(away));
  EXPECT_EQ(Run({"--folder", texts, "--list-files", "--only", away}), 1) << "named here";
}

TEST_F(TerminalRunTest, AnInterruptionBehindTheCountIsTold) {
  input = "cat dog";
  interruption = [this] { return countsOver > 0 ? 130 : 0; };
  EXPECT_EQ(Run({"-", "--list-on-interrupt", "--format", "word"}), 130);
  EXPECT_THAT(out, HasSubstr("cat\n"));
  EXPECT_EQ(err, "Interrupted: the whole text was read by then\n");
}

TEST_F(TerminalRunTest, AFileThatIsNoStateIsToldSo) {
  const std::string text = folder.Write("a.txt", "cat dog");
  EXPECT_EQ(Run({text, "--state", text}), 1);
  EXPECT_EQ(err, "quillomat-cli: --state " + text +
                     " cannot be used as a state: Input past end of file; it is not what "
                     "--save-state and the window write\n");
}

TEST_F(TerminalRunTest, WordsThatAreBothCountOnlyAndToIgnoreAreTold) {
  const std::string text = folder.Write("a.txt", "cat dog");
  EXPECT_EQ(Run({text, "--only-words", "cat dog", "--ignore-words", "dog"}), 0) << err;
  EXPECT_EQ(err, "Note: 1 word to ignore is a count-only word, too; it is counted.\n");
  EXPECT_THAT(out, HasSubstr("dog"));
  const std::string words = folder.Write("words.txt", "cat\r\n");
  EXPECT_EQ(Run({text, "--only-words", "cat dog", "--ignore", words, "--ignore-words", "dog emu"}),
            0)
      << err;
  EXPECT_THAT(err,
              EndsWith("Note: 2 words to ignore are count-only words, too; they are counted.\n"));
  EXPECT_EQ(Run({text, "--only-words", "cat", "--ignore-words", "dog"}), 0) << err;
  EXPECT_EQ(err, "");
}

TEST_F(TerminalRunTest, OfAllLettersListsMeanWordsInEveryLetterCase) {
  const std::string text = folder.Write("a.txt", "της ΤΗΣ Της τής");
  EXPECT_EQ(Run({text, "--letters", "all", "--only-words", "ΤΗΣ", "--ignore-words", "της"}), 0);
  EXPECT_EQ(err, "Note: 1 word to ignore is a count-only word, too; it is counted.\n");
  EXPECT_THAT(out, HasSubstr(" 3  της"));
  const std::string words = folder.Write("words.txt", "ΤΗΣ\r\n");
  EXPECT_EQ(Run({text, "--letters", "all", "--ignore", words}), 0) << err;
  EXPECT_THAT(out, HasSubstr(" 1  τής"));
  EXPECT_THAT(out, Not(HasSubstr("της")));
}

TEST_F(TerminalRunTest, OnlyListsOfFilesHaveALimitOfOccurrencesInOne) {
  std::string cats;
  for (int i = 0; i < 32'768; ++i) cats += "cat\n";
  const std::string text = folder.Write("texts/a.txt", cats);
  const std::vector<std::string> only = {folder / "texts", "--only-words", "cat"};
  const auto run = [&](const std::vector<std::string>& more) {
    std::vector<std::string> arguments = only;
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Run(arguments);
  };
  EXPECT_EQ(run({"--format", "8"}), 0) << err;
  EXPECT_EQ(run({"--export", "-", "--columns", "word,file,frequency"}), 0) << err;
  EXPECT_THAT(out, HasSubstr("cat," + text + ",32768"));
  EXPECT_EQ(run({"--format", "11"}), 1);
  EXPECT_THAT(err, HasSubstr("more than 32,767 times in"));
}

TEST_F(TerminalRunTest, SkippedItemsThatAreNotKeptAreNumbered) {
  std::ostringstream told;
  ScriptedDesktop desktop;
  const ProgramText text;
  const Messages messages(desktop, text);
  PrintSkipped(told, {"a.txt: gone", "b.txt: gone"}, 1'236, messages);
  EXPECT_EQ(told.str(), "Skipped: a.txt: gone\nSkipped: b.txt: gone\nSkipped: " +
                            messages.Grouped(1'234) + " more\n");
}

TEST_F(TerminalRunTest, APathOfAFolderIsThatFolder) {
  static_cast<void>(folder.Write("many/a.txt", "cat"));
  const std::vector<std::string> format = {"--only-words", "cat", "--format", "12"};
  std::vector<std::string> byOption = {"--folder", folder / "many"};
  byOption.insert(byOption.end(), format.begin(), format.end());
  ASSERT_EQ(Run(byOption), 0) << err;
  const std::string list = out;
  EXPECT_THAT(list, HasSubstr("{Folder}"));
  std::vector<std::string> byPath = {folder / "many"};
  byPath.insert(byPath.end(), format.begin(), format.end());
  EXPECT_EQ(Run(byPath), 0) << err;
  EXPECT_EQ(out, list);
}

TEST_F(TerminalRunTest, TheExtensionsOfASettingAreForFilesOfFolders) {
  static_cast<void>(folder.Write("many/a.txt", "cat"));
  static_cast<void>(folder.Write("many/b.md", "dog"));
  const std::string named = folder.Write("c.md", "bird");
  EXPECT_EQ(Run({folder / "many", named, "--only-extensions", "txt", "--format", "word"}), 0);
  EXPECT_THAT(out, testing::EndsWith("\nbird\ncat\n"));
  EXPECT_EQ(Run({folder / "many", "--only-extensions", "pdx"}), 1);
  EXPECT_THAT(err, HasSubstr("no scanable files of the specified type were found in "));
}

TEST_F(TerminalRunTest, APathThatIsMissingStopsAll) {
  const std::string path = folder.Write("a.txt", "bird");
  EXPECT_EQ(Run({path, folder / "missing.txt"}), 1);
  EXPECT_EQ(err, "quillomat-cli: " + folder / "missing.txt" + " does not exist; check the path\n");
  EXPECT_EQ(out, "");
}

TEST_F(TerminalRunTest, WhatIsNamedAndHoldsNoTextIsTold) {
  const std::string path = folder.Write("a.txt", "bird");
  const std::string empty = folder.Write("empty.txt", "");
  const std::string binary = folder.Write("binary.txt", std::string("a\1b", 3));
  static_cast<void>(folder.Write("many/too.txt", "a\1b"));
  EXPECT_EQ(Run({path, empty, binary, folder / "many"}), 0);
  EXPECT_EQ(err, "Skipped: " + empty + " is empty; there is nothing to count\nSkipped: " + binary +
                     " does not consist solely of text; convert it to text first\n"
                     "Note: 1 file was left out: no text or empty; --report names it.\n");
}

TEST_F(TerminalRunTest, WhatAFolderHoldsBesidesTextIsToldInOneLine) {
  static_cast<void>(folder.Write("many/a.txt", "bird"));
  static_cast<void>(folder.Write("many/b.txt", "a\1b"));
  static_cast<void>(folder.Write("many/c.txt", ""));
  static_cast<void>(folder.Write("many/d.pdf", "bee"));
  const std::string note =
      "Note: 3 files were left out: no text or empty, .pdf; --report names them.\n";
  EXPECT_EQ(Run({folder / "many"}), 0);
  EXPECT_EQ(err, note);
  EXPECT_EQ(
      Run({"--folder", folder / "many", "--window-text", "--answer", "Multiple files/folders=OK"}),
      0);
  EXPECT_THAT(err, HasSubstr(note));
}

TEST_F(TerminalRunTest, ASingleTextThatCannotBeCountedIsNamed) {
  EXPECT_EQ(Run({"-"}), 1);
  EXPECT_EQ(err, "quillomat-cli: standard input is empty; there is nothing to count\n");
  input = std::string("a\1b", 3);
  EXPECT_EQ(Run({"-"}), 1);
  EXPECT_THAT(err, StartsWith("Invalid input file: "));
  EXPECT_THAT(err, HasSubstr("quillomat-cli: there is no list of standard input\n"));
  input = "123";
  EXPECT_EQ(Run({"-"}), 1);
  EXPECT_THAT(err, HasSubstr("No words"));
}

TEST_F(TerminalRunTest, NoFileThatIsCountedIsWrittenOver) {
  const std::string path = folder.Write("a.txt", "bird");
  const std::string inFolder = folder.Write("many/b.txt", "cat");
  for (const std::string& output : {path, inFolder, folder / "many/new.txt"}) {
    EXPECT_EQ(Run({path, folder / "many", "--output", output, "--overwrite"}), 1) << output;
    EXPECT_THAT(err, HasSubstr("The output file cannot be "));
  }
  EXPECT_EQ(ContentsOf(path) + ContentsOf(inFolder), "birdcat");
}

TEST_F(TerminalRunTest, TheFirstWordsAreListedOnly) {
  input = "ant ant ant owl owl eel";
  EXPECT_EQ(Run({"-", "--top", "2", "--format", "word"}), 0);
  EXPECT_EQ(out, "Word (longest has 3 characters)\nant\nowl\n");
  EXPECT_EQ(Run({"-", "--top", "2", "--format", "9"}), 0);
  EXPECT_EQ(out, "ant, owl");
  const std::string list = folder / "list.txt";
  EXPECT_EQ(Run({"-", "--top", "1", "--format", "7", "--output", list}), 0) << err;
  EXPECT_EQ(TextOf(list), "  Word     Freq\n  ant         3\n");
}

TEST_F(TerminalRunTest, ATextThatIsTooLongForTheClipboardIsAPath) {
  input = LongText();
  EXPECT_EQ(Run({"--text", "-"}), 1);
  EXPECT_THAT(err, HasSubstr("Too much clipboard text: "));
  EXPECT_THAT(err, HasSubstr("quillomat-cli: a text of any size is counted as a path: "
                             "quillomat-cli -\n"));
}

TEST_F(TerminalRunTest, AnInterruptionSaysThatExportsAreOfAPart) {
  input = LongText();
  int looks = 0;
  interruption = [&looks] { return ++looks > 3 ? 130 : 0; };
  EXPECT_EQ(Run({"-", "--list-on-interrupt", "--export", folder / "part.csv"}), 130);
  EXPECT_THAT(err, HasSubstr("Interrupted: list and exports are of what was counted until then"));
}

TEST_F(TerminalRunTest, AnInterruptionListsWhatWasCounted) {
  input = LongText();
  int looks = 0;
  interruption = [&looks] { return ++looks > 3 ? 130 : 0; };
  EXPECT_EQ(Run({"-", "--list-on-interrupt", "--format", "word"}), 130);
  EXPECT_THAT(out, HasSubstr("cat\n"));
  EXPECT_THAT(err, HasSubstr("Interrupted: "));
}

TEST_F(TerminalRunTest, ProgressShowsOnATerminalWhenACountIsLong) {
  input = LongText();
  EXPECT_EQ(Run({"-"}), 0);
  EXPECT_EQ(err, "");
  stepPerLook = std::chrono::milliseconds(600);
  EXPECT_EQ(Run({"-"}), 0);
  EXPECT_EQ(err, "") << "nobody looks";
  errIsTerminal = true;
  EXPECT_EQ(Run({"-"}), 0);
  EXPECT_THAT(err, HasSubstr("/s  0:0"));
  EXPECT_THAT(err, testing::EndsWith(" \r")) << "the line is empty at the end";
  stepPerLook = std::chrono::milliseconds(0);
  EXPECT_EQ(Run({"-"}), 0);
  EXPECT_EQ(err, "") << "it was not long";
}

TEST_F(TerminalRunTest, ProgressOfFilesHasABar) {
  const std::string path = folder.Write("a.txt", LongText());
  stepPerLook = std::chrono::milliseconds(600);
  for (const std::vector<std::string>& text :
       {std::vector<std::string>{"--file", path}, {path}, {folder.Path()}}) {
    std::vector<std::string> arguments = text;
    arguments.emplace_back("--progress");
    EXPECT_EQ(Run(arguments), 0);
    EXPECT_THAT(err, StartsWith("[")) << text.front();
    EXPECT_THAT(err, HasSubstr(" of 254 KB  ")) << text.front();
    EXPECT_THAT(err, HasSubstr(" left\n")) << text.front();
  }
}

TEST(MessageColours, AreForTerminalsThatShowThem) {
  std::stringbuf plain;
  std::ostream(&plain) << kOwnError << "no\n";
  EXPECT_EQ(plain.str(), "quillomat-cli: no\n");
  for (const bool coloured : {false, true}) {
    std::stringbuf target;
    EscapingBuffer buffer(target, coloured);
    std::ostream(&buffer) << kOwnError << "\x1B[2m\n";
    EXPECT_EQ(target.str(), coloured ? "\x1B[1;31mquillomat-cli: \x1B[0m\\x1B[2m\n"
                                     : "quillomat-cli: \\x1B[2m\n");
  }
}

}  // namespace
}  // namespace quillomat
