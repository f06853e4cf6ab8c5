// Short texts compared and copied without a call.
#include "engine/short_bytes.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <string>

namespace quillomat {
namespace {

/// No two of its bytes within reach of each other are the same.
std::string TextOf(std::size_t bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes; ++i) text += static_cast<char>('!' + i);
  return text;
}

TEST(EqualBytes, TellsEveryDifferentByte) {
  for (std::size_t size = 0; size <= 40; ++size) {
    const std::string text = TextOf(size);
    EXPECT_TRUE(EqualBytes(text.data(), std::string(text).data(), size)) << size;
    for (std::size_t i = 0; i < size; ++i) {
      std::string other = text;
      other[i] = '~';
      EXPECT_FALSE(EqualBytes(text.data(), other.data(), size)) << size << ' ' << i;
    }
  }
}

TEST(CopyShortBytes, CopiesAllAndNothingElse) {
  for (std::size_t size = 0; size <= kMostShortBytes; ++size) {
    const std::string text = TextOf(size);
    std::string copy(kMostShortBytes + 1, '~');
    CopyShortBytes(copy.data(), text.data(), size);
    EXPECT_EQ(copy, text + std::string(kMostShortBytes + 1 - size, '~')) << size;
  }
}

}  // namespace
}  // namespace quillomat
