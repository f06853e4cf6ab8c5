#include "sources/converted_source.h"

#include "base/byte_order_mark.h"
#include "base/line_decoder.h"
#include "sources/encoding_guess.h"
#include "system/system_decoder.h"

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

}  // namespace

ConvertedSource::ConvertedSource(ByteSource& source, CharacterSet from,
                                 std::int64_t& bytesNotDecoded, const StopQuestion* stop)
    : source_(source),
      decoder_(MakeTextDecoder(from)),
      bytesNotDecoded_(bytesNotDecoded),
      stop_(stop),
      block_(kBlockBytes) {}

std::size_t ConvertedSource::Read(std::span<char> buffer) {
  if (buffer.empty()) return 0;
  while (converted_.IsEmpty() && !ended_) ConvertBlock();
  return converted_.GiveOut(buffer);
}

void ConvertedSource::ConvertBlock() {
  std::string& converted = converted_.Emptied();
  const std::size_t bytes = source_.Read(block_);
  const std::int64_t before = decoder_->BytesNotDecoded();
  ended_ = bytes == 0;
  if (!ended_) {
    decoder_->Decode({block_.data(), bytes}, converted);
  } else if (stop_ == nullptr || !stop_->Stopped()) {
    decoder_->End(converted);
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

std::string WholeText(ByteSource& source, CharacterSet choice, Uncounted& uncounted,
                      GuessedSets& guessed) {
  std::string bytes;
  std::vector<char> block(kBlockBytes);
  while (const std::size_t size = source.Read(block)) bytes.append(block.data(), size);
  CharacterSet from = CharacterSetOf(bytes, choice);
  if (from == CharacterSet::kAsFound && choice == CharacterSet::kGuess) {
    from = LateGuessOfWhole(bytes);
  }
  if (choice == CharacterSet::kGuess) guessed.Add(from);
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
