// The user's own choice in the system's settings counts, whatever the language.
#include <array>
#include <string>
#include <windows.h>

#include "system/desktop_test.h"
#include "system/locale_info.h"

namespace quillomat {
namespace {

/// The user's digit group separator, as it was before once the test is over.
class ChosenSeparator {
 public:
  ChosenSeparator() {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, before_.data(),
                   static_cast<int>(before_.size()));
  }
  ChosenSeparator(const ChosenSeparator&) = delete;
  ChosenSeparator& operator=(const ChosenSeparator&) = delete;
  ChosenSeparator(ChosenSeparator&&) = delete;
  ChosenSeparator& operator=(ChosenSeparator&&) = delete;
  ~ChosenSeparator() { Choose(before_.data()); }

  static void Choose(const wchar_t* separator) {
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator);
  }

 private:
  std::array<wchar_t, 8> before_{};
};

TEST(LocaleInfo, SeparatorIsTheOneOfTheUsersSettings) {
  const ChosenSeparator chosen;
  ChosenSeparator::Choose(L"'");
  EXPECT_EQ(DigitGroupSeparator(), "'");
  ChosenSeparator::Choose(L"\u00A0");
  EXPECT_EQ(DigitGroupSeparator(), "\u00A0");
}

TEST(LocaleInfo, SeparatorIsNeverTheDecimalSign) {
  const ChosenSeparator chosen;
  const std::string decimal = DecimalSign();
  ChosenSeparator::Choose(decimal == "," ? L"," : L".");
  EXPECT_NE(DigitGroupSeparator(), decimal);
}

TEST(LocaleInfo, WithoutASeparatorItIsAComma) {
  const ChosenSeparator chosen;
  ChosenSeparator::Choose(L"");
  EXPECT_EQ(DigitGroupSeparator(), ",");
}

}  // namespace
}  // namespace quillomat
