#include "export/workbook_check.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>
#include <zlib.h>

#include "base/run_time_error.h"

namespace quillomat {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

/// The start and the end of a document in XML, from which it shows whether it is whole.
class DocumentEdges {
 public:
  void Take(std::string_view text) {
    start_.append(text.substr(0, kEdgeBytes - std::min(kEdgeBytes, start_.size())));
    if (text.size() > kEdgeBytes) text.remove_prefix(text.size() - kEdgeBytes);
    end_.append(text);
    if (end_.size() > kEdgeBytes) end_.erase(0, end_.size() - kEdgeBytes);
  }

  /// Whether the first element ends at the end.
  [[nodiscard]] bool AreWhole() const {
    const std::size_t declarationEnd = start_.find("?>");
    if (declarationEnd == std::string::npos) return false;
    const std::size_t root = start_.find('<', declarationEnd);
    if (root == std::string::npos) return false;
    const std::size_t nameEnd = start_.find_first_of(" \r\n\t>/", root);
    if (nameEnd == std::string::npos) return false;
    const std::string end = end_.substr(0, end_.find_last_not_of(" \r\n\t") + 1);
    return end.ends_with("</" + start_.substr(root + 1, nameEnd - root - 1) + ">");
  }

 private:
  static constexpr std::size_t kEdgeBytes = 512;
  std::string start_;
  std::string end_;
};

/// Reads the parts of an archive one after the other.
class ArchiveReader {
 public:
  explicit ArchiveReader(ByteSource& source) : source_(source), block_(kBlockBytes) {}

  /// A number of the archive's, its lowest byte first.
  std::uint32_t Number(int bytes) {
    std::uint32_t number = 0;
    for (int i = 0; i < bytes; ++i) number |= std::uint32_t{NextByte()} << (8 * i);
    return number;
  }
  void Skip(std::uint32_t bytes) {
    for (std::uint32_t i = 0; i < bytes; ++i) NextByte();
  }
  [[nodiscard]] bool HasEnded() const { return ended_; }

  /// Takes a compressed part to its end; false when it has none.
  bool Inflate(DocumentEdges& document) {
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) {  // without a head of its own
      throw RunTimeError(RunTimeErrorNumber::kOutOfMemory);
    }
    const int result = InflateAll(stream, document);
    inflateEnd(&stream);
    return result == Z_STREAM_END;
  }

 private:
  int InflateAll(z_stream& stream, DocumentEdges& document) {
    std::vector<char> text(kBlockBytes);
    int result = Z_OK;
    while (result == Z_OK && (next_ < filled_ || Fill())) {
      stream.next_in = reinterpret_cast<Bytef*>(block_.data() + next_);
      stream.avail_in = static_cast<uInt>(filled_ - next_);
      stream.next_out = reinterpret_cast<Bytef*>(text.data());
      stream.avail_out = static_cast<uInt>(text.size());
      result = inflate(&stream, Z_NO_FLUSH);
      next_ = filled_ - stream.avail_in;
      document.Take({text.data(), text.size() - stream.avail_out});
    }
    return result;
  }

  std::uint8_t NextByte() {
    if (next_ == filled_ && !Fill()) return 0;
    return static_cast<std::uint8_t>(block_[next_++]);
  }
  bool Fill() {
    next_ = 0;
    filled_ = source_.Read(block_);
    ended_ = filled_ == 0;
    return !ended_;
  }

  ByteSource& source_;
  std::vector<char> block_;
  std::size_t next_ = 0;
  std::size_t filled_ = 0;
  bool ended_ = false;
};

}  // namespace

// What stands in front of a part: signature, version, flags, method, time, date, check sum, sizes,
// the lengths of its name and of notes, name, notes.
bool IsWholeWorkbook(ByteSource& archive) {
  constexpr std::uint32_t kPart = 0x04034B50;
  constexpr std::uint32_t kContents = 0x02014B50;
  constexpr std::uint32_t kDeflated = 8;
  ArchiveReader reader(archive);
  for (std::uint32_t signature = reader.Number(4); signature != kContents;
       signature = reader.Number(4)) {
    if (signature != kPart) return false;
    reader.Skip(2 + 2);
    if (reader.Number(2) != kDeflated) return false;
    reader.Skip(2 + 2 + 4 + 4 + 4);
    const std::uint32_t nameBytes = reader.Number(2);
    const std::uint32_t noteBytes = reader.Number(2);
    reader.Skip(nameBytes + noteBytes);
    DocumentEdges document;
    if (!reader.Inflate(document) || !document.AreWhole()) return false;
  }
  return !reader.HasEnded();
}

}  // namespace quillomat
