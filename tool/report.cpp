#include "tool/report.h"

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
