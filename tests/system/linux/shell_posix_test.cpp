#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <thread>

#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/shell.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;

/// A PATH with a shell command of our own in it, which writes down what it is given.
class Shell : public ::testing::Test {
 protected:
  void InstallViewer(const std::string& ending = "") {
    const std::string viewer = folder_.Write(
        "xdg-open", "#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" > '" + (folder_ / "being-told") +
                        "'\n/bin/mv '" + (folder_ / "being-told") + "' '" + (folder_ / "told") +
                        "'\n" + ending);
    fs::permissions(viewer, fs::perms(0755));
  }

  /// What the viewer was given; "" when it was not started within some seconds.
  [[nodiscard]] std::string Told() const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!FileExists(folder_ / "told") && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return ContentsOf(folder_ / "told");
  }

  TemporaryFolder folder_;
  ScopedVariable path_{"PATH", folder_.Path()};
};

TEST_F(Shell, IsGivenAnAddressAsItIs) {
  InstallViewer();
  EXPECT_TRUE(OpenWithShell("https://quillomat.example/?a=1&b=$(x);'\""));
  EXPECT_EQ(Told(), "1|https://quillomat.example/?a=1&b=$(x);'\"|");
}

TEST_F(Shell, IsGivenADocumentThatIsThere) {
  InstallViewer();
  const std::string document = folder_.Write("my document.txt", "");
  EXPECT_TRUE(OpenWithShell(document));
  EXPECT_EQ(Told(), "1|" + document + "|");
}

TEST_F(Shell, ADocumentIsNeverTakenForAnOption) {
  InstallViewer();
  (void)folder_.Write("--help", "");
  const fs::path before = fs::current_path();
  SetCurrentFolder(folder_.Path());
  EXPECT_TRUE(OpenWithShell("--help"));
  fs::current_path(before);
  EXPECT_EQ(Told(), "1|./--help|");
}

TEST_F(Shell, ADocumentThatIsNotThereIsRefused) {
  InstallViewer();
  EXPECT_FALSE(OpenWithShell(folder_ / "gone.txt"));
  EXPECT_FALSE(OpenWithShell("gone.txt"));
  EXPECT_FALSE(OpenWithShell(""));
}

TEST_F(Shell, MissingShellCommandIsNoticed) {
  EXPECT_FALSE(OpenWithShell("https://quillomat.example/"));
}

TEST_F(Shell, ViewerIsNotWaitedFor) {
  InstallViewer("exec /bin/sleep 5 > /dev/null 2>&1\n");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(OpenWithShell("https://quillomat.example/"));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
  EXPECT_EQ(Told(), "1|https://quillomat.example/|");
}

TEST_F(Shell, AViewerThatFailsIsToldOf) {
  InstallViewer("exit 3\n");
  std::promise<void> failed;
  EXPECT_TRUE(OpenWithShell("https://quillomat.example/", [&failed] { failed.set_value(); }));
  EXPECT_EQ(failed.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready);
}

TEST_F(Shell, AViewerThatSucceedsIsNotToldOf) {
  InstallViewer();
  // What waits for the viewer gives the function back when it has looked at the end.
  auto held = std::make_shared<std::promise<void>>();
  std::future<void> failed = held->get_future();
  EXPECT_TRUE(
      OpenWithShell("https://quillomat.example/", [held = std::move(held)] { held->set_value(); }));
  ASSERT_EQ(failed.wait_for(std::chrono::seconds(20)), std::future_status::ready);
  EXPECT_THROW(failed.get(), std::future_error) << "given back, and never called";
}

TEST_F(Shell, ViewerThatHasEndedIsForgotten) {
  InstallViewer();
  EXPECT_TRUE(OpenWithShell("https://quillomat.example/"));
  EXPECT_NE(Told(), "");
  // Without children left, there is nothing to wait for.
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  siginfo_t info{};
  while (waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
         std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  EXPECT_EQ(waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT), -1);
}

}  // namespace
}  // namespace quillomat
