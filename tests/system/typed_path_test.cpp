// What a person means who types a path, or pastes one.
#include "system/typed_path.h"

#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/temporary_folder.h"
#include "system/paths.h"

namespace quillomat {
namespace {

class TypedPathTest : public testing::Test {
 protected:
  [[nodiscard]] std::string Meant(std::string_view typed) const {
    return PathFromTyped(folder.Path(), typed);
  }

  TemporaryFolder folder;
  TemporaryFolder home;
  ScopedVariable variable{PathSeparator() == '/' ? "HOME" : "USERPROFILE", home.Path()};
};

TEST_F(TypedPathTest, NameLiesInTheFolderAndBlanksRoundItAreDropped) {
  EXPECT_EQ(Meant("  a b.txt "), folder / "a b.txt");
  EXPECT_EQ(Meant(folder / "x"), folder / "x");
  EXPECT_EQ(Meant(""), "");
  EXPECT_EQ(Meant("   "), "");
}

TEST_F(TypedPathTest, TildeIsTheHomeFolder) {
  EXPECT_EQ(Meant("~"), home.Path());
  EXPECT_EQ(Meant("~/"), home.Path());
  EXPECT_EQ(Meant(" ~/texts.txt"), home / "texts.txt");
  EXPECT_EQ(Meant("~other/x"), JoinPath(folder / "~other", "x"));
  EXPECT_EQ(Meant("a~"), folder / "a~");
}

TEST_F(TypedPathTest, QuotesRoundAPathAreDropped) {
  EXPECT_EQ(Meant("\"" + folder / "a b.txt" + "\""), folder / "a b.txt");
  EXPECT_EQ(Meant(" ' a.txt ' "), folder / "a.txt");
  EXPECT_EQ(Meant("\"~/a.txt\""), home / "a.txt");
  for (const std::string name : {"'", "''", "'a", "a'b", "'a' b"}) {
    EXPECT_EQ(Meant(name), folder / name);
  }
}

TEST_F(TypedPathTest, AddressOfAFileIsItsPath) {
  const std::string root = PathSeparator() == '/' ? "" : "C:";
  const std::string address = PathSeparator() == '/' ? "" : "/C:";
  const auto path = [&](const std::string& tail) { return root + PathSeparator() + tail; };
  EXPECT_EQ(Meant("file://" + address + "/a%20b%C3%A9.txt"), path("a b\u00E9.txt"));
  EXPECT_EQ(Meant("FILE://localhost" + address + "/x%2fy"),
            path(std::string("x") + PathSeparator() + "y"));
  EXPECT_EQ(Meant("'file:" + address + "/100%.txt'"), path("100%.txt"));
}

TEST_F(TypedPathTest, WhatIsNoPathHereStaysWhatItIs) {
  EXPECT_EQ(Meant("file:a"), folder / "file:a");
  EXPECT_EQ(Meant("file:///a%00b").find('\0'), std::string::npos);
}

TEST_F(TypedPathTest, FileThatIsReallyCalledSoComesFirst) {
  for (const std::string name : {"'a'", "~"}) {
    const std::string path = folder.Write(name, "");
    EXPECT_EQ(Meant(name), path);
  }
}

}  // namespace
}  // namespace quillomat
