// A locale of the C library, which is freed with its owner. For the files of this folder.
#pragma once

#include <locale.h>  // NOLINT(modernize-deprecated-headers): <clocale> has no locale_t
#include <memory>
#include <type_traits>

namespace quillomat {

struct LocaleCloser {
  void operator()(locale_t locale) const { freelocale(locale); }
};
using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, LocaleCloser>;

}  // namespace quillomat
