// The clipboard viewer, which only old Windows have, and whose places only Windows has. The tests
// put one there for a while, so they need the rights to do so, as in a Wine prefix.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "text/shell_helpers.h"

namespace quillomat {
namespace {

/// A file in the place of a system's program, gone when the test ends.
class PlacedFile {
 public:
  explicit PlacedFile(const char* path) : path_(path) {
    std::ofstream file(path_);
    EXPECT_TRUE(file.good()) << path;
  }
  PlacedFile(const PlacedFile&) = delete;
  PlacedFile& operator=(const PlacedFile&) = delete;
  PlacedFile(PlacedFile&&) = delete;
  PlacedFile& operator=(PlacedFile&&) = delete;
  ~PlacedFile() { std::filesystem::remove(path_); }

 private:
  std::filesystem::path path_;
};

constexpr const char* kInWindows = R"(C:\windows\clipbrd.exe)";
constexpr const char* kInSystem = R"(C:\windows\system32\clipbrd.exe)";

TEST(ClipboardViewer, IsNowhereOnANewWindows) {
  EXPECT_EQ(FindClipboardViewer(), "");
}

TEST(ClipboardViewer, MayStandInTheFolderOfTheSystem) {
  const PlacedFile viewer(kInSystem);
  EXPECT_EQ(FindClipboardViewer(), kInSystem);
}

TEST(ClipboardViewer, IsTheOneInTheFolderAboveIfThereAreTwo) {
  const PlacedFile viewer(kInSystem);
  const PlacedFile first(kInWindows);
  EXPECT_EQ(FindClipboardViewer(), kInWindows);
}

}  // namespace
}  // namespace quillomat
