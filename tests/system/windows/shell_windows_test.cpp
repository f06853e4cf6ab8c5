// Documents are opened by the system's shell. A batch file stands for a document whose application
// can tell that it was started.
#include <chrono>
#include <filesystem>
#include <thread>

#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/shell.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;

class Shell : public ::testing::Test {
 protected:
  [[nodiscard]] std::string Document(const std::string& name) const {
    return folder_.Write(name, "@echo off\r\ncd > \"" + (folder_ / "being-told") + "\"\r\nmove \"" +
                                   (folder_ / "being-told") + "\" \"" + (folder_ / "told") +
                                   "\" > nul\r\n");
  }

  /// The working folder that the document was opened in; "" when it was not within some seconds.
  [[nodiscard]] std::string Told() const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    std::string told;
    // For a moment the shell that moves the file there may be its only reader.
    while (told.empty() && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      if (FileExists(folder_ / "told")) told = ContentsOf(folder_ / "told");
    }
    return told;
  }

  TemporaryFolder folder_;
};

TEST_F(Shell, OpensADocumentWithItsApplication) {
  EXPECT_TRUE(OpenWithShell(Document("my document.cmd")));
  EXPECT_EQ(Told(), "C:\\\r\n");
}

TEST_F(Shell, OpensADocumentOfTheCurrentFolder) {
  (void)Document("here.cmd");
  const fs::path before = fs::current_path();
  SetCurrentFolder(folder_.Path());
  EXPECT_TRUE(OpenWithShell("here.cmd"));
  fs::current_path(before);
  EXPECT_EQ(Told(), "C:\\\r\n");
}

TEST_F(Shell, ADocumentThatIsNotThereIsRefused) {
  EXPECT_FALSE(OpenWithShell(folder_ / "gone.txt"));
  EXPECT_FALSE(OpenWithShell("gone.txt"));
}

TEST_F(Shell, ADocumentWithoutAnApplicationIsRefused) {
  EXPECT_FALSE(OpenWithShell(folder_.Write("a.unheard-of", "")));
}

}  // namespace
}  // namespace quillomat
