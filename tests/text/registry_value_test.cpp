#include "text/registry_value.h"

#include <array>
#include <gtest/gtest.h>

#include "support/scripted_desktop.h"

namespace quillomat {
namespace {

const std::string kProgramKey(kProgramKeyPath);

class RegistryValueTest : public testing::Test {
 protected:
  MemoryRegistry registry;

  std::string Set(Language language) {
    return SetRegistryValue(registry, kProgramKey, "Language", "DE", language);
  }
  /// What SetRegistryValue says in English and in German when the key's fate is `outcome`.
  std::array<std::string, 2> SetBoth(RegistryKeyOutcome outcome, const std::string& errorText) {
    registry.ForceKeyResult(RegistryKeyResult{outcome, errorText});
    return {Set(Language::kEnglish), Set(Language::kGerman)};
  }
  std::array<std::string, 2> ReadBoth(const std::string& name) {
    return {GetRegistryValue(registry, kProgramKey, name, Language::kEnglish).status,
            GetRegistryValue(registry, kProgramKey, name, Language::kGerman).status};
  }
};

using Both = std::array<std::string, 2>;

TEST(RegistryKey, ProgramHasItsOwn) {
  EXPECT_EQ(kProgramKeyPath, R"(Software\Orvandel Systems\Quillomat)");
}

TEST_F(RegistryValueTest, NewKeyIsCreatedAndThenExists) {
  EXPECT_EQ(Set(Language::kEnglish), "0 New key created.");
  EXPECT_EQ(registry.Keys().at(kProgramKey).at("Language"), "DE");
  EXPECT_EQ(Set(Language::kEnglish), "0 Key already exists.");
}

TEST_F(RegistryValueTest, ValueIsReplaced) {
  EXPECT_EQ(SetRegistryValue(registry, kProgramKey, "Language", "DE", Language::kGerman),
            "0 Neuer Schlüssel verursacht.");
  EXPECT_EQ(SetRegistryValue(registry, kProgramKey, "Language", "EN", Language::kGerman),
            "0 Schlüssel besteht bereits.");
  EXPECT_EQ(registry.Keys().at(kProgramKey).at("Language"), "EN");
}

TEST_F(RegistryValueTest, EveryFateOfTheKeyHasItsText) {
  EXPECT_EQ(SetBoth(RegistryKeyOutcome::kCreated, ""),
            (Both{"0 New key created.", "0 Neuer Schlüssel verursacht."}));
  EXPECT_EQ(SetBoth(RegistryKeyOutcome::kExisted, ""),
            (Both{"0 Key already exists.", "0 Schlüssel besteht bereits."}));
  EXPECT_EQ(SetBoth(RegistryKeyOutcome::kOther, ""),
            (Both{"0 Key anomaly.", "0 Schlüsselanomalie."}));
}

TEST_F(RegistryValueTest, FailureStartsWithTheSystemsWordsAndABlank) {
  EXPECT_EQ(SetBoth(RegistryKeyOutcome::kFailed, "Access is denied."),
            (Both{"Access is denied. Unable to create (or find) key.",
                  "Access is denied. Nicht imstande, Schlüssel zu verursachen (oder finden)."}));
}

TEST_F(RegistryValueTest, NothingIsWrittenWithoutAKey) {
  EXPECT_EQ(Set(Language::kEnglish), "0 New key created.");
  registry.ForceKeyResult(RegistryKeyResult{RegistryKeyOutcome::kFailed, "No."});
  SetRegistryValue(registry, kProgramKey, "Language", "EN", Language::kEnglish);
  EXPECT_EQ(registry.Keys().at(kProgramKey).at("Language"), "DE");
}

TEST_F(RegistryValueTest, StatusIsThatOfTheKeyEvenWhenTheValueCannotBeWritten) {
  registry.FailWrites(true);
  EXPECT_EQ(Set(Language::kEnglish), "0 New key created.");
  EXPECT_TRUE(registry.Keys().at(kProgramKey).empty());
}

TEST_F(RegistryValueTest, EveryFateOfAReadingHasItsText) {
  EXPECT_EQ(ReadBoth("Language"),
            (Both{"1 Key not found or is empty.", "1 Schlüssel nicht gefunden oder ist leer."}));
  SetRegistryValue(registry, kProgramKey, "Language", "DE", Language::kEnglish);
  SetRegistryValue(registry, kProgramKey, "Empty", "", Language::kEnglish);
  EXPECT_EQ(ReadBoth("Language"), (Both{"0 OK", "0 OK"}));
  EXPECT_EQ(ReadBoth("Empty"), (Both{"0 OK probably", "0 OK wahrscheinlich"}));
  EXPECT_EQ(ReadBoth(""), (Both{"2 Name not specified.", "2 Name nicht spezifiziert."}));
  EXPECT_EQ(ReadBoth("Other"), (Both{"3 Name not found.", "3 Name nicht gefunden."}));
}

TEST_F(RegistryValueTest, DataComeWithTheStatus) {
  EXPECT_EQ(GetRegistryValue(registry, kProgramKey, "Language", Language::kEnglish).data, "");
  SetRegistryValue(registry, kProgramKey, "Language", "Grün", Language::kEnglish);
  EXPECT_EQ(GetRegistryValue(registry, kProgramKey, "Language", Language::kEnglish).data, "Grün");
}

}  // namespace
}  // namespace quillomat
