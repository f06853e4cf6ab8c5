#include "properties/decoding_fault.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/byte_source.h"
#include "base/utf8.h"
#include "sources/converted_source.h"
#include "system/system_decoder.h"

namespace quillomat::properties {
namespace {

struct Decoding {
  std::string text;
  std::int64_t bytesNotDecoded = 0;

  bool operator==(const Decoding&) const = default;
};

/// In blocks of these sizes in turn.
Decoding InBlocks(CharacterSet set, std::string_view bytes, std::span<const std::size_t> sizes) {
  const auto decoder = MakeTextDecoder(set);
  Decoding decoding;
  for (std::size_t i = 0; !bytes.empty(); ++i) {
    const std::size_t size = std::min(sizes[i % sizes.size()], bytes.size());
    decoder->Decode(bytes.substr(0, size), decoding.text);
    bytes.remove_prefix(size);
  }
  decoder->End(decoding.text);
  decoding.bytesNotDecoded = decoder->BytesNotDecoded();
  return decoding;
}

/// Gives the bytes out in blocks of one size.
class Blocks final : public ByteSource {
 public:
  Blocks(std::string_view bytes, std::size_t size) : rest_(bytes), size_(size) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t bytes = std::min({buffer.size(), rest_.size(), size_});
    std::copy_n(rest_.begin(), bytes, buffer.begin());
    rest_.remove_prefix(bytes);
    return bytes;
  }

 private:
  std::string_view rest_;
  std::size_t size_;
};

/// As a count reads them, `asked` bytes at a time.
Decoding AsSource(CharacterSet set, std::string_view bytes, std::size_t blockBytes,
                  std::size_t asked) {
  Decoding decoding;
  Blocks blocks(bytes, blockBytes);
  ConvertedSource source(blocks, set, decoding.bytesNotDecoded);
  std::vector<char> buffer(asked);
  while (const std::size_t read = source.Read(buffer)) decoding.text.append(buffer.data(), read);
  return decoding;
}

}  // namespace

std::vector<CharacterSet> EncodingsToTry() {
  std::vector<CharacterSet> sets;
  for (std::size_t i = 0; i < kCharacterSetNames.size(); ++i) {
    const auto set = static_cast<CharacterSet>(i);
    const bool isSet = set != CharacterSet::kAsFound && set != CharacterSet::kGuess;
    if (isSet && CanDecode(set)) sets.push_back(set);
  }
  return sets;
}

std::string DecodingFault(CharacterSet set, std::string_view bytes) {
  const std::vector<std::size_t> all = {bytes.size() + 1};
  const Decoding whole = InBlocks(set, bytes, all);
  if (!IsWellFormedUtf8(whole.text)) return "the text is no well-formed UTF-8";
  const auto most = static_cast<std::int64_t>(bytes.size());
  if (whole.bytesNotDecoded < 0 || whole.bytesNotDecoded > most) {
    return "more bytes were not decoded than there are";
  }
  const std::vector<std::vector<std::size_t>> blockings = {{1}, {2}, {3}, {5}, {1, 4}, {7, 1, 2}};
  for (const std::vector<std::size_t>& sizes : blockings) {
    if (InBlocks(set, bytes, sizes) != whole) {
      return "it depends on blocks of " + std::to_string(sizes[0]) + " bytes";
    }
  }
  if (AsSource(set, bytes, 3, 4096) != whole ||
      AsSource(set, bytes, bytes.size() + 1, 1) != whole) {
    return "it depends on how the source is read";
  }
  return {};
}

}  // namespace quillomat::properties
