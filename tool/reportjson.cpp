// Reports for programs.

#include <nlohmann/json.hpp>

#include "tool/report.h"

namespace {

using Json = nlohmann::ordered_json;

struct ToJson {
  Json operator()(std::monostate) const { return nullptr; }
  Json operator()(const List& list) const {
    Json array = Json::array();
    for (const Value& value : list) array.push_back(std::visit(*this, value.data));
    return array;
  }
  Json operator()(const Object& object) const {
    Json members = Json::object();
    for (const Field& field : object.fields) {
      if (field.key != nullptr) members[field.key] = std::visit(*this, field.value.data);
    }
    return members;
  }
  template <class Plain>
  Json operator()(const Plain& plain) const {
    return plain;
  }
};

}  // namespace

std::string RenderJson(const Object& report) {
  constexpr bool kAsciiOnly = true;
  return ToJson()(report).dump(2, ' ', kAsciiOnly, Json::error_handler_t::replace) + '\n';
}
