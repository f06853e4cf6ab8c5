// What the tests of folders with all kinds of contents share.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/count/folder_source.h"
#include "app/count/sources_fixture.h"
#include "support/permissions.h"

namespace quillomat {

class FolderRobustness : public SourcesFixture {
 protected:
  FolderRobustness() { IncludeSubfolders(); }

  void Put(const std::string& name, const std::string& contents = "cat") {
    static_cast<void>(folder.Write(name, contents));
  }

  [[nodiscard]] std::vector<std::string> SkippedPaths() {
    std::vector<std::string> paths;
    for (const SkippedItem& item : program.Count().Skipped()) paths.push_back(item.path);
    return paths;
  }

  /// Counts and tells whether all went well, as an ordinary user: root may read everything.
  template <class Checks>
  void ExpectAsOrdinaryUser(Checks checks) {
    EXPECT_EQ(AsOrdinaryUser([&] {
                checks();
                return HasFailure() ? 1 : 0;
              }),
              0);
  }
};

}  // namespace quillomat
