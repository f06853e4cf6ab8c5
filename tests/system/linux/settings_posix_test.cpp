#include <filesystem>
#include <pwd.h>

#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/settings_folder.h"
#include "system/user_registry.h"

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
