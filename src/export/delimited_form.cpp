#include "export/delimited_form.h"

namespace quillomat {

void AppendCsvText(std::string& out, std::string_view text) {
  if (text.find_first_of("\",\r\n") == std::string_view::npos) {
    out.append(text);
    return;
  }
  out.push_back('"');
  for (const char ch : text) {
    if (ch == '"') out.push_back('"');
    out.push_back(ch);
  }
  out.push_back('"');
}

void AppendTsvText(std::string& out, std::string_view text) {
  for (const char ch : text) {
    switch (ch) {
      case '\t':
        out.append("\\t");
        break;
      case '\n':
        out.append("\\n");
        break;
      case '\r':
        out.append("\\r");
        break;
      case '\\':
        out.append("\\\\");
        break;
      default:
        out.push_back(ch);
    }
  }
}

}  // namespace quillomat
