#include "text/language.h"

#include <gtest/gtest.h>

#include "support/scripted_desktop.h"
#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "text/program_text.h"
#include "text/registry_value.h"

namespace quillomat {
namespace {

const std::string kKey(kProgramKeyPath);

void Store(Registry& registry, const std::string& tag) {
  SetRegistryValue(registry, kKey, "Language", tag, Language::kEnglish);
}

TEST(Language, ThereAreTwo) {
  EXPECT_EQ(static_cast<int>(Language::kEnglish), 0);
  EXPECT_EQ(static_cast<int>(Language::kGerman), 1);
  EXPECT_EQ(OtherLanguage(Language::kEnglish), Language::kGerman);
  EXPECT_EQ(OtherLanguage(Language::kGerman), Language::kEnglish);
}

TEST(Language, FirstStartIsEnglish) {
  MemoryRegistry registry;
  EXPECT_EQ(ReadLanguage(registry), Language::kEnglish);
  EXPECT_TRUE(registry.Keys().empty());
}

TEST(Language, ChoiceIsKept) {
  MemoryRegistry registry;
  EXPECT_EQ(WriteLanguage(registry, Language::kGerman), "0 Neuer Schlüssel verursacht.");
  EXPECT_EQ(registry.Keys().at(kKey).at("Language"), "DE");
  EXPECT_EQ(ReadLanguage(registry), Language::kGerman);
  EXPECT_EQ(WriteLanguage(registry, Language::kEnglish), "0 Key already exists.");
  EXPECT_EQ(registry.Keys().at(kKey).at("Language"), "EN");
  EXPECT_EQ(ReadLanguage(registry), Language::kEnglish);
}

TEST(Language, WhatIsNoLanguageIsEnglish) {
  MemoryRegistry registry;
  for (const char* tag : {"", "FR", "D", "DEU", "1"}) {
    Store(registry, tag);
    EXPECT_EQ(ReadLanguage(registry), Language::kEnglish) << tag;
  }
}

TEST(Language, ToggleSwitchesTheTextsAndKeepsTheChoice) {
  MemoryRegistry registry;
  ProgramText text;
  TextSource source("1 EN One\n1 DE Eins\n");
  ASSERT_EQ(text.Load(source), 2);
  EXPECT_EQ(text.ToggleLanguage(registry), "0 Neuer Schlüssel verursacht.");
  EXPECT_EQ(text.GetText(1), "Eins");
  EXPECT_EQ(ReadLanguage(registry), Language::kGerman);
  EXPECT_EQ(text.ToggleLanguage(registry), "0 Key already exists.");
  EXPECT_EQ(text.GetText(1), "One");
  EXPECT_EQ(ReadLanguage(registry), Language::kEnglish);
}

TEST(Language, ToggleWorksWithoutARegistry) {
  MemoryRegistry registry;
  registry.ForceKeyResult(RegistryKeyResult{RegistryKeyOutcome::kFailed, "Access is denied."});
  ProgramText text;
  EXPECT_EQ(text.ToggleLanguage(registry),
            "Access is denied. Nicht imstande, Schlüssel zu verursachen (oder finden).");
  EXPECT_EQ(text.CurrentLanguage(), Language::kGerman);
}

#ifndef _WIN32  // where it would be the registry of whoever runs the tests
TEST(Language, TheUsersRegistryKeepsTheChoice) {
  const TemporaryFolder folder;
  const ScopedVariable settings("XDG_CONFIG_HOME", folder.Path());
  UserRegistry registry;
  EXPECT_EQ(ReadLanguage(registry), Language::kEnglish);
  EXPECT_EQ(WriteLanguage(registry, Language::kGerman), "0 Neuer Schlüssel verursacht.");
  UserRegistry nextStart;
  EXPECT_EQ(ReadLanguage(nextStart), Language::kGerman);
}
#endif

}  // namespace
}  // namespace quillomat
