// The counter on many files: a folder, a list of paths.
#include <algorithm>
#include <gmock/gmock.h>
#include <new>

#include "base/run_time_error.h"
#include "sources/counter_fixture.h"
#include "support/chunked_source.h"
#include "system/file_system.h"

namespace quillomat {
namespace {

using testing::ElementsAre;

class ManyFiles : public CounterFixture {
 protected:
  ManyFiles() {
    Put("a.txt", "cat dog");
    Put("b.txt", "cat");
    Put("sub/c.txt", "fox");
  }
  void Put(std::string_view name, std::string_view contents) {
    static_cast<void>(folder.Write(name, contents));
  }
  [[nodiscard]] TextOfFolder Whole() const { return {folder.Path(), true, {}}; }
};

TEST_F(ManyFiles, OfAFolderAreCountedTogether) {
  const CountResult result = Run(Whole());
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(WordsOf(result), "cat*2 dog fox");
  EXPECT_EQ(result.files, 3);
  EXPECT_EQ(result.folders, 2);
  EXPECT_TRUE(result.reports.empty());
  EXPECT_THAT(observer.events,
              ElementsAre("checked", "scan", "met a.txt", "begins a.txt", "ends a.txt", "met b.txt",
                          "begins b.txt", "ends b.txt", "met c.txt", "begins c.txt", "ends c.txt"));
}

TEST_F(ManyFiles, AreLeftInSubfoldersUnlessAskedFor) {
  const CountResult result = Run(TextOfFolder{folder.Path(), false, {}});
  EXPECT_EQ(WordsOf(result), "cat*2 dog");
  EXPECT_EQ(result.folders, 1);
}

TEST_F(ManyFiles, AreChosenByTheirExtensions) {
  Put("d.htm", "owl");
  Put("e.png", "bee");
  EXPECT_EQ(WordsOf(Run(TextOfFolder{folder.Path(), true, {{"htm", "png"}, {}}})), "owl");
  EXPECT_EQ(WordsOf(Run(TextOfFolder{folder.Path(), true, {{}, {"txt"}}})), "owl");
}

TEST_F(ManyFiles, ThatWereReadAreKnownWhateverTheirNames) {
  Put("d.png", std::string("\0\1\2\3", 4));
  Put("e.log", "owl");
  const CountResult result = Run(TextOfFolder{folder.Path(), true, {{}, {"log"}}});
  std::vector<FileIdentity> read;
  for (const std::string name : {"a.txt", "b.txt", "sub/c.txt"}) {
    read.push_back(IdentityOf(folder / name).value());
  }
  EXPECT_THAT(result.filesRead, testing::UnorderedElementsAreArray(read));
  EXPECT_TRUE(std::ranges::is_sorted(result.filesRead));
  const std::string twice = folder / "a.txt";
  EXPECT_EQ(Run(TextOfPaths{{twice, twice}, false, {}, nullptr}).filesRead.size(), 1U);
}

TEST_F(ManyFiles, OfAListAreCountedInTheOrderGiven) {
  ChunkedSource input("owl cat", 3);
  request.keepReports = true;
  const CountResult result = Run(
      TextOfPaths{{folder / "b.txt", "-", folder / "sub", folder / "a.txt"}, false, {}, &input});
  EXPECT_EQ(WordsOf(result), "cat*3 dog fox owl");
  EXPECT_EQ(observer.newWords, "cat owl fox dog");
  EXPECT_EQ(result.files, 4);
  EXPECT_EQ(result.folders, 1);
  ASSERT_EQ(result.reports.size(), 4U);
  EXPECT_EQ(result.reports[1].path, "-");
  EXPECT_EQ(result.reports[1].bytesRead, 7);
}

TEST_F(ManyFiles, ThatAreNamedAreReadWhateverTheirExtension) {
  Put("d.htm", "owl");
  const TextOfPaths paths{{folder / "d.htm", folder.Path()}, false, {{"txt"}, {}}, nullptr};
  EXPECT_EQ(WordsOf(Run(paths)), "cat*2 dog owl");
}

TEST_F(ManyFiles, CarryACommentOnIntoTheNext) {
  Put("a.c", "ant /* bee");
  Put("b.c", "cow */ doe");
  EXPECT_EQ(WordsOf(Run(TextOfFolder{folder.Path(), false, {{"c"}, {}}})), "ant doe");
}

TEST_F(ManyFiles, AreTalliedForCountOnlyWords) {
  CountOnly({"cat", "fox"});
  const CountResult result = Run(Whole());
  const FileTally* cat = result.store.FilesOf(1);
  ASSERT_NE(cat, nullptr);
  EXPECT_EQ(cat->NumFiles(), 2);
  EXPECT_THAT(result.store.Files().FileList(),
              ElementsAre("", folder / "a.txt", folder / "b.txt", folder / "sub/c.txt"));
  request.tallyFiles = false;
  EXPECT_EQ(Run(Whole()).store.FilesOf(1), nullptr);
}

TEST_F(ManyFiles, OfAListAreTalliedToo) {
  CountOnly({"cat"});
  const CountResult result = Run(TextOfPaths{{folder / "b.txt", folder / "a.txt"}, false, {}, {}});
  ASSERT_NE(result.store.FilesOf(1), nullptr);
  EXPECT_EQ(result.store.FilesOf(1)->NumFiles(), 2);
}

// The counting pass.

TEST_F(ManyFiles, AreCountedFirstIfWanted) {
  request.countingPass = CountingPass::kFilesAndBytes;
  const CountResult result = Run(Whole());
  observer.events.resize(6);
  EXPECT_THAT(observer.events, ElementsAre("checked", "counted 1 in 1", "counted 2 in 1",
                                           "counted 3 in 2", "go on with 3 in 2?", "scan"));
  EXPECT_EQ(result.files, 3);
  EXPECT_EQ(result.folders, 2);
  ASSERT_EQ(observer.afterFiles.size(), 3U);
  EXPECT_EQ(observer.afterFiles[0].filesInRun, 3);
  EXPECT_EQ(observer.afterFiles[0].bytesInRun, 13);
  EXPECT_EQ(observer.afterFiles[0].runBytesRead, 7);
  EXPECT_EQ(observer.afterFiles[2].runBytesRead, 13);
}

TEST_F(ManyFiles, HaveAShareOfTheRunWithoutBytesToo) {
  request.countingPass = CountingPass::kFiles;
  static_cast<void>(Run(Whole()));
  EXPECT_EQ(observer.afterFiles.at(0).filesDone, 1);
  EXPECT_EQ(observer.afterFiles.at(0).filesInRun, 3);
  EXPECT_EQ(observer.afterFiles.at(0).bytesInRun, 0);
}

TEST_F(ManyFiles, ThatAreLeftOutHaveTheirShareOfTheRunToo) {
  Put("b.txt", "cat \x01");
  request.countingPass = CountingPass::kFilesAndBytes;
  static_cast<void>(Run(Whole()));
  EXPECT_EQ(observer.afterFiles.at(1).runBytesRead, 7 + 5);
  EXPECT_EQ(observer.afterFiles.at(2).runBytesRead, observer.afterFiles.at(2).bytesInRun);
}

TEST_F(ManyFiles, AreNotReadByWhoDoesNotWantToGoOn) {
  request.countingPass = CountingPass::kFiles;
  observer.goesOn = false;
  ExpectRefused(Run(Whole()), Refusal::kDeclined);
}

TEST_F(ManyFiles, MayBeStoppedWhileTheyAreCounted) {
  request.countingPass = CountingPass::kFiles;
  observer.stopAtCounted = 3;
  const CountResult result = Run(Whole());
  EXPECT_EQ(result.end, CountEnd::kStoppedCounting);
  EXPECT_EQ(result.files, 3);
  EXPECT_EQ(result.folders, 2);
  EXPECT_EQ(result.wordsRead, 0);
}

TEST_F(ManyFiles, MayBeStoppedWhileItIsLookedForAny) {
  static_cast<void>(folder.Make("none/at/all"));
  observer.stopped = true;
  const CountResult result = Run(TextOfFolder{folder / "none", true, {}});
  EXPECT_EQ(result.end, CountEnd::kStoppedCounting);
  EXPECT_TRUE(observer.events.empty());
}

TEST_F(ManyFiles, AreStoppedInTheMiddle) {
  observer.stopAtWord = 2;
  const CountResult result = Run(Whole());
  EXPECT_EQ(result.end, CountEnd::kStopped);
  EXPECT_EQ(WordsOf(result), "cat dog");
  EXPECT_EQ(result.files, 1);
  EXPECT_EQ(result.stoppedAfter.value().files, 1) << "the first was begun";
}

TEST_F(ManyFiles, SayAfterHowManyTheyWereStopped) {
  Put("e.txt", "");
  request.countingPass = CountingPass::kFilesAndBytes;
  observer.onFileBegins = [this](const FileBegins& file) {
    observer.stopped = file.path.ends_with("c.txt");
  };
  const CountReach reach = Run(Whole()).stoppedAfter.value();
  EXPECT_EQ(reach.files, 4) << "what is left out was come to, too";
  EXPECT_EQ(reach.filesInAll, 4);
  EXPECT_EQ(reach.bytesInAll, 13);
}

// What is left out.

TEST_F(ManyFiles, ThatAreNoTextAreLeftOut) {
  Put("e.txt", "");
  Put("n.txt", "owl \x02");
  const CountResult result = Run(Whole());
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(result.files, 3);
  EXPECT_EQ(result.leftOut.InAll(), 2);
  EXPECT_EQ(result.leftOut.byContents, 2);
  EXPECT_TRUE(result.skipped.empty());
}

TEST_F(ManyFiles, ThatAreMissingAreSkippedAndNamed) {
  const CountResult result =
      Run(TextOfPaths{{folder / "missing.txt", folder / "b.txt"}, false, {}, nullptr});
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(WordsOf(result), "cat");
  ASSERT_EQ(result.skipped.size(), 1U);
  EXPECT_EQ(result.skipped[0].path, folder / "missing.txt");
  EXPECT_EQ(result.skipped[0].reason, Refusal::kNotFound);
  EXPECT_EQ(result.skippedInAll, 1);
  EXPECT_THAT(observer.events,
              ElementsAre("checked", "scan", "met missing.txt", "skipped missing.txt",
                          "ends missing.txt", "met b.txt", "begins b.txt", "ends b.txt"));
}

TEST_F(ManyFiles, GoOnBehindOneForWhichTheMemoryRunsOut) {
  observer.onFileBegins = [](const FileBegins& file) {
    if (file.path.ends_with("a.txt")) throw std::bad_alloc();
  };
  const CountResult result = Run(Whole());
  EXPECT_EQ(result.end, CountEnd::kComplete);
  EXPECT_EQ(WordsOf(result), "cat fox");
  EXPECT_EQ(result.files, 2);
  ASSERT_EQ(result.skipped.size(), 1U);
  EXPECT_EQ(result.skipped[0].path, folder / "a.txt");
  EXPECT_EQ(result.skipped[0].reason, Refusal::kReadFailed);
  EXPECT_EQ(result.skipped[0].error.value().Description(), "Out of memory");
}

TEST_F(ManyFiles, FailTogetherWithAnOverflow) {
  observer.onFileBegins = [](const FileBegins&) {
    throw RunTimeError(RunTimeErrorNumber::kOverflow);
  };
  const CountResult result = Run(Whole());
  EXPECT_EQ(result.end, CountEnd::kFailed);
  EXPECT_EQ(result.error.value().Description(), "Overflow");
}

TEST_F(ManyFiles, AreRefusedWhenAnOutputFileAmongThemIsChosenOnTheWay) {
  request.countingPass = CountingPass::kFiles;
  observer.choosesOutput = folder / "b.txt";
  ExpectRefused(Run(Whole()), Refusal::kOutputInFolder);
  observer.choosesOutput = folder / "a.txt";
  ExpectRefused(Run(TextOfPaths{{folder / "a.txt", folder / "b.txt"}, false, {}, nullptr}),
                Refusal::kIsOutput);
}

// What is refused.

TEST_F(ManyFiles, AreRefusedWithTheirFolder) {
  ExpectRefused(Run(TextOfFolder{}), Refusal::kNothingNamed);
  ExpectRefused(Run(TextOfFolder{folder / "none", false, {}}), Refusal::kFolderNotFound);
  ExpectRefused(Run(TextOfFolder{folder.Make("bare"), false, {}}), Refusal::kFolderHasNoFiles);
  ExpectRefused(Run(TextOfPaths{}), Refusal::kNothingNamed);
}

TEST_F(ManyFiles, AreRefusedWithFiltersThatCannotWork) {
  ExpectRefused(Run(TextOfFolder{folder.Path(), false, {{"txt"}, {"txt"}}}),
                Refusal::kBadExtensions);
  ExpectRefused(Run(TextOfPaths{{folder.Path()}, false, {{"t?t"}, {}}, nullptr}),
                Refusal::kBadExtensions);
}

TEST_F(ManyFiles, AreRefusedWhenTheOutputWouldLieAmongThem) {
  request.outputPath = folder / "sub/list.txt";
  ExpectRefused(Run(Whole()), Refusal::kOutputInFolder);
  ExpectRefused(Run(TextOfPaths{{folder / "a.txt", folder.Path()}, true, {}, nullptr}),
                Refusal::kOutputInFolder);
  EXPECT_EQ(Run(TextOfFolder{folder.Path(), false, {}}).end, CountEnd::kComplete);
}

}  // namespace
}  // namespace quillomat
