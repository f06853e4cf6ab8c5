#include "export/json_text.h"

#include <nlohmann/json.hpp>

#include "base/well_formed_text.h"

namespace quillomat {

std::string QuotedJson(std::string_view text) {
  using Json = nlohmann::json;
  return Json(WellFormedText(text)).dump();
}

}  // namespace quillomat
