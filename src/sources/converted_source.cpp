#include "sources/converted_source.h"

#include <algorithm>
#include <cstring>

#include "base/byte_order_mark.h"
#include "base/line_decoder.h"
#include "sources/encoding_guess.h"
#include "system/system_decoder.h"

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

}  // namespace

ConvertedSource::ConvertedSource(ByteSource& source, CharacterSet from,
                                 std::int64_t& bytesNotDecoded)
    : source_(source),
      decoder_(MakeTextDecoder(from)),
      bytesNotDecoded_(bytesNotDecoded),
      block_(kBlockBytes) {}

std::size_t ConvertedSource::Read(std::span<char> buffer) {
  if (buffer.empty()) return 0;
  while (convertedStart_ == converted_.size() && !ended_) ConvertBlock();
  const std::size_t bytes = std::min(buffer.size(), converted_.size() - convertedStart_);
  if (bytes > 0) std::memcpy(buffer.data(), converted_.data() + convertedStart_, bytes);
  convertedStart_ += bytes;
  return bytes;
}

void ConvertedSource::ConvertBlock() {
  converted_.clear();
  convertedStart_ = 0;
  const std::size_t bytes = source_.Read(block_);
  const std::int64_t before = decoder_->BytesNotDecoded();
  ended_ = bytes == 0;
  if (ended_) {
    decoder_->End(converted_);
  } else {
    decoder_->Decode({block_.data(), bytes}, converted_);
  }
  bytesNotDecoded_ += decoder_->BytesNotDecoded() - before;
}

std::string ConvertedText(std::string_view bytes, CharacterSet from,
                          std::int64_t& bytesNotDecoded) {
  const std::unique_ptr<TextDecoder> decoder = MakeTextDecoder(from);
  std::string text;
  decoder->Decode(bytes, text);
  decoder->End(text);
  bytesNotDecoded += decoder->BytesNotDecoded();
  text.erase(0, text.size() - WithoutUtf8Mark(text).size());
  return text;
}

std::string WholeText(ByteSource& source, CharacterSet choice, Uncounted& uncounted) {
  std::string bytes;
  std::vector<char> block(kBlockBytes);
  while (const std::size_t size = source.Read(block)) bytes.append(block.data(), size);
  CharacterSet from = CharacterSetOf(bytes, choice);
  if (from == CharacterSet::kAsFound && choice == CharacterSet::kGuess) {
    from = LateGuessOfWhole(bytes);
  }
  if (from != CharacterSet::kAsFound) return ConvertedText(bytes, from, uncounted.bytesNotDecoded);
  TextSource found(bytes);
  return DecodeText(found, &uncounted.linesNotUtf8);
}

std::string ConvertedHead(std::string_view head, CharacterSet from) {
  std::string text;
  MakeTextDecoder(from)->Decode(head, text);
  return text;
}

}  // namespace quillomat
