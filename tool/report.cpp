#include "tool/report.h"

#include <algorithm>
#include <cmath>

// Here and not in the header, since a field is made of values and a value may be an object.
Object::Object() = default;
Object::Object(const Object& other) = default;
Object::Object(Object&& other) noexcept = default;
Object& Object::operator=(const Object& other) = default;
Object& Object::operator=(Object&& other) noexcept = default;
Object::~Object() = default;

Object::Object(std::initializer_list<Field> given, const char* between)
    : fields(given), joint(between) {}

void Object::Add(Field field) { fields.push_back(std::move(field)); }

const Value* Object::Find(std::string_view key) const {
  const auto found = std::find_if(fields.begin(), fields.end(), [&](const Field& field) {
    return field.key != nullptr && field.key == key;
  });
  return found != fields.end() ? &found->value : nullptr;
}

namespace {

bool SameText(const char* a, const char* b) {
  return a == nullptr || b == nullptr ? a == b : std::string_view(a) == b;
}

bool Same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

bool Same(const List& a, const List& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end());
}

bool Same(const Object& a, const Object& b) {
  return std::equal(a.fields.begin(), a.fields.end(), b.fields.begin(), b.fields.end(),
                    [](const Field& x, const Field& y) {
                      return SameText(x.key, y.key) && SameText(x.label, y.label) &&
                             x.value == y.value;
                    });
}

template <class Plain>
bool Same(const Plain& a, const Plain& b) {
  return a == b;
}

}  // namespace

bool operator==(const Value& a, const Value& b) {
  return a.data.index() == b.data.index() &&
         std::visit(
             [&](const auto& held) {
               return Same(held, std::get<std::decay_t<decltype(held)>>(b.data));
             },
             a.data);
}
