// Files that the system hides.
#include <windows.h>

#include "system/desktop_test.h"
#include "system/input_file.h"
#include "system/output_file.h"

namespace quillomat {
namespace {

using HiddenFile = TestInAFolder;

TEST_F(HiddenFile, IsWrittenAndStaysHidden) {
  const std::string path = folder_.Write("a.txt", "old text");
  ASSERT_NE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
  {
    OutputFile file(path);
    file.Write("new");
    file.Close();
  }
  InputFile written(path);
  EXPECT_EQ(ReadWhole(written, 16), "new");
  EXPECT_NE(GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

}  // namespace
}  // namespace quillomat
