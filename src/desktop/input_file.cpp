#include "desktop/input_file.h"

namespace quillomat {

InputFile::InputFile(const std::string& path)
    : file_(NativeFile::OpenForReading(path)), length_(file_.Length()) {}

std::size_t InputFile::Read(std::span<char> buffer) {
  return file_.Read(buffer);
}

}  // namespace quillomat
