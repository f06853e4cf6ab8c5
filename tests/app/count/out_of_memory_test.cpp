// What a user is told when there is not enough memory: every allocation of this program goes
// through the operators below, which a test can make refuse the large ones.
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <iterator>
#include <limits>
#include <memory>
#include <new>

#include "support/program_fixture.h"

namespace {

std::atomic<std::size_t> largestAllocation{std::numeric_limits<std::size_t>::max()};
/// How many there may be still.
std::atomic<std::int64_t> allocationsLeft{std::numeric_limits<std::int64_t>::max()};

void* Allocate(std::size_t bytes) {
  const bool refused = bytes > largestAllocation || allocationsLeft-- <= 0;
  void* const memory = refused ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

/// In front of it stands where its memory starts.
void* AllocateAligned(std::size_t bytes, std::align_val_t alignment) {
  const auto align = static_cast<std::size_t>(alignment);
  std::size_t room = bytes + align;
  void* const memory = Allocate(sizeof(void*) + room);
  void* block = static_cast<std::byte*>(memory) + sizeof(void*);
  block = std::align(align, bytes, block, room);
  std::memcpy(static_cast<std::byte*>(block) - sizeof(void*), &memory, sizeof(void*));
  return block;
}

void FreeAligned(void* block) {
  if (block == nullptr) return;
  void* memory = nullptr;
  std::memcpy(&memory, static_cast<std::byte*>(block) - sizeof(void*), sizeof(void*));
  std::free(memory);
}

}  // namespace

void* operator new(std::size_t bytes) {
  return Allocate(bytes);
}
void* operator new(std::size_t bytes, std::align_val_t alignment) {
  return AllocateAligned(bytes, alignment);
}
void operator delete(void* block, std::align_val_t /*alignment*/) noexcept {
  FreeAligned(block);
}
void operator delete(void* block, std::size_t /*bytes*/, std::align_val_t /*alignment*/) noexcept {
  FreeAligned(block);
}
void* operator new[](std::size_t bytes) {
  return Allocate(bytes);
}
void* operator new(std::size_t bytes, const std::nothrow_t& /*none*/) noexcept {
  return bytes > largestAllocation ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
}
void operator delete(void* memory, const std::nothrow_t& /*none*/) noexcept {
  std::free(memory);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t /*bytes*/) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t /*bytes*/) noexcept {
  std::free(memory);
}

namespace quillomat {
namespace {

using testing::HasSubstr;
using testing::Not;

class OutOfMemory : public ProgramFixture {
 protected:
  OutOfMemory() { program.UseThreads(1); }

  /// More different words than such memory holds; "cat" is the first.
  std::string WriteManyWords(const std::string& name) {
    std::string text = "cat\n";
    for (int number = 0; number < 60'000; ++number) {
      std::string word = "word";
      for (int rest = number; rest > 0; rest /= 26) word += static_cast<char>('a' + rest % 26);
      text += word + "\n";
    }
    return folder.Write(name, text);
  }

  void CountWithLittleMemory(const std::function<void()>& count) { WithMemory(600'000, count); }

  void WithMemory(std::size_t largest, const std::function<void()>& action) {
    largestAllocation = largest;
    action();
    largestAllocation = std::numeric_limits<std::size_t>::max();
  }
};

TEST_F(OutOfMemory, IsToldAsWhatItIsAndNamesTheFile) {
  const std::string path = WriteManyWords("many.txt");
  CountWithLittleMemory([&] { CountFile(path); });
  ExpectMessage(OnlyMessage(), "Error 7: Out of memory while reading " + path, "Problem",
                MessageIcon::kExclamation);
  EXPECT_FALSE(program.Output().IsFull());
}

TEST_F(OutOfMemory, EndsTheFileAndNotTheFolder) {
  (void)folder.Make("texts");
  (void)WriteManyWords("texts/many.txt");
  (void)folder.Write("texts/small.txt", "cat");
  desktop.Answer("Multiple files/folders", MessageAnswer::kOk);
  desktop.AnswerFile(std::nullopt);
  CountWithLittleMemory([&] { CountFolder(folder / "texts"); });
  ASSERT_EQ(program.Count().Skipped().size(), 1U);
  EXPECT_THAT(program.Count().Skipped()[0].path, HasSubstr("many.txt"));
  EXPECT_EQ(program.Count().Skipped()[0].reason, "Out of memory");
  EXPECT_EQ(Words().folder.filesScanned, 1);
  EXPECT_THAT(StoredWords(), testing::StartsWith("cat*2 "));
}

TEST_F(OutOfMemory, WhileAListIsMadeAgainIsToldAndEndsOnlyThat) {
  CountFile(WriteManyWords("many.txt"));
  desktop.ForgetQuestions();
  WithMemory(20'000, [&] { Main().cboWordOrder.SetListIndex(1); });
  EXPECT_EQ(OnlyMessage().text, "Error 7: Out of memory");
  EXPECT_FALSE(State().Busy());
  desktop.ForgetQuestions();
  Main().cboWordOrder.SetListIndex(0);
  EXPECT_THAT(Output(), HasSubstr("cat"));
}

TEST_F(OutOfMemory, WhileTheOutputFileIsWrittenLeavesItAsItWas) {
  const std::string list = folder.Write("list.txt", "old");
  Panel().chkWarnOnOverwrite.SetChecked(false);
  CountClipboard("cat");
  Main().txbFile[1].SetText(list);
  WithMemory(20'000, [&] { Main().cboWordOrder.SetListIndex(1); });
  EXPECT_EQ(OnlyMessage().text, "Error 7: Out of memory while writing " + list);
  EXPECT_EQ(ContentsOf(list), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(TestPath(folder.Path())), {}), 1);
}

TEST_F(OutOfMemory, WhileWordsAreRankedLeavesNothingToBeListed) {
  bool ranking = false;
  Main().txbOutput.Change.Connect([&] {
    if (ranking || !Output().ends_with(". . . . . . ")) return;
    ranking = true;
    largestAllocation = 400'000;
  });
  CountFile(WriteManyWords("many.txt"));
  largestAllocation = std::numeric_limits<std::size_t>::max();
  ASSERT_TRUE(ranking);
  EXPECT_EQ(OnlyMessage().text, "Error 7: Out of memory");
  desktop.ForgetQuestions();
  Main().cboWordOrder.SetListIndex(1);
  EXPECT_EQ(Output(), "");
  EXPECT_FALSE(Words().CanBeListed());
  Main().cmdExport.PerformClick();
  EXPECT_FALSE(program.frmExport.Visible());
}

TEST_F(OutOfMemory, WhileFilesAreListedIsToldAndEndsOnlyThat) {
  for (char first = 'a'; first <= 'z'; ++first) {
    for (char second = 'a'; second <= 'd'; ++second) {
      (void)folder.Write(std::string{first, second} + std::string(60, 'x') + ".txt", "cat");
    }
  }
  Main().optFolder.SetValue(true);
  Main().txbFolder.SetText(folder.Path());
  WithMemory(5'000, [&] { Main().cmdListFiles.PerformClick(); });
  EXPECT_EQ(OnlyMessage().text, "Error 7: Out of memory");
  EXPECT_FALSE(State().Busy());
  Main().cmdListFiles.PerformClick();
  EXPECT_THAT(Output(), HasSubstr("104 files in 1 folder will be scanned."));
}

TEST_F(OutOfMemory, WhileAnExportIsMadeReadyIsToldAndEndsOnlyThat) {
  CountFile(WriteManyWords("many.txt"));
  Main().cmdExport.PerformClick();
  program.frmExport.txbFile.SetText(folder / "list.csv");
  desktop.ForgetQuestions();
  WithMemory(100'000, [&] { program.frmExport.cmdExport.PerformClick(); });
  EXPECT_THAT(OnlyMessage().text, HasSubstr("Out of memory"));
  EXPECT_FALSE(State().Busy());
  EXPECT_EQ(program.frmExport.cmdExport.Caption(), "Export");
  EXPECT_FALSE(std::filesystem::exists(TestPath(folder / "list.csv")));
}

TEST_F(OutOfMemory, OfAFailedWriteIsNoFullTextBox) {
  program.Lister().ReportError(RunTimeError(RunTimeErrorNumber::kOutOfMemory), "writing a.txt");
  EXPECT_EQ(OnlyMessage().text, "Error 7: Out of memory while writing a.txt");
  EXPECT_FALSE(program.Output().IsFull());
}

TEST_F(OutOfMemory, LeavesTheStoreAsItWasBeforeTheWord) {
  WordStore store;
  std::int32_t added = 0;
  CountWithLittleMemory([&] {
    EXPECT_THROW(for (; added < 1'000'000; ++added) store.AddWord("w" + std::to_string(added)),
                 std::bad_alloc);
  });
  EXPECT_EQ(store.NumDifferentWords(), added);
  store.AddWord("zebra");
  store.AddWord("zebra");
  store.AddWord("w0");
  EXPECT_EQ(store.NumDifferentWords(), added + 1);
  EXPECT_EQ(store.At(1).Count, 2);
  EXPECT_EQ(store.At(added + 1).Word, "zebra");
  EXPECT_EQ(store.At(added + 1).Count, 2);
}

TEST_F(OutOfMemory, LeavesTheStoreAsItWasBeforeItWasSorted) {
  constexpr std::int32_t kWords = 10'000;
  bool sorted = false;
  for (int enoughFor = 0; !sorted; ++enoughFor) {
    SCOPED_TRACE(enoughFor);
    WordStore store;
    store.Files().Reset(true);
    store.Files().SetFileBeingScanned("a.txt");
    for (std::int32_t i = 0; i < kWords; ++i) store.AddWord("w" + std::to_string(i));
    allocationsLeft = enoughFor;
    try {
      (void)store.CountOf(1);
      sorted = true;
    } catch (const std::bad_alloc&) {
      sorted = false;
    }
    allocationsLeft = std::numeric_limits<std::int64_t>::max();
    store.AddWord("w7");
    store.AddWord("zebra");
    ASSERT_EQ(store.NumDifferentWords(), kWords + 1);
    for (std::int32_t place = 1; place <= kWords + 1; ++place) {
      const std::int32_t times = store.WordOf(place) == "w7" ? 2 : 1;
      ASSERT_EQ(store.CountOf(place), times);
      ASSERT_EQ(store.FilesOf(place)->FileCounts, std::vector<std::int32_t>{times});
    }
  }
}

}  // namespace
}  // namespace quillomat
