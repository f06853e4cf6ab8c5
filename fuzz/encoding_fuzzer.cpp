// Feeds bytes to the decoders of all encodings. It checks:
// 1. Nothing crashes, hangs or trips a sanitizer, whatever the bytes are.
// 2. The text is well-formed UTF-8.
// 3. Neither the text nor the number of bytes that were not decoded depends on the blocks in which
// the
//    bytes come or the text is read.
// The first byte chooses the encoding, the rest is the text.
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/character_set.h"
#include "fuzzing.h"
#include "properties/decoding_fault.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::vector<quillomat::CharacterSet> kSets = quillomat::properties::EncodingsToTry();
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  const int number = quillomat::fuzzing::InputReader(rest).Below(static_cast<int>(kSets.size()));
  const quillomat::CharacterSet set = kSets.at(static_cast<std::size_t>(number));
  const std::string fault = quillomat::properties::DecodingFault(set, rest);
  if (!fault.empty()) std::cerr << quillomat::NameOf(set) << ": " << fault << '\n';
  quillomat::fuzzing::Require(fault.empty(), "bytes are decoded alike in any blocks");
  return 0;
}
