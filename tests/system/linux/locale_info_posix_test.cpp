#include <cstdlib>

#include "support/temporary_folder.h"
#include "system/desktop_test.h"
#include "system/locale_info.h"

namespace quillomat {
namespace {

TEST(LocaleInfo, PlainLocaleHasAComma) {
  const ScopedVariable all("LC_ALL", "C");
  EXPECT_EQ(DigitGroupSeparator(), ",");
}

TEST(LocaleInfo, UnknownLocaleHasAComma) {
  const ScopedVariable all("LC_ALL", "no_SUCH.locale");
  EXPECT_EQ(DigitGroupSeparator(), ",");
}

/// Locales that the test compiles for itself; a machine need not have them.
class CompiledLocale : public ::testing::Test {
 protected:
  /// False when this machine has not the sources of locales.
  [[nodiscard]] bool Compile(const std::string& name, const std::string& characters) const {
    const std::string command = "localedef -i " + name + " -f " + characters + " '" +
                                (folder_ / (name + '.' + characters)) + "' 2>/dev/null";
    return std::system(command.c_str()) == 0;  // NOLINT(cert-env33-c): a test's own command
  }

  /// In a process of its own, because the C library never gives back the folders it found in
  /// LOCPATH.
  [[nodiscard]] static bool SeparatorIs(const std::string& expected) {
    return AsOrdinaryUser([&] { return DigitGroupSeparator() == expected ? 1 : 0; }) == 1;
  }

  TemporaryFolder folder_;
  ScopedVariable path_{"LOCPATH", folder_.Path()};
};

TEST_F(CompiledLocale, GermanHasAPoint) {
  if (!Compile("de_DE", "UTF-8")) GTEST_SKIP() << "localedef or its locale sources are missing";
  const ScopedVariable all("LC_ALL", "de_DE.UTF-8");
  EXPECT_TRUE(SeparatorIs("."));
}

TEST_F(CompiledLocale, SignOfGroupsIsNeverThatOfDecimals) {
  if (!Compile("pt_PT", "UTF-8")) GTEST_SKIP() << "localedef or its locale sources are missing";
  const ScopedVariable all("LC_ALL", "pt_PT.UTF-8");
  EXPECT_TRUE(SeparatorIs(".")) << "it names none, and 2,000 would be two";
}

TEST_F(CompiledLocale, NumericLocaleIsEnough) {
  if (!Compile("de_DE", "UTF-8")) GTEST_SKIP() << "localedef or its locale sources are missing";
  const ScopedVariable all("LC_ALL", std::nullopt);
  const ScopedVariable language("LANG", "C");
  const ScopedVariable numeric("LC_NUMERIC", "de_DE.UTF-8");
  EXPECT_TRUE(SeparatorIs("."));
}

TEST_F(CompiledLocale, SeparatorIsUtf8WhateverTheLocale) {
  if (!Compile("fr_FR", "UTF-8") || !Compile("fr_FR", "ISO-8859-1")) {
    GTEST_SKIP() << "localedef or its locale sources are missing";
  }
  {
    const ScopedVariable all("LC_ALL", "fr_FR.UTF-8");
    EXPECT_TRUE(SeparatorIs("\u202F"));
  }
  const ScopedVariable all("LC_ALL", "fr_FR.ISO-8859-1");
  EXPECT_TRUE(SeparatorIs("\u00A0"));
}

}  // namespace
}  // namespace quillomat
