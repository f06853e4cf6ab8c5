#include "export/json_text.h"

#include <nlohmann/json.hpp>

namespace quillomat {

std::string QuotedJson(std::string_view text) {
  using Json = nlohmann::json;
  return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace quillomat
