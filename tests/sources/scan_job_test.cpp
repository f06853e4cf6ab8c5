// A scan that goes on where another kind of reading has ended.
#include "sources/scan_job.h"

#include <gtest/gtest.h>
#include <string>

#include "sources/sources_fixture.h"
#include "support/failing_source.h"

namespace quillomat {
namespace {

using ScanJobTest = SourcesFixture;

TEST_F(ScanJobTest, WordsReadBeforeAFailureOnThreadsStayRead) {
  State().scanThreads = 2;
  State().store.Files().Reset(false);
  ScanJob job(program.context);
  job.ScanText("one");
  FailingSource source("two three\nfour\n");
  EXPECT_THROW(job.ScanOnThreads(source, [](std::int64_t) {}), RunTimeError);
  EXPECT_EQ(State().WordsRead, 4);
  job.ScanText("five");
  job.ScanLines("six\n");
  EXPECT_EQ(State().WordsRead, 6);
}

}  // namespace
}  // namespace quillomat
