// Settings in the user's application data, and small values in the registry.
#include <windows.h>

#include "system/desktop_test.h"
#include "system/file_system.h"
#include "system/settings_folder.h"
#include "system/user_registry.h"
#include "system/windows/drives.h"
#include "system/windows/wide_text.h"
#include "system/windows/windows_error.h"

namespace quillomat {
namespace {

TEST(SettingsFolder, StandsInTheUsersApplicationData) {
  const ScopedVariable none("QUILLOMAT_SETTINGS", std::nullopt);
  const std::string applicationData = std::getenv("APPDATA");
  EXPECT_TRUE(IsSameFile(SettingsBaseFolder(), applicationData));
  EXPECT_TRUE(SamePath(PathInSettings("qlav.usr", "Orvandel Systems"),
                       applicationData + R"(\Orvandel Systems\qlav.usr)"));
}

TEST(SettingsFolder, IsCreatedWhenItsPathIsAskedFor) {
  const TemporaryFolder folder;
  const ScopedVariable settings("QUILLOMAT_SETTINGS", folder.Path());
  EXPECT_EQ(PathInSettings("f", "d"), folder / "d/f");
  EXPECT_FALSE(FolderExists(folder / "d"));
  EXPECT_EQ(SettingsFilePath("f", "d"), folder / "d/f");
  EXPECT_TRUE(FolderExists(folder / "d"));
  EXPECT_FALSE(FileExists(folder / "d/f"));
}

TEST(SettingsFolder, RelativeOneCountsFromTheProgramsFolder) {
  const ScopedVariable settings("QUILLOMAT_SETTINGS", "settings");
  EXPECT_EQ(SettingsBaseFolder(), JoinPath(ProgramFolder(), "settings"));
}

TEST(SettingsFolder, OneLevelIsCreatedAndNoMore) {
  const TemporaryFolder folder;
  const ScopedVariable settings("QUILLOMAT_SETTINGS", folder / "no");
  EXPECT_EQ(SettingsFilePath("f", "d"), folder / "no/d/f");
  EXPECT_FALSE(FolderExists(folder / "no"));
}

TEST(SettingsFolder, ShallStandOnAFixedDriveIfThereAreNoApplicationData) {
  const std::string drive = FirstFixedDrive();
  ASSERT_EQ(drive.size(), 2U);
  EXPECT_EQ(GetDriveTypeW(ToWide(drive + '\\').c_str()), DRIVE_FIXED);
  for (char letter = 'A'; letter < drive[0]; ++letter) {
    EXPECT_NE(GetDriveTypeW(ToWide(letter + std::string(":\\")).c_str()), DRIVE_FIXED) << letter;
  }
  EXPECT_EQ(JoinPath(drive, "Orvandel Systems"), drive + R"(\Orvandel Systems)");
}

/// A key of its own under the current user, gone when the test ends.
class UserRegistryTest : public ::testing::Test {
 protected:
  UserRegistryTest() { DeleteKeys(); }
  ~UserRegistryTest() override { DeleteKeys(); }

  static void DeleteKeys() { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Quillomat's tests"); }

  const std::string key_ = R"(Software\Quillomat's tests\Größe)";
};

TEST_F(UserRegistryTest, AKeyIsCreatedOnceAndOpenedFromThenOn) {
  EXPECT_EQ(CreateOrOpenUserKey(key_).outcome, RegistryKeyOutcome::kCreated);
  EXPECT_EQ(CreateOrOpenUserKey(key_).outcome, RegistryKeyOutcome::kExisted);
}

TEST_F(UserRegistryTest, GivesBackWhatWasWritten) {
  ASSERT_EQ(CreateOrOpenUserKey(key_).outcome, RegistryKeyOutcome::kCreated);
  for (const std::string data : {"DE", "", " blanks ", "two\r\nlines", "Grüße, 日本語 📖"}) {
    EXPECT_TRUE(WriteUserValue(key_, "Language", data));
    const RegistryReadResult result = ReadUserValue(key_, "language");
    EXPECT_EQ(result.outcome, RegistryReadOutcome::kFound);
    EXPECT_EQ(result.data, data);
  }
}

TEST_F(UserRegistryTest, ValuesAreTextsToOtherPrograms) {
  ASSERT_EQ(CreateOrOpenUserKey(key_).outcome, RegistryKeyOutcome::kCreated);
  ASSERT_TRUE(WriteUserValue(key_, "Language", "DE"));
  wchar_t data[16] = {};
  DWORD bytes = sizeof data;
  DWORD type = 0;
  EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, ToWide(key_).c_str(), L"Language", RRF_RT_ANY, &type,
                         data, &bytes),
            ERROR_SUCCESS);
  EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
  EXPECT_EQ(bytes, 3 * sizeof(wchar_t));
  EXPECT_EQ(std::wstring(data), L"DE");
}

TEST_F(UserRegistryTest, TellsWhatIsMissing) {
  EXPECT_EQ(ReadUserValue(key_, "Language").outcome, RegistryReadOutcome::kKeyNotFoundOrEmpty);
  EXPECT_FALSE(WriteUserValue(key_, "Language", "DE"));
  (void)CreateOrOpenUserKey(key_);
  EXPECT_EQ(ReadUserValue(key_, "Language").outcome, RegistryReadOutcome::kKeyNotFoundOrEmpty);
  EXPECT_TRUE(WriteUserValue(key_, "Language", "DE"));
  EXPECT_EQ(ReadUserValue(key_, "Other").outcome, RegistryReadOutcome::kNameNotFound);
  EXPECT_EQ(ReadUserValue(key_, "").outcome, RegistryReadOutcome::kNameNotSpecified);
}

TEST_F(UserRegistryTest, AKeyThatCannotBeCreatedTellsWhy) {
  const RegistryKeyResult result = CreateOrOpenUserKey(R"(Software\)" + std::string(300, 'x'));
  EXPECT_EQ(result.outcome, RegistryKeyOutcome::kFailed);
  EXPECT_FALSE(result.errorText.empty());
  EXPECT_EQ(result.errorText.find_first_of("\r\n"), std::string::npos);
}

TEST(WindowsError, MeansTheSameAsElsewhere) {
  EXPECT_EQ(ErrorCodeOf(ERROR_DISK_FULL), std::errc::no_space_on_device);
  EXPECT_EQ(ErrorCodeOf(ERROR_SHARING_VIOLATION), std::errc::permission_denied);
  EXPECT_EQ(ErrorCodeOf(ERROR_FILE_NOT_FOUND), std::errc::no_such_file_or_directory);
  EXPECT_EQ(ErrorCodeOf(ERROR_CRC).category(), std::system_category());
  EXPECT_EQ(ErrorCodeOf(ERROR_CRC).value(), ERROR_CRC);
}

}  // namespace
}  // namespace quillomat
