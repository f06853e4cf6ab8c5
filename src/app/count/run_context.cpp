#include "app/count/run_context.h"

#include <utility>

#include "base/text_helpers.h"

namespace quillomat {
void Tell(const RunContext& context, std::string text, std::string title, MessageIcon icon) {
  context.desktop.ShowMessage({std::move(text), std::move(title), icon});
}

void Refuse(const RunContext& context, std::string text, std::string title) {
  Tell(context, std::move(text), std::move(title), MessageIcon::kExclamation);
}

std::string Grouped(const RunContext& context, std::int64_t number) {
  return GroupDigits(number, context.desktop.DigitGroupSeparator());
}

}  // namespace quillomat
