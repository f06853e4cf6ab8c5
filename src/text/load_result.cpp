#include "text/load_result.h"

#include <string_view>

#include "base/text_helpers.h"

namespace quillomat {
namespace load_result {
namespace {

// A fault at a line is the negative of its base and the line together.
constexpr int kMissingBase = 500;
constexpr int kTooLongBase = 1000;
constexpr int kDuplicateBase = 1500;

std::string AtLine(std::string_view fault, int line) {
  return std::string(fault) + " at line " + std::to_string(line) + ".";
}

}  // namespace

int MissingAt(int line) {
  return line > kLastLineTold ? kNotRecovered : -(kMissingBase + line);
}

int TooLongAt(int line) {
  return line > kLastLineTold ? kNotRecovered : -(kTooLongBase + line);
}

int DuplicateAt(int line) {
  return -(kDuplicateBase + line);
}

}  // namespace load_result

std::string LoadErrorMessage(int result, const std::string& path) {
  using namespace load_result;
  switch (result) {
    case kNoTextRead:
      return "No program text was read.";
    case kCannotOpen:
      return "Cannot open file containing program text." + std::string(kCrLf) + path;
    case kParticularMemory:
      return "Particular memory allocation error.";
    case kTooMuch:
      return "Too much program text.";
    case kNotRecovered:
      return "Text not recovered.";
    case kEmpty:
      return "File is empty.";
    case kCannotRead:
      return "Error reading file.";
    case kGeneralMemory:
      return "General memory allocation error.";
    default:
      break;
  }
  if (result < -kDuplicateBase) {
    return AtLine("Duplicate in program text", -(result + kDuplicateBase));
  }
  if (result < -kTooLongBase) return AtLine("String too long", -(result + kTooLongBase));
  if (result < -kMissingBase) return AtLine("Missing string", -(result + kMissingBase));
  return "Error " + std::to_string(result);
}

}  // namespace quillomat
