#include <filesystem>
#include <pwd.h>

#include "desktop/desktop_test.h"
#include "desktop/file_system.h"
#include "desktop/key_file.h"
#include "desktop/settings_folder.h"
#include "desktop/user_registry.h"
#include "support/temporary_folder.h"

namespace quillomat {
namespace {

namespace fs = std::filesystem;

class SettingsFolder : public ::testing::Test {
 protected:
  TemporaryFolder home_;
  ScopedVariable homeVariable_{"HOME", home_.Path()};
  ScopedVariable configVariable_{"XDG_CONFIG_HOME", std::nullopt};
};

TEST_F(SettingsFolder, StandsInTheHomeFolder) {
  EXPECT_EQ(PathInSettings("qlav.usr", "Orvandel Systems"),
            home_ / ".config/Orvandel Systems/qlav.usr");
  EXPECT_FALSE(FolderExists(home_ / ".config"));
}

TEST_F(SettingsFolder, IsCreatedWhenItsPathIsAskedFor) {
  EXPECT_EQ(SettingsFilePath("qlav.usr", "Orvandel Systems"),
            home_ / ".config/Orvandel Systems/qlav.usr");
  EXPECT_TRUE(FolderExists(home_ / ".config/Orvandel Systems"));
  EXPECT_EQ(fs::status(home_ / ".config").permissions(), fs::perms(0700));
  EXPECT_FALSE(FileExists(home_ / ".config/Orvandel Systems/qlav.usr"));
  EXPECT_EQ(SettingsFilePath("qlav.usr", "Orvandel Systems"),
            home_ / ".config/Orvandel Systems/qlav.usr");
}

TEST_F(SettingsFolder, StandsWhereTheUserWantsIt) {
  const ScopedVariable config("XDG_CONFIG_HOME", home_ / "settings");
  EXPECT_EQ(SettingsFilePath("f", "d"), home_ / "settings/d/f");
  EXPECT_TRUE(FolderExists(home_ / "settings/d"));
}

TEST_F(SettingsFolder, RelativeBaseIsNotTaken) {
  const ScopedVariable config("XDG_CONFIG_HOME", "settings");
  EXPECT_EQ(SettingsBaseFolder(), home_ / ".config");
}

TEST_F(SettingsFolder, WithoutHomeVariableTheUserDataTell) {
  const ScopedVariable noHome("HOME", std::nullopt);
  const passwd* user = getpwuid(getuid());
  ASSERT_NE(user, nullptr);
  EXPECT_EQ(SettingsBaseFolder(), JoinPath(user->pw_dir, ".config"));
}

TEST_F(SettingsFolder, AFolderThatCannotBeCreatedStillHasAPath) {
  (void)home_.Write(".config", "a file in the way");
  EXPECT_EQ(SettingsFilePath("f", "d"), home_ / ".config/d/f");
}

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

using UserRegistryTest = SettingsFolder;
const std::string kKey = "Software\\Orvandel Systems\\Quillomat";

TEST_F(UserRegistryTest, KeepsValuesInTheSettingsFolder) {
  EXPECT_EQ(CreateOrOpenUserKey(kKey).outcome, RegistryKeyOutcome::kCreated);
  EXPECT_EQ(CreateOrOpenUserKey(kKey).outcome, RegistryKeyOutcome::kExisted);
  EXPECT_TRUE(WriteUserValue(kKey, "Language", "DE"));
  const RegistryReadResult result = ReadUserValue(kKey, "Language");
  EXPECT_EQ(result.outcome, RegistryReadOutcome::kFound);
  EXPECT_EQ(result.data, "DE");
  EXPECT_EQ(ContentsOf(home_ / ".config/Orvandel Systems/quillomat.conf"), "Language=DE\n");
}

TEST_F(UserRegistryTest, TellsWhatIsMissing) {
  EXPECT_EQ(ReadUserValue(kKey, "Language").outcome, RegistryReadOutcome::kKeyNotFoundOrEmpty);
  EXPECT_FALSE(FolderExists(home_ / ".config"));
  EXPECT_FALSE(WriteUserValue(kKey, "Language", "DE"));
  (void)CreateOrOpenUserKey(kKey);
  EXPECT_EQ(ReadUserValue(kKey, "Language").outcome, RegistryReadOutcome::kKeyNotFoundOrEmpty);
  EXPECT_TRUE(WriteUserValue(kKey, "Language", "DE"));
  EXPECT_EQ(ReadUserValue(kKey, "Other").outcome, RegistryReadOutcome::kNameNotFound);
  EXPECT_EQ(ReadUserValue(kKey, "").outcome, RegistryReadOutcome::kNameNotSpecified);
}

TEST_F(UserRegistryTest, FailsWithWordsWhereNothingCanBeKept) {
  (void)home_.Write(".config", "a file in the way");
  const RegistryKeyResult result = CreateOrOpenUserKey(kKey);
  EXPECT_EQ(result.outcome, RegistryKeyOutcome::kFailed);
  EXPECT_FALSE(result.errorText.empty());
}

}  // namespace
}  // namespace quillomat
