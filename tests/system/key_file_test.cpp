#include "system/key_file.h"

#include "support/temporary_folder.h"
#include "system/desktop_test.h"

namespace quillomat {
namespace {

class KeyFileTest : public ::testing::Test {
 protected:
  TemporaryFolder folder_;
  KeyFile file_{folder_ / "quillomat.conf"};
};

TEST_F(KeyFileTest, IsCreatedOnceAndOpenedFromThenOn) {
  EXPECT_EQ(file_.CreateOrOpen().outcome, RegistryKeyOutcome::kCreated);
  EXPECT_EQ(file_.CreateOrOpen().outcome, RegistryKeyOutcome::kExisted);
  EXPECT_TRUE(file_.IsEmpty());
}

TEST_F(KeyFileTest, ThatCannotBeCreatedTellsWhy) {
  const RegistryKeyResult result = KeyFile(folder_ / "no/quillomat.conf").CreateOrOpen();
  EXPECT_EQ(result.outcome, RegistryKeyOutcome::kFailed);
  EXPECT_EQ(result.errorText, "Path not found");
}

TEST_F(KeyFileTest, GivesBackWhatWasWritten) {
  for (const std::string value : {"DE", "", "a=b", " ends with blanks ", "two\r\nlines",
                                  "C:\\new\\t", "tab\t", "Gr\xC3\xBC\xC3\x9F", "# no comment"}) {
    EXPECT_TRUE(file_.Write("Language", value));
    EXPECT_EQ(file_.Read("Language"), value);
  }
  EXPECT_EQ(file_.Read("Other"), std::nullopt);
}

TEST_F(KeyFileTest, WritingOneValueKeepsAllElse) {
  (void)folder_.Write("quillomat.conf", "# by hand\r\n\r\nnonsense\r\n language = EN \r\nOther=1");
  EXPECT_EQ(file_.Read("Language"), "EN");
  EXPECT_TRUE(file_.Write("Language", "DE"));
  EXPECT_EQ(ContentsOf(file_.Path()), "# by hand\n\nnonsense\nLanguage=DE\nOther=1\n");
  EXPECT_TRUE(file_.Write("Third", "3"));
  EXPECT_EQ(file_.Read("Other"), "1");
  EXPECT_EQ(file_.Read("Third"), "3");
}

TEST_F(KeyFileTest, ReadsWhatOthersWrote) {
  (void)folder_.Write("quillomat.conf",
                      "\xEF\xBB\xBFLanguage=DE\n;Language=EN\nLANGUAGE=EN\nBad=\\x\\");
  EXPECT_EQ(file_.Read("Language"), "DE");
  EXPECT_EQ(file_.Read("Bad"), "\\x\\");
  EXPECT_FALSE(file_.IsEmpty());
}

TEST_F(KeyFileTest, IsNotReadForEver) {
  const std::string contents = "Language=DE\n" + std::string(2'000'000, '#');
  (void)folder_.Write("quillomat.conf", contents);
  EXPECT_EQ(file_.Read("Language"), std::nullopt);
  EXPECT_FALSE(file_.Write("Language", "EN"));
  EXPECT_EQ(ContentsOf(file_.Path()), contents);
}

TEST_F(KeyFileTest, WithoutEntriesIsEmpty) {
  (void)folder_.Write("quillomat.conf", "# nothing\n=x\nnonsense\n");
  EXPECT_TRUE(file_.IsEmpty());
}

TEST_F(KeyFileTest, RefusesWhatIsNoName) {
  for (const char* name : {"", " ", "a=b", "#a", ";a", " a", "a ", "a\nb"}) {
    EXPECT_FALSE(file_.Write(name, "1")) << name;
  }
  EXPECT_FALSE(file_.Exists());
}

TEST_F(KeyFileTest, ThatCannotBeReadIsNotReplaced) {
  const KeyFile folder(folder_.Make("folder"));
  EXPECT_FALSE(folder.Write("Language", "DE"));
  EXPECT_EQ(folder.Read("Language"), std::nullopt);
  const KeyFile missing(folder_ / "no/file");
  EXPECT_FALSE(missing.Write("Language", "DE"));
}

}  // namespace
}  // namespace quillomat
