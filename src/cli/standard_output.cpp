#include "cli/standard_output.h"

#include <ostream>
#include <string>
#include <string_view>

#include "base/terminal_text.h"
#include "system/output_file.h"
#include "system/terminal.h"

namespace quillomat {
namespace {

class EscapingSink final : public ByteSink {
 public:
  explicit EscapingSink(ByteSink& target) : target_(target) {}

  void Write(std::string_view bytes) override { target_.Write(EscapedForTerminal(bytes)); }

 private:
  ByteSink& target_;
};

}  // namespace

bool PrintToStandardOutput(const std::function<void(ByteSink&)>& write, std::ostream& err) {
  if (!IsOpen(StandardStream::kOutput)) {
    err << kOwnError << "standard output is closed; there is nowhere to print\n";
    return false;
  }
  try {
    OutputFile out = OutputFile::StandardOutput();
    if (IsTerminal(StandardStream::kOutput)) {
      EscapingSink escaping(out);
      write(escaping);
    } else {
      write(out);
    }
    out.Close();
    return true;
  } catch (const ReaderGone&) {
    return false;
  } catch (const RunTimeError& error) {
    err << kOwnError << "standard output: " << error.Description() << '\n';
    return false;
  }
}

std::streamsize EscapingBuffer::xsputn(const char* text, std::streamsize bytes) {
  const std::string escaped =
      EscapedForTerminal(std::string_view(text, static_cast<std::size_t>(bytes)));
  const auto wanted = static_cast<std::streamsize>(escaped.size());
  return target_.sputn(escaped.data(), wanted) == wanted ? bytes : 0;
}

EscapingBuffer::int_type EscapingBuffer::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof()))
    return traits_type::not_eof(character);
  const char ch = traits_type::to_char_type(character);
  return xsputn(&ch, 1) == 1 ? character : traits_type::eof();
}

void WriteUnescaped(std::ostream& out, std::string_view text) {
  const auto* const escaping = dynamic_cast<EscapingBuffer*>(out.rdbuf());
  if (escaping == nullptr) {
    out << text;
  } else {
    escaping->Target().sputn(text.data(), static_cast<std::streamsize>(text.size()));
  }
}

std::ostream& operator<<(std::ostream& err, const Headed& headed) {
  const auto* const escaping = dynamic_cast<EscapingBuffer*>(err.rdbuf());
  if (escaping == nullptr || !escaping->IsColoured()) return err << headed.head;
  WriteUnescaped(err, headed.tone == MessageTone::kError ? "\x1B[1;31m" : "\x1B[1;33m");
  err << headed.head;
  WriteUnescaped(err, "\x1B[0m");
  return err;
}

}  // namespace quillomat
