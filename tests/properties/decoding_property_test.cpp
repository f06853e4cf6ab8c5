// Random bytes and random pieces of texts through the decoder of each encoding, and a count of such
// a file against a count of what it is in UTF-8.
#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>

#include "properties/count_case.h"
#include "properties/decoding_fault.h"
#include "properties/property_cases.h"
#include "properties/random_bytes.h"
#include "sources/converted_source.h"
#include "sources/counter.h"
#include "sources/encoding_guess.h"
#include "support/temporary_folder.h"

namespace quillomat::properties {
namespace {

constexpr std::uint64_t kDecodingSeed = 1611;
/// A text is decoded many times.
constexpr int kCasesPerText = 20;
/// Files take longer to be written than a text to be decoded.
constexpr int kCasesPerFile = 120;

std::string Shown(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string shown;
  for (const char ch : bytes) {
    const auto byte = static_cast<unsigned char>(ch);
    shown.append("\\x").append(1, kDigits[byte >> 4U]).append(1, kDigits[byte & 15U]);
  }
  return shown;
}

void CheckRandomBytes(std::uint64_t seed) {
  Random random(seed);
  for (int i = 0; i < CasesPerSeed() / kCasesPerText; ++i) {
    for (const CharacterSet set : EncodingsToTry()) {
      const std::string bytes = RandomBytes(random, set);
      ASSERT_EQ(DecodingFault(set, bytes), "")
          << NameOf(set) << ", seed " << seed << ": " << Shown(bytes);
    }
  }
}

struct Counted {
  std::map<std::string, std::int32_t> words;
  std::int32_t wordsRead = 0;

  bool operator==(const Counted&) const = default;
};

Counted CountOf(const std::string& path, CharacterSet encoding, std::size_t threads,
                std::int64_t* bytesNotDecoded = nullptr) {
  CountRequest request;
  request.source = TextOfFile{path};
  request.encoding = encoding;
  request.scan.letters = LetterRule::kAll;
  request.filters.letters = LetterRule::kAll;
  request.threads = threads;
  CountResult result = Counter(request).Run();
  Counted counted{{}, result.wordsRead};
  for (std::int32_t i = 1; i <= result.store.NumDifferentWords(); ++i) {
    counted.words.emplace(result.store.At(i).Word, result.store.At(i).Count);
  }
  if (bytesNotDecoded != nullptr) *bytesNotDecoded = result.uncounted.bytesNotDecoded;
  return counted;
}

/// A file in an encoding is counted as its text in UTF-8 is.
void CompareRandomFiles(std::uint64_t seed) {
  Random random(seed);
  const TemporaryFolder folder;
  for (int i = 0; i < CasesPerSeed() / kCasesPerFile; ++i) {
    const std::vector<CharacterSet> sets = EncodingsToTry();
    const CharacterSet set = sets[random() % sets.size()];
    const std::string bytes = "word\n" + RandomBytes(random, set) + "\n";
    // Without a mark the order of UTF-16 is guessed; whether rightly is not asked here.
    const CharacterSet known =
        set == CharacterSet::kUtf16 ? CharacterSetOf(bytes, CharacterSet::kUtf16) : set;
    std::int64_t expectedNotDecoded = 0;
    const std::string text = ConvertedText(bytes, known, expectedNotDecoded);
    const Counted expected = CountOf(folder.Write("utf8.txt", text), CharacterSet::kUtf8, 1);
    const std::string path = folder.Write("encoded.txt", bytes);
    for (const std::size_t threads : {1U, 3U}) {
      std::int64_t notDecoded = 0;
      ASSERT_EQ(CountOf(path, set, threads, &notDecoded), expected)
          << NameOf(set) << ", seed " << seed << ": " << Shown(bytes);
      if (!expected.words.empty()) {
        ASSERT_EQ(notDecoded, expectedNotDecoded) << NameOf(set) << ": " << Shown(bytes);
      }
    }
  }
}

TEST(DecodingProperty, RandomBytesOfFixedSeedAreDecodedAlikeInAnyBlocks) {
  CheckRandomBytes(kDecodingSeed);
}

TEST(DecodingProperty, RandomBytesOfFreshSeedAreDecodedAlikeInAnyBlocks) {
  CheckRandomBytes(FreshSeed());
}

TEST(DecodingProperty, FilesInEncodingsAreCountedAsTheirTextIs) {
  CompareRandomFiles(FreshSeed());
}

}  // namespace
}  // namespace quillomat::properties
