// A reading that goes on where another kind of reading has ended.
#include "sources/text_reader.h"

#include <gtest/gtest.h>

#include "base/byte_source.h"
#include "support/engine_fixture.h"
#include "support/failing_source.h"

namespace quillomat {
namespace {

using TextReaderTest = EngineFixture;

TEST_F(TextReaderTest, WordsReadBeforeAFailureOnThreadsStayRead) {
  StartCount();
  TextReader reader({settings, store, wordsRead}, choices, lists, 2, yield);
  reader.ReadPiece("one");
  FailingSource source("two three\nfour\n");
  EXPECT_THROW(reader.ReadLinesOnThreads(source, {}), RunTimeError);
  EXPECT_EQ(wordsRead, 4);
  reader.ReadPiece("five");
  TextSource more("six\n");
  reader.ReadLines(more, {});
  EXPECT_EQ(wordsRead, 6);
  EXPECT_EQ(Words(), "five four one six three two");
}

}  // namespace
}  // namespace quillomat
