#include <cstdlib>
#include <string>

#include "support/temporary_folder.h"
#include "system/collation.h"
#include "system/desktop_test.h"

namespace quillomat {
namespace {

std::string KeyOf(const Collation& collation, std::string_view word) {
  std::string key;
  collation.AppendKey(key, word);
  return key;
}

TEST(CollationTest, PlainLocaleHasNoOrder) {
  for (const char* name : {"C", "C.UTF-8", "no_SUCH.locale"}) {
    const ScopedVariable all("LC_ALL", name);
    const Collation collation;
    EXPECT_FALSE(collation.IsKnown()) << name;
    EXPECT_EQ(KeyOf(collation, "zebra"), "zebra");
  }
}

/// Whether words are in the order of German; asked in a process of its own, because the C library
/// never gives back the folders it found in LOCPATH.
bool IsGerman() {
  const Collation collation;
  const std::string longWord = std::string(2000, 'a') + "\u00FC";
  return collation.IsKnown() && KeyOf(collation, "\u00E4rger") < KeyOf(collation, "boot") &&
         KeyOf(collation, "Arger") < KeyOf(collation, "\u00E4rger") &&
         KeyOf(collation, "apfel") < KeyOf(collation, "Boot") &&
         KeyOf(collation, longWord) < KeyOf(collation, std::string(2000, 'a') + "v");
}

TEST(CollationTest, GermanLettersStandWhereAGermanLooksForThem) {
  const TemporaryFolder folder;
  const ScopedVariable path("LOCPATH", folder.Path());
  const std::string command =
      "localedef -i de_DE -f UTF-8 '" + (folder / "de_DE.UTF-8") + "' 2>/dev/null";
  // NOLINTNEXTLINE(cert-env33-c): a test's own command
  if (std::system(command.c_str()) != 0) GTEST_SKIP() << "localedef or its sources are missing";
  const ScopedVariable all("LC_ALL", "de_DE.UTF-8");
  EXPECT_EQ(AsOrdinaryUser([] { return IsGerman() ? 1 : 0; }), 1);
}

}  // namespace
}  // namespace quillomat
