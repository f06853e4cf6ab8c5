#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/count/line_ending_warning.h"
#include "app/count/sources_fixture.h"

namespace quillomat {
namespace {

using Type = LineEndingType;

/// What the window says about a file's line ends, and that its lines are told apart.
class LineEndingsOfFiles : public SourcesFixture {
 protected:
  /// Every caption that the notice label bore while the file was counted.
  std::vector<std::string> NoticesOf(const std::string& name, const std::string& contents) {
    Main().lblNumWordsExcluded.Changed.Connect([this] {
      const Label& label = Main().lblNumWordsExcluded;
      if (label.Visible() && !label.Caption().empty()) notices_.push_back(label.Caption());
    });
    CountFile(folder.Write(name, contents));
    return notices_;
  }

 private:
  std::vector<std::string> notices_;
};

constexpr const char* kExcludedLine = "Number of words excluded: 0";

TEST_F(LineEndingsOfFiles, AUnixFileIsAnnounced) {
  EXPECT_EQ(NoticesOf("a.txt", "cat\ndog\n\nCAT"),
            (std::vector<std::string>{"This is a Unix-type file.", kExcludedLine}));
  EXPECT_EQ(StoredWords(), "cat*2 dog");
}

TEST_F(LineEndingsOfFiles, AMacintoshFileIsAnnouncedAndReadLineByLine) {
  AllowComments("#", "");
  EXPECT_EQ(NoticesOf("a.txt", "cat # no\rdog # no\r\rcat\r"),
            (std::vector<std::string>{"This is a Macintosh-type file.", kExcludedLine}));
  EXPECT_EQ(StoredWords(), "cat*2 dog");
}

TEST_F(LineEndingsOfFiles, ADosFileIsNotWorthAWord) {
  EXPECT_EQ(NoticesOf("a.txt", "cat\r\ndog\r\n"), (std::vector<std::string>{kExcludedLine}));
  EXPECT_EQ(StoredWords(), "cat dog");
}

TEST_F(LineEndingsOfFiles, BreaksOfAllKindsEndLinesInOneFile) {
  AllowComments("#", "");
  CountFile(folder.Write("a.txt", "one # x\ntwo # x\rthree # x\r\nfour # x\n\r\n\rfive # x"));
  EXPECT_EQ(StoredWords(), "five four one three two");
}

TEST_F(LineEndingsOfFiles, LinesOfAUnixFileOfSeveralBlocksAreAllRead) {
  AllowComments("#", "");
  std::string contents;
  for (int i = 0; i < 20'000; ++i) contents += "cat dog # hidden\n";
  CountFile(folder.Write("a.txt", contents + "mouse"));
  EXPECT_EQ(StoredWords(), "cat*20000 dog*20000 mouse");
}

TEST_F(LineEndingsOfFiles, AByteOrderMarkIsNoPartOfAWord) {
  CountFile(folder.Write("a.txt",
                         "\xEF\xBB\xBF"
                         "cat\ndog"));
  EXPECT_EQ(StoredWords(), "cat dog");
  CountFile(folder.Write("b.txt", std::string("\xFF\xFE"
                                              "c\0a\0t\0\n\0\xE9\0",
                                              12)));
  EXPECT_EQ(StoredWords(), "cat é");
}

TEST_F(LineEndingsOfFiles, TheWarningsSayWhichLineEndsTheyAre) {
  const Messages messages(desktop, program.Text());
  const auto warned = [&](Type type) {
    desktop.ForgetQuestions();
    ShowLineEndingWarning(messages, type);
    return OnlyMessage();
  };
  const auto icon = MessageIcon::kExclamation;
  ExpectMessage(warned(Type::kZeroLength), "This is a zero-length file.", "Warning", icon);
  ExpectMessage(warned(Type::kUnix), "This file has Unix/Linux line endings.", "Warning", icon);
  ExpectMessage(warned(Type::kMacintosh), "This file has Macintosh line endings.", "Warning", icon);
  ExpectMessage(warned(Type::kNotText), "This file has line endings of an unknown type.", "Warning",
                icon);
  desktop.ForgetQuestions();
  ShowLineEndingWarning(messages, Type::kDos);
  EXPECT_TRUE(desktop.Messages().empty());
}

}  // namespace
}  // namespace quillomat
