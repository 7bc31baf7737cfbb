#include "tool/reportline.h"

#include <algorithm>
#include <charconv>

namespace {

// A list is cut behind this many entries.
constexpr std::size_t kMostInLine = 8;

std::string NumberText(double number) {
  char digits[32];
  return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}

std::string Join(const Object& object) {
  std::string text;
  for (const Field& field : object.fields) {
    if (field.label == nullptr) continue;
    const bool* flag = std::get_if<bool>(&field.Shown().data);
    const std::string part = flag == nullptr ? LineText(field.Shown())
                             : *flag         ? '(' + std::string(field.label) + ')'
                                             : std::string();
    if (!text.empty() && !part.empty()) text += object.joint;
    text += part;
  }
  return text;
}

std::string Join(const List& list) {
  if (list.empty()) return "none";
  std::string text;
  const std::size_t count = std::min(list.size(), kMostInLine);
  for (std::size_t i = 0; i < count; ++i) text += (i > 0 ? ", " : "") + LineText(list[i]);
  return list.size() > count ? text + " and " + std::to_string(list.size() - count) + " more"
                             : text;
}

struct ToLine {
  std::string operator()(std::monostate) const { return "-"; }
  std::string operator()(bool flag) const { return flag ? "yes" : ""; }
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(double number) const { return NumberText(number); }
  std::string operator()(const std::string& text) const { return text; }
  std::string operator()(const List& list) const { return Join(list); }
  std::string operator()(const Object& object) const { return Join(object); }
};

}  // namespace

std::string LineText(const Value& value) { return std::visit(ToLine(), value.data); }
