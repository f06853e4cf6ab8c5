#include "cli/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "engine/unicode_traits.h"

namespace quillomat {
namespace {

using testing::HasSubstr;

struct Parsed {
  ParsedCommandLine result;
  std::string out;
  std::string err;
};

Parsed Parse(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "quillomat-cli");
  std::ostringstream out;
  std::ostringstream err;
  Parsed parsed;
  parsed.result = ParseCommandLine(arguments, out, err);
  parsed.out = out.str();
  parsed.err = err.str();
  return parsed;
}

void ExpectWrong(const std::vector<std::string>& arguments, const std::string& named) {
  const Parsed parsed = Parse(arguments);
  EXPECT_EQ(parsed.result.exitStatus, 2);
  EXPECT_THAT(parsed.err, HasSubstr(named));
  EXPECT_EQ(parsed.err.find('\n'), parsed.err.size() - 1) << "one line: " << parsed.err;
  EXPECT_EQ(parsed.out, "");
}

TEST(CommandLine, TakesEveryOption) {
  const Parsed parsed =
      Parse({"--folder", "texts", "--subfolders", "--order", "alphabetical", "--format", "7",
             "--output", "list.txt", "--set", "chkDropFinalS=1", "--set", "txbFolder=a=b",
             "--summary", "--window-text", "--answer", "Problem=OK"});
  ASSERT_FALSE(parsed.result.exitStatus) << parsed.err;
  const CommandLine& options = parsed.result.options;
  EXPECT_EQ(options.folder, "texts");
  std::vector<std::string> given;
  for (const GivenOption& option : options.settings) {
    given.push_back(std::string(option.setting->option.name) + " " + option.values.at(0));
  }
  EXPECT_THAT(given, testing::UnorderedElementsAre("--subfolders true", "--order alphabetical",
                                                   "--format 7", "--output list.txt"));
  ASSERT_EQ(options.set.size(), 2U);
  EXPECT_EQ(options.set[1], std::make_pair(std::string("txbFolder"), std::string("a=b")));
  ASSERT_EQ(options.answers.size(), 1U);
  EXPECT_TRUE(options.summary);
  EXPECT_TRUE(options.windowText);
}

TEST(CommandLine, AnEmptyArgumentIsRefusedWhereverItStands) {
  ExpectWrong({"--file", "a.txt", "", "--output", "o"}, "argument 3 is empty");
  ExpectWrong({""}, "argument 1 is empty");
  ExpectWrong({"--file", ""}, "argument 2 is empty");
  ExpectWrong({"--file", "a.txt", "--set", ""}, "argument 4 is empty");
}

TEST(CommandLine, NulBytesEndTheLinesOfListsOnly) {
  EXPECT_TRUE(Parse({"--file", "a", "--null"}).result.options.null);
  ExpectWrong({"--file", "a", "--null", "--window-text"}, "--null");
  ExpectWrong({"--folder", "a", "--null", "--list-files"}, "--null");
}

TEST(CommandLine, TakesANumberOfThreads) {
  const Parsed parsed = Parse({"--file", "a", "--threads", "4"});
  ASSERT_FALSE(parsed.result.exitStatus) << parsed.err;
  EXPECT_EQ(parsed.result.options.threads, 4U);
  EXPECT_EQ(Parse({"--file", "a"}).result.options.threads, std::nullopt);
  ExpectWrong({"--file", "a", "--threads", "0"}, "--threads");
  ExpectWrong({"--file", "a", "--threads", "65"}, "--threads");
  ExpectWrong({"--file", "a", "--threads", "two"}, "--threads");
}

TEST(CommandLine, TakesPathsInTheirOrder) {
  const Parsed parsed = Parse({"b.txt", "--top", "3", "-", "a", "--", "--odd"});
  ASSERT_FALSE(parsed.result.exitStatus) << parsed.err;
  EXPECT_THAT(parsed.result.options.paths, testing::ElementsAre("b.txt", "-", "a", "--odd"));
  EXPECT_EQ(parsed.result.options.top, 3);
  ExpectWrong({"a", "--file", "b"}, "more than one text");
  ExpectWrong({"a", "--top", "0"}, "--top");
  EXPECT_FALSE(Parse({"a", "--subfolders"}).result.exitStatus);
}

TEST(CommandLine, WhatACountInTheWindowCannotDoIsRefused) {
  ExpectWrong({"a", "--top", "3", "--window-text"}, "--top");
  ExpectWrong({"a", "--progress", "--window-text"}, "--progress");
  ExpectWrong({"--text", "a", "--list-on-interrupt"}, "--list-on-interrupt");
  const Parsed parsed = Parse({"a", "--progress", "--list-on-interrupt"});
  EXPECT_TRUE(parsed.result.options.progress);
  EXPECT_TRUE(parsed.result.options.listOnInterrupt);
}

TEST(CommandLine, WhatWouldHaveNoEffectIsRefused) {
  ExpectWrong({"--folder", "a", "--list-files", "--output", "b"}, "--output: does not go with");
  ExpectWrong({"--folder", "a", "--list-files", "--summary"}, "--summary: does not go with");
  ExpectWrong({"a", "--output", "b", "--disable-output"}, "--disable-output: contradicts --output");
  ExpectWrong({"a", "--top", "3", "--window-text"}, "--top: does not go with --window-text");
  ExpectWrong({"--explain", "a", "--null"}, "--null: does not go with --explain");
  ExpectWrong({"--explain", "a", "--subfolders"}, "--subfolders: does not go with --explain");
  ExpectWrong({"a", "--state", "b", "--user-settings"}, "--state: does not go with --user");
  EXPECT_FALSE(Parse({"a", "--no-overwrite", "--output", "b"}).result.exitStatus);
}

TEST(CommandLine, DashIsStandardInput) {
  const Parsed parsed = Parse({"--text", "-"});
  ASSERT_FALSE(parsed.result.exitStatus) << parsed.err;
  EXPECT_EQ(parsed.result.options.text, "-");
}

TEST(CommandLine, WantsExactlyOneSource) {
  ExpectWrong({}, "--file");
  ExpectWrong({"--file", "a", "--folder", "b"}, "--file");
}

TEST(CommandLine, UnknownOptionIsNamed) {
  ExpectWrong({"--file", "a", "--bogus"}, "--bogus");
}

TEST(CommandLine, OptionWithoutItsValueIsNamed) {
  ExpectWrong({"--file"}, "--file");
}

TEST(CommandLine, AnOptionIsNoValueUnlessItIsMeant) {
  ExpectWrong({"a", "--output", "--summary"},
              "--output: PATH is missing before --summary (if that is it: --output=--summary)");
  EXPECT_EQ(Parse({"--explain=--summary"}).result.options.explain, "--summary");
  EXPECT_EQ(Parse({"a", "--comments", "--"}).result.options.settings.at(0).values.at(0), "--");
}

TEST(CommandLine, AMissingValueIsCalledByWhatItIs) {
  ExpectWrong({"--file"}, "--file: PATH|- is missing (");
  ExpectWrong({"--file="}, "--file: PATH|- is missing (");
  ExpectWrong({"a", "--top"}, "--top: N is missing (");
}

TEST(CommandLine, AValueWhereNoneIsTakenIsNotPassedOver) {
  ExpectWrong({"a", "--summary=3"}, "--summary=3: --summary takes no value");
  ExpectWrong({"a", "--no-numerals=false"}, "--no-numerals takes no value");
  ExpectWrong({"a", "--help=x"}, "--help takes no value");
}

TEST(CommandLine, WhatIsGivenTwiceIsNamed) {
  ExpectWrong({"--file", "a", "--file", "b"}, "--file is given twice");
  ExpectWrong({"a", "--columns=word", "--columns", "rank"}, "--columns is given twice");
  EXPECT_EQ(Parse({"a", "--export", "b.csv", "--export=c.csv"}).result.options.exports.size(), 2U);
}

TEST(CommandLine, ASlipOfThePenIsSetRight) {
  ExpectWrong({"a", "--sumary"}, "--sumary: there is no such option; is it --summary?");
  ExpectWrong({"a", "--outptu=b"}, "is it --output?");
  ExpectWrong({"-x"}, "-x: there is no such option; a path that begins with - is given after --");
}

TEST(CommandLine, ANumberOutOfRangeIsNamed) {
  ExpectWrong({"a", "--top", "0"}, "--top: '0' is no whole number from 1 on");
  ExpectWrong({"a", "--threads", "65"}, "--threads: '65' is no whole number from 1 to 64");
}

TEST(CommandLine, TwoTextsAreBothNamed) {
  ExpectWrong({"a", "--file", "b"}, "more than one text (a, --file b)");
}

TEST(CommandLine, SettingWithoutEqualsSignIsNamed) {
  ExpectWrong({"--file", "a", "--set", "chkDropFinalS"}, "chkDropFinalS");
}

TEST(CommandLine, FolderOptionsGoWithFolderOnly) {
  ExpectWrong({"--file", "a", "--subfolders"}, "--subfolders");
  EXPECT_FALSE(Parse({"--file", "a", "--no-subfolders"}).result.exitStatus);
  ExpectWrong({"--file", "a", "--list-files"}, "--list-files");
}

TEST(CommandLine, TakesOptionsOfState) {
  const Parsed parsed = Parse({"--file", "a", "--state", "b.qlm", "--save-state", "c.qlm"});
  ASSERT_FALSE(parsed.result.exitStatus) << parsed.err;
  EXPECT_EQ(parsed.result.options.state, "b.qlm");
  EXPECT_EQ(parsed.result.options.saveState, "c.qlm");
  EXPECT_TRUE(Parse({"--file", "a", "--user-settings"}).result.options.userSettings);
  ExpectWrong({"--file", "a", "--state", "b.qlm", "--user-settings"}, "--state");
}

TEST(CommandLine, HelpAndVersionGoToStandardOutput) {
  const Parsed help = Parse({"--help"});
  EXPECT_EQ(help.result.exitStatus, 0);
  EXPECT_THAT(help.out, HasSubstr("--set"));
  EXPECT_THAT(help.out, HasSubstr("Exit status"));
  EXPECT_EQ(help.err, "");
  EXPECT_EQ(Parse({"-h"}).out, help.out);
  EXPECT_THAT(help.out, HasSubstr("\n  -h, --help "));
  const Parsed version = Parse({"--version"});
  EXPECT_EQ(version.result.exitStatus, 0);
  EXPECT_EQ(version.out, "quillomat-cli 7.07 (Unicode " + UnicodeVersion() + ")\n");
}

}  // namespace
}  // namespace quillomat
