#include "cli/clipboard_text.h"

#include <cstddef>
#include <string>
#include <utility>

#include "app/count/clipboard_source.h"
#include "base/byte_order_mark.h"
#include "base/limited_source.h"
#include "base/utf8.h"
#include "sources/converted_source.h"

namespace quillomat {

ClipboardText TakeAsClipboard(ByteSource& input, CharacterSet encoding, TerminalDesktop& desktop) {
  constexpr std::size_t kMostBytesPerCharacter = 4;
  StartOfSource start(input, kMostMarkBytes + kMostBytesPerCharacter * (kClipboardTextLimit + 1));
  ClipboardText taken;
  std::string text = WholeText(start, encoding, taken.uncounted, taken.guessed);
  taken.isTooLong = CharacterCount(text) > kClipboardTextLimit;
  desktop.SetClipboardText(std::move(text), start.WasCut());
  return taken;
}

}  // namespace quillomat
